// The port that the monitor listens at.
#pragma once

#include "face/monitor/MonitorOptions.hpp"
#include "service/builtin/BuiltinMicroQ.hpp"
#include "service/rtmidi/VirtualInPort.hpp"

#include <memory>
#include <string>

namespace Tessoro {

struct MonitorPort {
  std::unique_ptr<VirtualInPort> port; // null where nobody answers
  std::string system;                  // "the ALSA sequencer", or whom else it is at or asked for
};

inline constexpr const char *MonitorPortName = "microQ (monitor)";

// What arrives goes to the microQ, which outlives the port.
MonitorPort OpenMonitorPort(const MonitorOptions &options, BuiltinMicroQ &microQ);

} // namespace Tessoro
