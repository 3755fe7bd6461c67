// The five note keys on the main form, and the button that stops what hangs.
#pragma once

#include "surface/Controls.hpp"

namespace Tessoro {

// The keys hold no state: a press and its release are two messages on their own.
class NoteSection {
public:
  explicit NoteSection(Form &owner);

private:
  Form &form;

public:
  // clang-format off
  Shape ShapeNotes{form, "ShapeNotes", {9420, 5985, 2685, 2535}, ShapeKind::Panel};
  NoteKey NoteC1{form, "NoteC1", {9540, 6690, 477, 1140}, {.caption = "C1", .says = "Note C1"}};
  NoteKey NoteC2{form, "NoteC2", {10032, 6690, 477, 1140}, {.caption = "C2", .says = "Note C2"}};
  NoteKey NoteC3{form, "NoteC3", {10524, 6690, 477, 1140}, {.caption = "C3", .says = "Note C3"}};
  NoteKey NoteC4{form, "NoteC4", {11016, 6690, 477, 1140}, {.caption = "C4", .says = "Note C4"}};
  NoteKey NoteC5{form, "NoteC5", {11508, 6690, 477, 1140}, {.caption = "C5", .says = "Note C5"}};
  CommandButton Panic{form, "Panic", {9540, 7950, 2445, 480}, {.caption = "&Panic", .toolTip = "Stops 'hanging' notes"}};
  // clang-format on
};

} // namespace Tessoro
