// The sound's name and category on their way to the synthesizer.
#pragma once

#include <string>
#include <string_view>

namespace Tessoro {

class Module1;

// Where a text stands: its length, and the number before that of its first character.
struct SoundTextPlace {
  std::size_t length;
  int base;
};

inline constexpr SoundTextPlace SoundNameText{16, 363};
inline constexpr SoundTextPlace SoundCategoryText{4, 379};

// A code of 128 or more is none of the synthesizer's and becomes a question mark.
char SoundCharacter(char character);

// Pads the text with blanks or cuts it to its length, sends each character, and gathers what was
// sent in `global`.
void SendSoundText(Module1 &globals, const SoundTextPlace &place, std::string_view text,
                   std::string &global);

} // namespace Tessoro
