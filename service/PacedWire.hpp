// An OUT port that is fed no faster than a MIDI cable carries.
#pragma once

#include "service/Doorbell.hpp"
#include "service/MessageRing.hpp"
#include "service/MidiDevices.hpp"

#include <atomic>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace Tessoro {

// A MIDI cable: 31,250 baud, ten bits a byte.
inline constexpr double CableBytesPerSecond = 3125;

// For ports that are to take everything at once.
inline constexpr double UnlimitedBytesPerSecond = 0;

// The port behind a paced wire. Only the wire's thread calls it. Its destructor lets what was
// handed over leave the port first.
class WireEnd {
public:
  virtual ~WireEnd() = default;

  // Hands one whole message over; false if the port refused it.
  virtual bool Send(MidiBytes message) = 0;

  // Whether the port is there. Asked some times a second; connects again when the port has come
  // back.
  virtual bool IsPresent() = 0;

  // In bytes.
  virtual std::size_t LongestMessage() const = 0;
};

// Sends return at once: messages stand in a queue, in the order of the calls, and a thread hands
// them over one by one. Thru messages have a queue of their own, which goes before the other
// between any two messages.
class PacedWire final : public OutputEnd {
public:
  PacedWire(std::unique_ptr<WireEnd> wireEnd, double bytesPerSecond);
  ~PacedWire() override;
  PacedWire(const PacedWire &) = delete;
  PacedWire &operator=(const PacedWire &) = delete;

  // NoDevice while the port is away, NotReady while the queue is full, InvalidParameter for a
  // message that the port can never take. NotReady also once after the port refused a message of
  // these: that one is lost, and what is sent now still goes.
  MidiResult Send(MidiBytes bytes) override;
  void SendThru(MidiBytes bytes) override;

private:
  using Clock = Doorbell::Clock;

  void Run();
  void LookForPort(Clock::time_point now);
  MessageRing *NextQueue(Clock::time_point now);
  void HandOver(MessageRing &queue, Clock::time_point now);
  void DropQueued();
  void RestUntil(Clock::time_point time, RestKind kind);
  Clock::time_point NextTurn() const;

  std::unique_ptr<WireEnd> end;
  const std::size_t longestMessage;
  const std::chrono::duration<double, std::nano> timePerByte;

  MessageRing editorQueue;
  MessageRing thruQueue;
  std::mutex thruPutMutex; // several IN devices may feed one wire

  std::atomic<bool> isPresent{true};
  std::atomic<bool> wasRefused{false};
  std::atomic<bool> isClosing{false};

  Doorbell doorbell;

  // Only for the thread.
  std::vector<std::uint8_t> message;
  Clock::time_point cableFreeAt;
  Clock::time_point nextLook;
  int thruInRow = 0;

  std::thread thread;
};

} // namespace Tessoro
