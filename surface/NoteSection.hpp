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
  Shape ShapeNotes{form, "ShapeNotes", {9420, 6000, 2685, 2520}, ShapeKind::Panel};
  NoteKey NoteC1{form, "NoteC1", { 9540, 6720, 480, 1155}, {.caption = "C1", .says = "Note C1"}};
  NoteKey NoteC2{form, "NoteC2", {10035, 6720, 480, 1155}, {.caption = "C2", .says = "Note C2"}};
  NoteKey NoteC3{form, "NoteC3", {10530, 6720, 480, 1155}, {.caption = "C3", .says = "Note C3"}};
  NoteKey NoteC4{form, "NoteC4", {11025, 6720, 480, 1155}, {.caption = "C4", .says = "Note C4"}};
  NoteKey NoteC5{form, "NoteC5", {11520, 6720, 480, 1155}, {.caption = "C5", .says = "Note C5"}};
  CommandButton Panic{form, "Panic", {9540, 8010, 2460, 390}, {.caption = "&Panic", .toolTip = "Stops 'hanging' notes"}};
  // clang-format on
};

} // namespace Tessoro
