// The MIDI service that this build has.
#pragma once

#include "midi/MidiService.hpp"

#include <memory>

namespace Tessoro {

// The ports of this machine and the built-in devices, of which the microQ has a window that comes
// up by itself. Needs a QApplication, and goes before it. A build without MIDI has no devices at
// all.
std::unique_ptr<MidiService> MakeMidiService();

// The same on every machine: the built-in devices alone, without a window.
std::unique_ptr<MidiService> MakeBuiltinMidiService();

// The built-in devices alone, and the window that the microQ has in `MakeMidiService`.
std::unique_ptr<MidiService> MakeBuiltinMidiServiceWithWindow();

} // namespace Tessoro
