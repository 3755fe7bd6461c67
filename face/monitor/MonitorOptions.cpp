#include "face/monitor/MonitorOptions.hpp"

#include <string_view>

namespace Tessoro {

const char *const MonitorHelp =
    "Usage: tessoro-monitor [--text] [--alsa | --jack] [--help] [--version]\n"
    "\n"
    "Opens a MIDI IN port named \"microQ (monitor)\" and shows what a Waldorf microQ\n"
    "would make of each message that arrives there. Choose the port as the MIDI OUT\n"
    "port of any program.\n"
    "\n"
    "  --text   prints the messages here instead of showing a window\n"
    "  --alsa   opens the port at the ALSA sequencer and nowhere else\n"
    "  --jack   opens the port at the JACK server and nowhere else; without either\n"
    "           word, at the first of the two that answers\n"
    "\n"
    "Ctrl+C ends it.\n";

std::optional<MonitorOptions> ReadMonitorOptions(std::span<const char *const> arguments,
                                                 std::string &complaint) {
  MonitorOptions options;
  for (const std::string_view argument : arguments) {
    if (argument == "--text") {
      options.asText = true;
    } else if (argument == "--alsa") {
      options.tryJack = false;
    } else if (argument == "--jack") {
      options.tryAlsa = false;
    } else {
      complaint = "'" + std::string(argument) + "' is not understood; --help tells what is";
      return std::nullopt;
    }
  }
  if (!options.tryAlsa && !options.tryJack) {
    complaint = "the port can be at ALSA or at JACK, not at both";
    return std::nullopt;
  }
  return options;
}

} // namespace Tessoro
