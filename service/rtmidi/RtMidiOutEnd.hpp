// A port of ALSA or JACK that messages go out to.
#pragma once

#include "service/PacedWire.hpp"
#include "service/rtmidi/LibraryErrors.hpp"
#include "service/rtmidi/PortDirectory.hpp"

#include <memory>
#include <string>

namespace Tessoro {

class RtMidiOutEnd final : public WireEnd {
public:
  RtMidiOutEnd(std::shared_ptr<PortDirectory> ports, DeviceKey wanted);

  // NoDevice if there is no such port now, NotReady if it cannot be connected.
  MidiResult Connect();

  bool Send(MidiBytes message) override;
  bool IsPresent() override;
  std::size_t LongestMessage() const override;

private:
  std::shared_ptr<PortDirectory> directory;
  DeviceKey key;
  LibraryErrors errors;
  std::shared_ptr<RtMidiOut> port; // none while the port is away
  std::string connectedName;
};

} // namespace Tessoro
