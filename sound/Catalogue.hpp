// The sound parameters of the Waldorf microQ that the system touches.
//
// Numbers are the system's own, 1 to 383 with a gap at 256. Wire values are single bytes, 0 to 127.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Tessoro {

// How a wire value reads.
enum class Display : std::uint8_t {
  Wire,
  // Wire - 64.
  Signed,
  Octave,
  Shape,
  FilterType,
  ModSource,
  FmSource,
  SubFrequency,
  GlideMode,
  LfoShape,
  Checked,
  // 16 x unisono mode + mono.
  Allocation,
  Routing,
  Character,
};

// The init routines send nothing for the number.
inline constexpr int NoInit = -1;

struct ParameterRow {
  int number;
  std::string_view name;
  // The control of whatever form that shows it; empty for none.
  std::string_view shownBy;
  // The wire values that the system sends.
  int lowest;
  int highest;
  // The wire value that an init leaves behind, or NoInit.
  int init;
  Display display;
  // Who sends the number as a parameter change: C its control, P and H the two init routines, S the
  // import of a sound dump, F the load of a sound file, N the form for the sound's name.
  std::string_view sentBy;
  // The controller that its control sends instead of the number; 0 for none.
  int controller;
};

// The table in two halves: what stands alone, and what runs in groups.
std::span<const ParameterRow> SingleParameters();
std::span<const ParameterRow> GroupParameters();

// Null for a number that the system never sends.
const ParameterRow *FindParameter(int number);

// The parameter that a controller of the synthesizer stands for, and its name. Filter 1's type has
// a controller and no number.
struct ControllerRow {
  int controller;
  // 0 for none.
  int number;
  std::string_view name;
  Display display;
};

// Null for a controller that the system never sends.
const ControllerRow *FindController(int controller);
std::span<const ControllerRow> Controllers();

// The wire value as a form would show it: "+12", "Lowpass ..." or plain digits.
std::string DisplayText(Display display, int wire);

} // namespace Tessoro
