#include "service/PacedWire.hpp"

#include <algorithm>

namespace Tessoro {
namespace {

using namespace std::chrono_literals;

// More than five minutes of cable for the editor: no hand drags a knob for that long.
constexpr std::size_t EditorQueueBytes = std::size_t{1} << 20;
constexpr std::size_t ThruQueueBytes = std::size_t{1} << 18;

// So much may still be on its way when the next message is handed over. One parameter change of
// lead keeps the cable busy while the thread wakes up; a played note gets some more, so that it
// goes at once and still is on the cable within 10 ms.
constexpr int EditorLeadBytes = 10;
constexpr int ThruLeadBytes = 24;

// A stream that fills the cable by itself leaves a gap for the editor after so many messages.
constexpr int MostThruInRow = 8;

// Shorter than a hand takes from the plug to the next knob.
constexpr auto LookInterval = 50ms;

double NanosecondsPerByte(double bytesPerSecond) {
  return bytesPerSecond == UnlimitedBytesPerSecond ? 0 : 1e9 / bytesPerSecond;
}

} // namespace

PacedWire::PacedWire(std::unique_ptr<WireEnd> wireEnd, double bytesPerSecond)
    : end(std::move(wireEnd)), longestMessage(end->LongestMessage()),
      timePerByte(NanosecondsPerByte(bytesPerSecond)), editorQueue(EditorQueueBytes),
      thruQueue(ThruQueueBytes), nextLook(Clock::now() + LookInterval) {
  thread = std::thread([this] { Run(); });
}

PacedWire::~PacedWire() {
  isClosing = true;
  doorbell.Ring();
  thread.join();
}

MidiResult PacedWire::Send(MidiBytes bytes) {
  if (!isPresent.load(std::memory_order_relaxed)) {
    return MidiResultCode::NoDevice;
  }
  if (bytes.size() > longestMessage) {
    return MidiResultCode::InvalidParameter;
  }
  // Taken before the thread gets this one, which it may refuse in its turn.
  const bool tellsOfRefusal =
      wasRefused.load(std::memory_order_relaxed) && wasRefused.exchange(false);
  if (!editorQueue.Put(bytes)) {
    return MidiResultCode::NotReady;
  }
  doorbell.RingIfAwaited();
  return tellsOfRefusal ? MidiResultCode::NotReady : MidiResultCode::Success;
}

void PacedWire::SendThru(MidiBytes bytes) {
  if (!isPresent || bytes.empty() || bytes.size() > longestMessage) {
    return;
  }
  {
    const std::lock_guard lock(thruPutMutex);
    if (!thruQueue.Put(bytes)) {
      return;
    }
  }
  doorbell.Ring();
}

void PacedWire::Run() {
  while (true) {
    const Clock::time_point now = Clock::now();
    if (now >= nextLook) {
      LookForPort(now);
    }
    if (!isPresent) {
      DropQueued();
      if (isClosing) {
        return;
      }
      RestUntil(nextLook, RestKind::ForAnyone);
      continue;
    }
    if (MessageRing *queue = NextQueue(now)) {
      HandOver(*queue, now);
    } else if (!thruQueue.Empty() || !editorQueue.Empty()) {
      // The cable is busy, and only a thru message could go earlier.
      RestUntil(NextTurn(), RestKind::ForUrgentOnly);
    } else if (isClosing) {
      return;
    } else {
      RestUntil(nextLook, RestKind::ForAnyone);
    }
  }
}

void PacedWire::LookForPort(Clock::time_point now) {
  isPresent = end->IsPresent();
  nextLook = now + LookInterval;
}

// None while the cable is busy, or where nothing waits.
MessageRing *PacedWire::NextQueue(Clock::time_point now) {
  const auto onTheWay = cableFreeAt - now;
  const bool editorMayGo = onTheWay <= timePerByte * EditorLeadBytes && !editorQueue.Empty();
  if (editorMayGo && thruInRow >= MostThruInRow) {
    return &editorQueue;
  }
  const bool isEditorsTurn = !editorQueue.Empty() && thruInRow >= MostThruInRow;
  if (!isEditorsTurn && onTheWay <= timePerByte * ThruLeadBytes && !thruQueue.Empty()) {
    return &thruQueue;
  }
  return editorMayGo ? &editorQueue : nullptr;
}

void PacedWire::HandOver(MessageRing &queue, Clock::time_point now) {
  queue.Take(message);
  thruInRow = &queue == &thruQueue ? std::min(thruInRow + 1, MostThruInRow) : 0;
  if (!end->Send(message)) {
    wasRefused = wasRefused || &queue == &editorQueue;
    nextLook = now;
  }
  const auto onCable = std::chrono::duration_cast<Clock::duration>(
      timePerByte * static_cast<double>(message.size()));
  cableFreeAt = std::max(cableFreeAt, now) + onCable;
}

void PacedWire::DropQueued() {
  while (editorQueue.Take(message) || thruQueue.Take(message)) {
  }
  cableFreeAt = {};
}

// When the next queued message may go, or the port is to be looked at.
PacedWire::Clock::time_point PacedWire::NextTurn() const {
  const bool isThrusTurn = !thruQueue.Empty() && (editorQueue.Empty() || thruInRow < MostThruInRow);
  const int lead = isThrusTurn ? ThruLeadBytes : EditorLeadBytes;
  const auto turn = cableFreeAt - std::chrono::duration_cast<Clock::duration>(timePerByte * lead);
  return std::min(turn, nextLook);
}

void PacedWire::RestUntil(Clock::time_point time, RestKind kind) {
  doorbell.RestUntil(time, kind, [this] { return !editorQueue.Empty(); });
}

} // namespace Tessoro
