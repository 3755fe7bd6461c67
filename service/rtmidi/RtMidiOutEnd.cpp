#include "service/rtmidi/RtMidiOutEnd.hpp"

#include "service/rtmidi/PortConnection.hpp"

#include <utility>

namespace Tessoro {

RtMidiOutEnd::RtMidiOutEnd(std::shared_ptr<PortDirectory> ports, DeviceKey wanted)
    : directory(std::move(ports)), key(std::move(wanted)) {}

MidiResult RtMidiOutEnd::Connect() {
  const auto make = [this] {
    auto made = std::make_unique<RtMidiOut>(directory->Api(), OwnClientName);
    errors.ListenTo(*made);
    return made;
  };
  return ConnectByName(*directory, PortDirection::Out, key, errors, make, OwnOutPortName, port,
                       connectedName);
}

bool RtMidiOutEnd::Send(MidiBytes message) {
  if (port == nullptr) {
    return false;
  }
  try {
    port->sendMessage(message.data(), message.size());
  } catch (const std::exception &) {
    return false;
  }
  return !errors.TakeAny();
}

bool RtMidiOutEnd::IsPresent() {
  if (port != nullptr && Contains(directory->Names(PortDirection::Out), connectedName)) {
    return true;
  }
  port.reset();
  return Connect() == MidiResultCode::Success;
}

std::size_t RtMidiOutEnd::LongestMessage() const { return directory->LongestMessage(); }

} // namespace Tessoro
