// The messages of a built-in microQ, kept until somebody has time to look at them.
#pragma once

#include "service/builtin/BuiltinMicroQ.hpp"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <span>
#include <vector>

namespace Tessoro {

struct LoggedMessage {
  // Of a longer message the beginning is kept, so that any number of dumps takes little room.
  static constexpr std::size_t MostBytes = 32;

  std::chrono::steady_clock::duration time{}; // since the inbox was made
  std::array<std::uint8_t, MostBytes> firstBytes{};
  std::size_t length = 0; // of the whole message
  MicroQMessage meaning;

  MidiBytes KeptBytes() const;
};

// Takes no memory beyond its limit, however long nobody looks: then the oldest go first. All
// operations may be called from any thread.
class MessageInbox final : public MicroQListener {
public:
  explicit MessageInbox(std::size_t mostMessages) : limit(mostMessages) {}

  void MessageArrived(const ReceivedMessage &message) override;

  struct News {
    std::vector<LoggedMessage> messages; // in the order in which they came
    std::uint64_t skipped = 0;           // that went before these, unseen
  };
  // All that came since this was last asked.
  News Take();

  // How many messages ever came.
  std::uint64_t Total() const;

  // Who is to be told of messages, on the thread on which they come, and quickly. Nobody hears of
  // what comes after this returns but the new one.
  void SetBell(std::function<void()> ring);
  // The bell rings once, with the next message. False, and it won't ring, if more than those that
  // the caller has seen are here already.
  bool RingAtNext(std::uint64_t seenTotal);

private:
  const std::size_t limit;
  const std::chrono::steady_clock::time_point begin = std::chrono::steady_clock::now();
  mutable std::mutex mutex;
  std::deque<LoggedMessage> messages;
  std::uint64_t skipped = 0;
  std::uint64_t total = 0;
  std::function<void()> bell;
  bool ringsAtNext = false;
};

} // namespace Tessoro
