// A microQ that every machine has: it makes no sound, but takes what a real one would take.
#pragma once

#include "service/MidiDevices.hpp"
#include "service/builtin/MicroQMessage.hpp"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <vector>

namespace Tessoro {

// What a microQ knows after the messages that it got. -1 stands for what nobody told it yet.
struct MicroQState {
  static constexpr std::size_t Channels = 16;
  static constexpr std::size_t HighestParameter = 383;

  // By the number of the parameter, 1 to 383. A controller that stands for a parameter changes it
  // too, on whatever channel it comes.
  std::array<std::int16_t, HighestParameter + 1> parameters;
  // The last value of each controller of each channel.
  std::array<std::array<std::int16_t, 128>, Channels> controllers;
  // The velocity of each note that is held, 0 for the others.
  std::array<std::array<std::uint8_t, 128>, Channels> notes{};

  MicroQState();
};

struct ReceivedMessage {
  std::chrono::steady_clock::time_point time;
  MidiBytes bytes; // only valid during the call
  MicroQMessage meaning;
};

// Hears all that happens to a built-in microQ, in its order, on whatever thread it happens. The
// microQ waits meanwhile, so a listener is quick, and it never calls the microQ back.
class MicroQListener {
public:
  virtual ~MicroQListener() = default;

  virtual void DeviceOpened() {}
  virtual void DeviceClosed() {}
  virtual void MessageArrived(const ReceivedMessage &message) = 0;
};

// All operations may be called from any thread. The state outlives the closing of the device, as
// the edit buffer of a real microQ does.
class BuiltinMicroQ {
public:
  // The listener hears what comes from now on, until it is removed.
  void AddListener(MicroQListener &listener);
  // When this returns, the listener is not called any more.
  void RemoveListener(MicroQListener &listener);

  MicroQState State() const;

  void Open();
  void Close();
  void Receive(MidiBytes message);

private:
  void Apply(const MicroQMessage &message);

  mutable std::mutex mutex;
  MicroQState state;
  std::vector<MicroQListener *> listeners;
};

} // namespace Tessoro
