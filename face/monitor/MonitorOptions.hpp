// What the monitor was asked to do.
#pragma once

#include <optional>
#include <span>
#include <string>

namespace Tessoro {

struct MonitorOptions {
  bool asText = false;
  bool tryAlsa = true;
  bool tryJack = true;
};

extern const char *const MonitorHelp;

// Null, with a complaint, for what the monitor doesn't understand. --help and --version are not
// for this to answer.
std::optional<MonitorOptions> ReadMonitorOptions(std::span<const char *const> arguments,
                                                 std::string &complaint);

} // namespace Tessoro
