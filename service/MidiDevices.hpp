// What the MIDI service is built of: sources of devices, and the ends of the devices that are open.
#pragma once

#include "midi/MidiService.hpp"

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace Tessoro {

using MidiBytes = std::span<const std::uint8_t>;

// What finds a device again when the list has changed meanwhile. Texts are the platform's, UTF-8.
struct DeviceKey {
  // The whole name that the platform gave when the list was read, with all numbers in it.
  std::string exactName;
  // The whole names of the other devices that were called the same, but for numbers, at that time.
  std::vector<std::string> twins;
};

struct OutDevice {
  DeviceKey key;
  MIDIOUTCAPS capabilities;
};

struct InDevice {
  DeviceKey key;
  MIDIINCAPS capabilities;
};

// An open OUT device. Closing is the destructor, which first sends what was accepted.
class OutputEnd {
public:
  virtual ~OutputEnd() = default;

  // Takes one whole message of the editor, and all of them in their order. Never waits for a cable.
  // Called by one thread only.
  virtual MidiResult Send(MidiBytes message) = 0;

  // Takes one whole message of a thru connection, from any thread. What cannot be taken is dropped.
  virtual void SendThru(MidiBytes message) = 0;
};

// An open IN device. Closing is the destructor: behind it, nothing arrives any more.
class InputEnd {
public:
  virtual ~InputEnd() = default;
};

// Hears each whole message of an IN device, on a thread of the device.
using InputListener = std::function<void(MidiBytes message)>;

// One of the ways to devices that a machine may have. Where there is none, its lists are empty.
class DeviceSource {
public:
  virtual ~DeviceSource() = default;

  // The devices that are there now.
  virtual std::vector<OutDevice> OutDevices() = 0;
  virtual std::vector<InDevice> InDevices() = 0;

  // The end is stored only on success.
  virtual MidiResult OpenOut(const DeviceKey &key, std::unique_ptr<OutputEnd> &end) = 0;
  virtual MidiResult OpenIn(const DeviceKey &key, InputListener listener,
                            std::unique_ptr<InputEnd> &end) = 0;
};

} // namespace Tessoro
