#include "service/rtmidi/RtMidiInEnd.hpp"

#include "service/rtmidi/PortConnection.hpp"

#include <chrono>
#include <utility>

namespace Tessoro {
namespace {

using namespace std::chrono_literals;

constexpr auto LookInterval = 250ms;

} // namespace

RtMidiInEnd::RtMidiInEnd(std::shared_ptr<PortDirectory> ports, DeviceKey wanted,
                         InputListener whoHears)
    : directory(std::move(ports)), key(std::move(wanted)), listener(std::move(whoHears)) {}

RtMidiInEnd::~RtMidiInEnd() {
  {
    const std::lock_guard lock(mutex);
    isClosing = true;
  }
  closing.notify_one();
  if (watcher.joinable()) {
    watcher.join();
  }
}

MidiResult RtMidiInEnd::Open() {
  const MidiResult result = Connect();
  if (result == MidiResultCode::Success) {
    watcher = std::thread([this] { Watch(); });
  }
  return result;
}

MidiResult RtMidiInEnd::Connect() {
  const auto make = [this] {
    auto fresh = std::make_unique<MessageAssembler>(listener);
    auto made = std::make_unique<RtMidiIn>(directory->Api(), OwnClientName);
    errors.ListenTo(*made);
    made->ignoreTypes(false, false, false);
    made->setCallback(&RtMidiInEnd::Arrived, fresh.get());
    assembler = std::move(fresh);
    return made;
  };
  return ConnectByName(*directory, PortDirection::In, key, errors, make, OwnInPortName, port,
                       connectedName);
}

void RtMidiInEnd::Watch() {
  std::unique_lock lock(mutex);
  while (!closing.wait_for(lock, LookInterval, [this] { return isClosing; })) {
    Look();
  }
}

void RtMidiInEnd::Look() {
  if (port != nullptr && Contains(directory->Names(PortDirection::In), connectedName)) {
    return;
  }
  port.reset();
  Connect();
}

void RtMidiInEnd::Arrived(double /*time*/, std::vector<unsigned char> *bytes, void *feeds) {
  static_cast<MessageAssembler *>(feeds)->Feed(*bytes);
}

} // namespace Tessoro
