#include "face/monitor/MonitorPort.hpp"

#include <utility>

namespace Tessoro {
namespace {

// The port's name begins with it, so that lists needn't show both.
constexpr const char *ClientName = "microQ";

constexpr const char *Alsa = "the ALSA sequencer";
constexpr const char *Jack = "the JACK server";

} // namespace

MonitorPort OpenMonitorPort(const MonitorOptions &options, BuiltinMicroQ &microQ) {
  const auto openAt = [&microQ](MidiSystem system) {
    return OpenVirtualInPort(system, ClientName, MonitorPortName,
                             [&microQ](MidiBytes message) { microQ.Receive(message); });
  };
  if (options.tryAlsa)
    if (auto port = openAt(MidiSystem::Alsa))
      return {std::move(port), Alsa};
  if (options.tryJack)
    if (auto port = openAt(MidiSystem::Jack))
      return {std::move(port), Jack};
  if (options.tryAlsa && options.tryJack)
    return {nullptr, "neither the ALSA sequencer nor a JACK server"};
  return {nullptr, options.tryAlsa ? "no ALSA sequencer" : "no JACK server"};
}

} // namespace Tessoro
