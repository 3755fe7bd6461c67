// The ports that ALSA or JACK has to offer, by name.
#pragma once

#include <RtMidi.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Tessoro {

// As seen from this program: messages go out to an Out port and come in from an In port.
enum class PortDirection : std::uint8_t { Out, In };

// The library knows ports by their place in a list that changes while one looks, and tells nothing
// when a port goes. So ports are looked up here, always by name. May be called from any thread.
class PortDirectory {
public:
  virtual ~PortDirectory() = default;

  // Whether the system is there now. Never starts it.
  virtual bool Answers() = 0;

  // All ports in the order in which the library counts them, our own among them. Empty where the
  // system is not there.
  virtual std::vector<std::string> Names(PortDirection direction) = 0;

  // Held by whoever has a port of the library, from before it is made until it is destroyed: while
  // the ports of a server that died are still held, the directory must not ask for a new one.
  virtual std::shared_ptr<void> Hold() = 0;

  // Run what opens, and what closes or destroys, a port of the library: one at a time.
  virtual void OpenPort(const std::function<void()> &open) = 0;
  virtual void ClosePort(const std::function<void()> &close) = 0;

  // Returns when a connection that was made just now carries messages, or after a moment where the
  // system doesn't get on.
  virtual void AwaitConnection() = 0;

  // The system, as the library calls it.
  virtual RtMidi::Api Api() const = 0;

  // In bytes; what is longer gets lost on the way.
  virtual std::size_t LongestMessage() const = 0;
};

std::shared_ptr<PortDirectory> MakeAlsaDirectory();

// One for the whole program, as long as anybody has it. Silences what the JACK library would write
// to the terminal. Never starts a server.
std::shared_ptr<PortDirectory> MakeJackDirectory();

} // namespace Tessoro
