// A MIDI IN port of our own that other programs can connect to.
#pragma once

#include "service/MidiDevices.hpp"

#include <cstdint>
#include <memory>
#include <string>

namespace Tessoro {

enum class MidiSystem : std::uint8_t { Alsa, Jack };

// Closing is the destructor: behind it, nothing arrives any more.
class VirtualInPort {
public:
  virtual ~VirtualInPort() = default;

  // False once the system that the port was opened at has gone.
  virtual bool IsThere() = 0;
};

// Null where the system doesn't answer, or grants no port. Names are the platform's, UTF-8. What
// arrives is heard as the library hands it over, also if it is no whole message.
std::unique_ptr<VirtualInPort> OpenVirtualInPort(MidiSystem system, const std::string &clientName,
                                                 const std::string &portName,
                                                 InputListener listener);

} // namespace Tessoro
