// The MIDI ports of ALSA's sequencer and of a JACK server.
#pragma once

#include "service/MidiDevices.hpp"
#include "service/PacedWire.hpp"
#include "service/rtmidi/PortDirectory.hpp"

#include <memory>

namespace Tessoro {

// OUT ports are fed at the given pace.
std::unique_ptr<DeviceSource> MakeRtMidiSource(std::shared_ptr<PortDirectory> directory,
                                               double bytesPerSecond = CableBytesPerSecond);

} // namespace Tessoro
