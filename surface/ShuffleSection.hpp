// The shuffle of the oscillators on the main form.
#pragma once

#include "surface/Controls.hpp"

#include <cstdint>

namespace Tessoro {

class F_Tessoro;

// Changes the oscillators by chance, at one of three levels. It writes their controls and sends
// nothing itself.
class ShuffleSection {
public:
  explicit ShuffleSection(F_Tessoro &owner);

  void C_OSC_shuffle_Click();

private:
  struct Strip;

  void Shuffle(const Strip &strip, int level);
  int Draw(std::int16_t low, std::int16_t high);
  void ShiftBox(TextBox &box, std::int16_t reach, int lower, int upper);

  Form &form;
  F_Tessoro &main;

public:
  // clang-format off
  CommandButton C_OSC_shuffle{form, "C_OSC_shuffle", {10620, 5505, 810, 300}, {.caption = "shuffle 1", .toolTip = "Shuffles all OSC parameters depending on the shuffle level (1-3)", .enabled = false}};
  HScrollBar HScrollShuffleOSC{form, "HScrollShuffleOSC", {11475, 5505, 510, 300}, {.min = 1, .max = 3, .value = 1, .says = "Shuffle level"}};
  // clang-format on
};

} // namespace Tessoro
