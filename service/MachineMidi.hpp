// The MIDI service that the programs run with.
#pragma once

#include "midi/MidiService.hpp"
#include "service/PacedWire.hpp"
#include "service/builtin/BuiltinMicroQ.hpp"

#include <memory>

namespace Tessoro {

// The ports of ALSA, those of JACK, and behind them the built-in devices. The pace of the ports is
// lifted only to measure what lies above it.
std::unique_ptr<MidiService> MakeMachineMidiService(std::shared_ptr<BuiltinMicroQ> microQ,
                                                    double bytesPerSecond = CableBytesPerSecond);

} // namespace Tessoro
