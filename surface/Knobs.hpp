// Knobs: the mouse's way into a text box.
//
// A knob is a picture that holds no value. Dragging it up or down writes its box, step by step, and
// the box does the rest. All knobs are one algorithm over one shared state.
#pragma once

#include "surface/Controls.hpp"

#include <optional>
#include <span>

namespace Tessoro {

// What a declaration of a knob doesn't say anew each time.
inline constexpr std::string_view KnobPicture = "knob";
inline constexpr std::string_view FinetuningTip = "Press [Shift] for finetuning";

struct KnobRow {
  Image &knob;
  TextBox &box;
  // The knob's own limits: tested before a step, which isn't shortened to fit.
  int lower;
  int upper;
  // The number that a double click writes.
  std::optional<int> doubleClick = std::nullopt;
  // Fine steps upward add nothing where this is false.
  bool fineStepsRaise = true;
};

// Gives each knob the handlers of its row.
void AttachKnobs(std::span<const KnobRow> rows);

} // namespace Tessoro
