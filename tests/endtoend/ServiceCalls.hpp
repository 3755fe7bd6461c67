// The calls of a MIDI service as the editor makes them, in short.
#pragma once

#include "midi/MidiService.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace Tessoro::Tests {

// The ten bytes of a parameter change.
std::vector<std::uint8_t> Change(int number, int value);

// Prepare, send and release: three operations, and one result for all.
MidiResult SendLong(MidiService &service, MidiHandle out, const std::vector<std::uint8_t> &bytes);

std::vector<std::string> OutNames(MidiService &service);
std::vector<std::string> InNames(MidiService &service);

// By names of these lists. A port that can't be opened is a failure of the test.
MidiHandle OpenOut(MidiService &service, const std::string &name);
// What comes in there passes on to the OUT port from now on.
MidiHandle OpenThru(MidiService &service, const std::string &name, MidiHandle out);

// -2 for a name that isn't among them.
std::int32_t IndexOf(const std::vector<std::string> &names, const std::string &name);

} // namespace Tessoro::Tests
