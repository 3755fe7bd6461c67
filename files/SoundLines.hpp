// The lines of a sound file of version 1.5: one table for the writer and the reader.
#pragma once

#include "sound/SoundState.hpp"
#include "surface/Controls.hpp"

#include <string>
#include <variant>
#include <vector>

namespace Tessoro {

class Application;

// What a load does with a line. "Prefix" is NumericPrefix of the field, "strict" its StrictInteger;
// what is sent is rounded.
enum class LoadRule : std::uint8_t {
  // Read and dropped.
  Drop,
  // The control takes the field as it stands.
  Field,
  // The box takes the prefix, printed.
  Prefix,
  // The list, bar or check box takes the strict number.
  Strict,
  // As Strict, but a number above 1 is 0.
  StrictFlag,
  // The shadow takes the field as a text.
  ShadowText,
  // As ShadowText, but a number above 1 is 0.
  ShadowFlag,
  ShadowPrefix,
  // As ShadowPrefix, but -1 is 0.
  ShadowGlideMode,
  ShadowStrict,
  // The shadow as above; then the prefix, with the row's offset, is sent.
  ShadowTextSendPrefix,
  ShadowStrictSendPrefix,
  // The shadow, a text, takes the prefix, printed; the prefix is sent.
  ShapeSendPrefix,
  // The shadow takes the prefix, which is sent; then the box takes the field if its panel shows the
  // envelope.
  Envelope,
  // The shadow keeps the field in its own form, text or number.
  Own,
  // Then the prefix of the field is sent.
  OwnSendPrefix,
  // Then the shadow's strict number, with the row's offset, is sent.
  OwnSendStrict,
  // The shadow takes the strict number, which is sent.
  StrictSend,
  // The third and the fifth field of an arpeggiator step, which complete a packed byte.
  StepFirstByte,
  StepSecondByte,
  // The two texts are read together, then sent.
  Name,
  Category,
};

// What stands in the line when it is written: the target's content, or 0 for a target of nothing.
using LineTarget = std::variant<std::monostate, TextBox *, ComboBox *, ScrollBar *, CheckBox *,
                                Shadow *, std::int16_t *, std::string *>;

struct SoundLine {
  LineTarget target = {};
  LoadRule rule = LoadRule::Drop;
  // The parameter that is sent.
  int number = 0;
  // Added to what is sent.
  int offset = 0;
  // Written as 0, whatever the target holds.
  bool writtenAsZero = false;
  // The box of the third envelope panel, and the caption under which it shows the line's envelope.
  TextBox *box = nullptr;
  int envelope = 0;
  // The step of the arpeggiator.
  std::size_t step = 0;
};

// All lines but the header, from line 2 to line 344.
std::vector<SoundLine> SoundLines(Application &app);

inline constexpr std::string_view SoundHeader = "Tessoro soundfileformat v.1.5";
// The line whose end the question about the pitch modulation waits for, by its parameter.
inline constexpr int PitchModAmountNumber = 51;

} // namespace Tessoro
