#include "sound/SoundText.hpp"

#include "sound/Module1.hpp"

namespace Tessoro {

char SoundCharacter(char character) {
  constexpr unsigned char firstUnknown = 128;
  return static_cast<unsigned char>(character) >= firstUnknown ? '?' : character;
}

void SendSoundText(Module1 &globals, const SoundTextPlace &place, std::string_view text,
                   std::string &global) {
  std::string padded(text.substr(0, place.length));
  padded.resize(place.length, ' ');
  global.clear();
  int number = place.base;
  for (const char character : padded) {
    const char sent = SoundCharacter(character);
    globals.SendSoundParam(++number, static_cast<std::int16_t>(sent));
    global += sent;
  }
}

} // namespace Tessoro
