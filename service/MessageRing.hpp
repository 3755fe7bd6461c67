// A queue of whole MIDI messages between one thread that puts and one that takes.
#pragma once

#include "service/MidiDevices.hpp"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace Tessoro {

// Messages stand in one block of bytes, each behind its length, so putting costs a copy and no
// allocation whatever the message's size. Neither side ever waits for the other.
class MessageRing {
public:
  // The room is a power of two, and at least twice the longest message.
  explicit MessageRing(std::size_t bytesOfRoom);

  // False, and nothing is put, where there is no room.
  bool Put(MidiBytes message);

  // False if there is none. The bytes replace what the vector holds.
  bool Take(std::vector<std::uint8_t> &message);

  bool Empty() const;

private:
  std::size_t PlaceOf(std::size_t position) const { return position & (room - 1); }
  bool HasRoomFor(std::size_t count, std::size_t position);
  std::uint32_t LengthAt(std::size_t place) const;
  void SetLengthAt(std::size_t place, std::uint32_t length);

  std::size_t room;
  std::unique_ptr<std::uint8_t[]> bytes;

  // Positions only grow; their place in the block is the remainder. Each side keeps to a cache line
  // of its own.
  alignas(64) std::atomic<std::size_t> putPosition{0};
  std::size_t knownTakePosition = 0;
  alignas(64) std::atomic<std::size_t> takePosition{0};
};

} // namespace Tessoro
