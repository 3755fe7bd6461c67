// Connecting to a port by its name, with a library that only takes places in a list.
#pragma once

#include "service/PortNames.hpp"
#include "service/rtmidi/LibraryErrors.hpp"
#include "service/rtmidi/PortDirectory.hpp"

#include <algorithm>
#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Tessoro {

inline bool Contains(const std::vector<std::string> &names, const std::string &name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

// `make` gives a fresh RtMidiIn or RtMidiOut. It and its name are stored only on success, and it
// must not outlive the directory. If the list moved while the port was opened, the place may have
// been another port's, so that is undone.
template <typename Port, typename Make>
MidiResult ConnectByName(PortDirectory &directory, PortDirection direction, const DeviceKey &key,
                         LibraryErrors &errors, const Make &make, const char *ownPortName,
                         std::shared_ptr<Port> &port, std::string &connectedName) {
  constexpr int tries = 3;
  try {
    for (int i = 0; i < tries; ++i) {
      const std::vector<std::string> names = directory.Names(direction);
      const std::optional<std::size_t> place = FindPort(names, key);
      if (!place) {
        return MidiResultCode::NoDevice;
      }
      std::shared_ptr<void> hold = directory.Hold();
      std::shared_ptr<Port> candidate(make().release(), [hold, &directory](Port *made) {
        directory.ClosePort([made] { made->closePort(); });
        directory.ClosePort([made] { delete made; });
      });
      // A client whose server died meanwhile has no ports, and must not be asked to open one.
      if (candidate->getPortCount() <= *place) {
        continue;
      }
      errors.TakeAny();
      directory.OpenPort([&] { candidate->openPort(static_cast<unsigned>(*place), ownPortName); });
      if (errors.TakeAny() || !candidate->isPortOpen()) {
        return MidiResultCode::NotReady;
      }
      directory.AwaitConnection();
      if (directory.Names(direction) == names) {
        port = std::move(candidate);
        connectedName = names[*place];
        return MidiResultCode::Success;
      }
    }
  } catch (const std::exception &) {
    return MidiResultCode::NotReady;
  }
  return MidiResultCode::NotReady;
}

} // namespace Tessoro
