// A port of ALSA or JACK that messages come in from.
#pragma once

#include "service/MessageAssembler.hpp"
#include "service/MidiDevices.hpp"
#include "service/rtmidi/LibraryErrors.hpp"
#include "service/rtmidi/PortDirectory.hpp"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace Tessoro {

// A thread of its own looks whether the port is still there and connects again when it comes back.
class RtMidiInEnd final : public InputEnd {
public:
  RtMidiInEnd(std::shared_ptr<PortDirectory> ports, DeviceKey wanted, InputListener whoHears);
  ~RtMidiInEnd() override;
  RtMidiInEnd(const RtMidiInEnd &) = delete;
  RtMidiInEnd &operator=(const RtMidiInEnd &) = delete;

  // NoDevice if there is no such port now, NotReady if it cannot be connected. Called once.
  MidiResult Open();

private:
  MidiResult Connect();
  void Watch();
  void Look();
  static void Arrived(double time, std::vector<unsigned char> *bytes, void *feeds);

  std::shared_ptr<PortDirectory> directory;
  DeviceKey key;
  InputListener listener;
  LibraryErrors errors;
  std::unique_ptr<MessageAssembler> assembler; // one for each connection: the rest of a message
  std::shared_ptr<RtMidiIn> port;              // that was cut off belongs to no other
  std::string connectedName;

  std::mutex mutex;
  std::condition_variable closing;
  bool isClosing = false;
  std::thread watcher;
};

} // namespace Tessoro
