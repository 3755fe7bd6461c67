// The bytes of a sound dump: one table in the order of the file.
#pragma once

#include "sound/SoundState.hpp"
#include "surface/Controls.hpp"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Tessoro {

class Application;

// What the import does with a byte. "Send" sends the parameter that stands at the byte's place.
enum class SyxRule : std::uint8_t {
  Ignore,
  // The control takes the byte, or the text of the byte; its handler sends.
  Plain,
  // The box takes the text of the byte - 64.
  Signed,
  Octave,
  // The bar takes the byte, then the row's check box is cleared.
  NoiseLevel,
  Send,
  // 0 is sent, whatever the byte is.
  SendZero,
  // The byte is sent; one that isn't 0 is told of in a box.
  SendAndTell,
  // The shadow takes the byte with the row's offset; the byte is sent.
  ShadowSend,
  // As Plain, then ShadowSend.
  PlainShadowSend,
  // Mono flag and unisono mode in one byte.
  Allocation,
  // The packed bytes of an arpeggiator step.
  StepFirstByte,
  StepSecondByte,
  NameCharacter,
  CategoryCharacter,
};

using SyxTarget = std::variant<std::monostate, TextBox *, ComboBox *, ScrollBar *, CheckBox *,
                               Shadow *, std::int16_t *, std::string *>;

struct SyxByte {
  SyxRule rule = SyxRule::Ignore;
  SyxTarget target = {};
  // Added to the byte for the shadow.
  int offset = 0;
  // The shadow of a row that has a box too.
  Shadow *shadow = nullptr;
  // The check box of the noise.
  CheckBox *mute = nullptr;
  // What the box says.
  std::string_view message = {};
  // The step of the arpeggiator.
  std::size_t step = 0;
};

// Where the table begins in the file.
inline constexpr int FirstSyxOffset = 8;

std::vector<SyxByte> SyxBytes(Application &app);

} // namespace Tessoro
