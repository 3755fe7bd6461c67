// Makes whole MIDI messages of what comes in from an IN port.
#pragma once

#include "service/MidiDevices.hpp"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Tessoro {

// Platforms hand long System Exclusive messages over in pieces, with clock bytes between them. Here
// each message leaves in one piece: real-time messages at once, unfinished ones never.
class MessageAssembler {
public:
  explicit MessageAssembler(InputListener whoHears);

  void Feed(MidiBytes bytes);

private:
  void FeedByte(std::uint8_t byte);
  void Begin(std::uint8_t status);
  void Finish();

  InputListener listener;
  std::vector<std::uint8_t> message; // empty between two messages
  std::size_t expectedLength = 0;    // 0 while a System Exclusive message runs
};

} // namespace Tessoro
