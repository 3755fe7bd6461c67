#include "service/builtin/BuiltinMicroQ.hpp"

#include "sound/Catalogue.hpp"

#include <algorithm>

namespace Tessoro {
namespace {

constexpr std::uint16_t AllSoundOff = 120;
constexpr std::uint16_t AllNotesOff = 123; // and all above it, which change the mode

} // namespace

MicroQState::MicroQState() {
  parameters.fill(-1);
  for (auto &each : controllers) {
    each.fill(-1);
  }
}

void BuiltinMicroQ::AddListener(MicroQListener &listener) {
  const std::lock_guard lock(mutex);
  listeners.push_back(&listener);
}

void BuiltinMicroQ::RemoveListener(MicroQListener &listener) {
  const std::lock_guard lock(mutex);
  listeners.erase(std::remove(listeners.begin(), listeners.end(), &listener), listeners.end());
}

MicroQState BuiltinMicroQ::State() const {
  const std::lock_guard lock(mutex);
  return state;
}

void BuiltinMicroQ::Open() {
  const std::lock_guard lock(mutex);
  for (MicroQListener *listener : listeners) {
    listener->DeviceOpened();
  }
}

void BuiltinMicroQ::Close() {
  const std::lock_guard lock(mutex);
  for (MicroQListener *listener : listeners) {
    listener->DeviceClosed();
  }
}

void BuiltinMicroQ::Receive(MidiBytes message) {
  const std::lock_guard lock(mutex);
  const ReceivedMessage received{std::chrono::steady_clock::now(), message, Understand(message)};
  Apply(received.meaning);
  for (MicroQListener *listener : listeners) {
    listener->MessageArrived(received);
  }
}

void BuiltinMicroQ::Apply(const MicroQMessage &message) {
  switch (message.kind) {
  case MicroQMessageKind::SoundParameter:
    state.parameters.at(message.number) = static_cast<std::int16_t>(message.value);
    break;
  case MicroQMessageKind::NoteOn:
  case MicroQMessageKind::NoteOff: {
    const bool isOn = message.kind == MicroQMessageKind::NoteOn;
    state.notes.at(message.channel).at(message.number) =
        static_cast<std::uint8_t>(isOn ? message.value : 0);
    break;
  }
  case MicroQMessageKind::Controller:
    state.controllers.at(message.channel).at(message.number) =
        static_cast<std::int16_t>(message.value);
    if (const ControllerRow *row = FindController(message.number);
        row != nullptr && row->number != 0) {
      state.parameters.at(static_cast<std::size_t>(row->number)) =
          static_cast<std::int16_t>(message.value);
    }
    if (message.number == AllSoundOff || message.number >= AllNotesOff) {
      state.notes.at(message.channel).fill(0);
    }
    break;
  default:
    break;
  }
}

} // namespace Tessoro
