#include "service/builtin/MessageInbox.hpp"

#include <algorithm>
#include <utility>

namespace Tessoro {

MidiBytes LoggedMessage::KeptBytes() const {
  return MidiBytes(firstBytes).first(std::min(length, MostBytes));
}

void MessageInbox::MessageArrived(const ReceivedMessage &message) {
  LoggedMessage logged;
  logged.time = message.time - begin;
  logged.length = message.bytes.size();
  logged.meaning = message.meaning;
  std::copy_n(message.bytes.begin(), std::min(logged.length, LoggedMessage::MostBytes),
              logged.firstBytes.begin());
  const std::lock_guard lock(mutex);
  messages.push_back(logged);
  ++total;
  if (messages.size() > limit) {
    messages.pop_front();
    ++skipped;
  }
  if (std::exchange(ringsAtNext, false)) {
    bell();
  }
}

MessageInbox::News MessageInbox::Take() {
  std::deque<LoggedMessage> taken;
  News news;
  {
    const std::lock_guard lock(mutex);
    taken.swap(messages);
    news.skipped = std::exchange(skipped, 0);
  }
  news.messages.assign(taken.begin(), taken.end());
  return news;
}

std::uint64_t MessageInbox::Total() const {
  const std::lock_guard lock(mutex);
  return total;
}

void MessageInbox::SetBell(std::function<void()> ring) {
  const std::lock_guard lock(mutex);
  bell = std::move(ring);
  ringsAtNext = false;
}

bool MessageInbox::RingAtNext(std::uint64_t seenTotal) {
  const std::lock_guard lock(mutex);
  ringsAtNext = total == seenTotal && bell != nullptr;
  return ringsAtNext;
}

} // namespace Tessoro
