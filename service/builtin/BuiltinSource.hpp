// The devices that every machine has: the built-in microQ, and an IN device that stays silent, so
// that a machine without MIDI IN has a valid choice.
#pragma once

#include "service/MidiDevices.hpp"
#include "service/builtin/BuiltinMicroQ.hpp"

#include <memory>

namespace Tessoro {

std::unique_ptr<DeviceSource> MakeBuiltinSource(std::shared_ptr<BuiltinMicroQ> microQ);

} // namespace Tessoro
