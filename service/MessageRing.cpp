#include "service/MessageRing.hpp"

#include <algorithm>
#include <cstring>

namespace Tessoro {
namespace {

constexpr std::size_t LengthBytes = sizeof(std::uint32_t);

// Stands for a length where no message follows before the end of the block.
constexpr std::uint32_t GoOnAtBegin = 0xFFFFFFFF;

// Entries fill whole lengths, so that a length always fits where an entry may begin.
std::size_t EntryBytes(std::size_t messageBytes) {
  return LengthBytes + (messageBytes + LengthBytes - 1) / LengthBytes * LengthBytes;
}

} // namespace

// All bytes are touched now, so that no message has to wait until the system brings a page in.
MessageRing::MessageRing(std::size_t bytesOfRoom)
    : room(bytesOfRoom), bytes(std::make_unique<std::uint8_t[]>(bytesOfRoom)) {}

bool MessageRing::Put(MidiBytes message) {
  std::size_t position = putPosition.load(std::memory_order_relaxed);
  const std::size_t entry = EntryBytes(message.size());
  const std::size_t beforeEnd = room - PlaceOf(position);
  const std::size_t skipped = entry <= beforeEnd ? 0 : beforeEnd;
  if (!HasRoomFor(skipped + entry, position)) {
    return false;
  }
  if (skipped > 0) {
    SetLengthAt(PlaceOf(position), GoOnAtBegin);
    position += skipped;
  }
  const std::size_t place = PlaceOf(position);
  SetLengthAt(place, static_cast<std::uint32_t>(message.size()));
  std::copy(message.begin(), message.end(), bytes.get() + place + LengthBytes);
  putPosition.store(position + entry, std::memory_order_release);
  return true;
}

bool MessageRing::Take(std::vector<std::uint8_t> &message) {
  std::size_t position = takePosition.load(std::memory_order_relaxed);
  if (position == putPosition.load(std::memory_order_acquire)) {
    return false;
  }
  if (LengthAt(PlaceOf(position)) == GoOnAtBegin) {
    position += room - PlaceOf(position);
  }
  const std::size_t place = PlaceOf(position);
  const std::uint32_t length = LengthAt(place);
  const std::uint8_t *begin = bytes.get() + place + LengthBytes;
  message.assign(begin, begin + length);
  takePosition.store(position + EntryBytes(length), std::memory_order_release);
  return true;
}

bool MessageRing::Empty() const {
  return putPosition.load(std::memory_order_acquire) ==
         takePosition.load(std::memory_order_acquire);
}

bool MessageRing::HasRoomFor(std::size_t count, std::size_t position) {
  if (count <= room - (position - knownTakePosition)) {
    return true;
  }
  knownTakePosition = takePosition.load(std::memory_order_acquire);
  return count <= room - (position - knownTakePosition);
}

std::uint32_t MessageRing::LengthAt(std::size_t place) const {
  std::uint32_t length = 0;
  std::memcpy(&length, bytes.get() + place, LengthBytes);
  return length;
}

void MessageRing::SetLengthAt(std::size_t place, std::uint32_t length) {
  std::memcpy(bytes.get() + place, &length, LengthBytes);
}

} // namespace Tessoro
