// What the result codes of the MIDI service mean, in words.
#pragma once

#include "midi/MidiService.hpp"

#include <string>

namespace Tessoro {

// Never empty: a code that nobody knows is told by its number.
std::string OutErrorText(MidiResult code);
std::string InErrorText(MidiResult code);

} // namespace Tessoro
