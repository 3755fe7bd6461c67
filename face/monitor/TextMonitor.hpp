// The messages on a terminal.
#pragma once

#include "face/monitor/EndSignals.hpp"
#include "face/monitor/MonitorPort.hpp"
#include "service/builtin/MessageInbox.hpp"

namespace Tessoro {

// So many wait for a slow terminal before the oldest are left out, and that is said.
inline constexpr std::size_t MostWaitingMessages = 1'000'000;

// Prints until a signal comes, which is 0 as an exit status, or until the port has gone, which
// is 1.
int RunTextMonitor(MonitorPort &port, MessageInbox &inbox, const EndSignals &endSignals);

} // namespace Tessoro
