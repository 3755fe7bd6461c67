#include "service/MessageAssembler.hpp"

#include "service/MessageLength.hpp"

#include <utility>

namespace Tessoro {
namespace {

// Room from the start, because the bytes come in on threads that should not allocate.
constexpr std::size_t UsualLongestMessage = 4096;

} // namespace

MessageAssembler::MessageAssembler(InputListener whoHears) : listener(std::move(whoHears)) {
  message.reserve(UsualLongestMessage);
}

void MessageAssembler::Feed(MidiBytes bytes) {
  for (const std::uint8_t byte : bytes) {
    FeedByte(byte);
  }
}

void MessageAssembler::FeedByte(std::uint8_t byte) {
  if (byte >= FirstRealTime) {
    listener(MidiBytes(&byte, 1));
    return;
  }
  const bool isInSysEx = !message.empty() && message.front() == SysExStart;
  if (IsStatus(byte) && !(isInSysEx && byte == SysExEnd)) {
    Begin(byte);
  } else if (!message.empty()) {
    message.push_back(byte);
  }
  const bool isWhole = isInSysEx ? byte == SysExEnd : message.size() == expectedLength;
  if (!message.empty() && isWhole) {
    Finish();
  }
}

// A new status byte ends what was not finished.
void MessageAssembler::Begin(std::uint8_t status) {
  message.clear();
  expectedLength = ShortMessageLength(status);
  if (expectedLength > 0 || status == SysExStart) {
    message.push_back(status);
  }
}

void MessageAssembler::Finish() {
  listener(message);
  message.clear();
}

} // namespace Tessoro
