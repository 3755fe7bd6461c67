// Software instruments, as the tests plug and play them.
#pragma once

#include "tests/endtoend/Waiting.hpp"

#include <RtMidi.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace Tessoro::Tests {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Bytes = std::vector<std::uint8_t>;

struct Arrival {
  Clock::time_point time;
  Bytes bytes;
};

// What the editor sends on the first channel for a parameter, a controller and a note. Parameters
// have the editor's numbers, which leave 256 out.
inline Bytes Parameter(int number, int value) {
  const int address = number > 256 ? number - 1 : number;
  Bytes message{0xF0, 0x3E, 0x10, 0x00, 0x20, 0x00};
  for (const int last : {address / 128, address % 128, value, 0xF7})
    message.push_back(static_cast<std::uint8_t>(last));
  return message;
}

inline Bytes Controller(int number, int value) {
  return {0xB0, static_cast<std::uint8_t>(number), static_cast<std::uint8_t>(value)};
}

inline Bytes Note(int number, int velocity) {
  return {0x90, static_cast<std::uint8_t>(number), static_cast<std::uint8_t>(velocity)};
}

// JACK's library tells its clients of each change a few cycles later, and crashes now and then if a
// client forgets its port meanwhile.
inline void LetTheNewsPass() { std::this_thread::sleep_for(60ms); }

// An instrument that writes down what it gets.
class Synth {
public:
  explicit Synth(const std::string &client, RtMidi::Api system = RtMidi::UNIX_JACK)
      : port(system, client) {
    port.ignoreTypes(false, false, false);
    port.setCallback(&Synth::Take, this);
    port.openVirtualPort("in");
  }

  // Listens to what another client's port gives.
  Synth(const std::string &client, const std::string &source) : port(RtMidi::UNIX_JACK, client) {
    port.ignoreTypes(false, false, false);
    port.setCallback(&Synth::Take, this);
    unsigned number = 0;
    while (number < port.getPortCount() && port.getPortName(number) != source) {
      ++number;
    }
    port.openPort(number, "in");
  }

  ~Synth() { LetTheNewsPass(); }
  Synth(const Synth &) = delete;
  Synth &operator=(const Synth &) = delete;

  std::vector<Arrival> Arrivals() {
    const std::lock_guard lock(mutex);
    return arrivals;
  }

  // What has come since it was last taken.
  std::vector<Arrival> TakeArrivals() {
    const std::lock_guard lock(mutex);
    return std::exchange(arrivals, {});
  }

  std::vector<Bytes> Messages() {
    std::vector<Bytes> messages;
    for (const Arrival &each : Arrivals()) {
      messages.push_back(each.bytes);
    }
    return messages;
  }

  std::size_t Count() {
    const std::lock_guard lock(mutex);
    return arrivals.size();
  }

private:
  static void Take(double /*time*/, Bytes *bytes, void *self) {
    auto *synth = static_cast<Synth *>(self);
    const std::lock_guard lock(synth->mutex);
    synth->arrivals.push_back({Clock::now(), *bytes});
  }

  std::mutex mutex;
  std::vector<Arrival> arrivals;
  RtMidiIn port;
};

// A keyboard that the test plays.
class Keyboard {
public:
  explicit Keyboard(const std::string &client, RtMidi::Api system = RtMidi::UNIX_JACK)
      : port(system, client) {
    port.openVirtualPort("out");
  }

  ~Keyboard() { LetTheNewsPass(); }
  Keyboard(const Keyboard &) = delete;
  Keyboard &operator=(const Keyboard &) = delete;

  void Play(const Bytes &bytes) { port.sendMessage(&bytes); }

private:
  RtMidiOut port;
};

} // namespace Tessoro::Tests
