#include "service/builtin/MicroQMessage.hpp"

#include "service/MessageLength.hpp"

#include <algorithm>
#include <array>
#include <optional>

namespace Tessoro {
namespace {

using Kind = MicroQMessageKind;

constexpr MicroQMessage Malformed{};

// All of a change of an edit buffer's parameter that stands before the parameter's address.
constexpr std::array<std::uint8_t, 6> ParameterChangeHead = {SysExStart, 0x3E, 0x10,
                                                             0x00,       0x20, 0x00};
constexpr std::size_t ParameterChangeLength = 10;

constexpr unsigned LastParameter = 383;

// The blocks of parameters are counted as the editor counts them: the third begins at 257.
std::optional<std::uint16_t> ParameterAt(std::uint8_t high, std::uint8_t low) {
  constexpr std::array<unsigned, 3> firstOfBlock = {0, 128, 257};
  if (high >= firstOfBlock.size()) {
    return std::nullopt;
  }
  const unsigned number = firstOfBlock.at(high) + low;
  if (number == 0 || number > LastParameter) {
    return std::nullopt;
  }
  return static_cast<std::uint16_t>(number);
}

MicroQMessage UnderstandSysEx(MidiBytes message) {
  const bool isWhole = message.size() > 1 && message.back() == SysExEnd;
  if (!isWhole || std::any_of(message.begin() + 1, message.end() - 1, IsStatus)) {
    return Malformed;
  }
  MicroQMessage understood;
  understood.kind = Kind::OtherSysEx;
  const bool isParameterChange =
      message.size() == ParameterChangeLength &&
      std::equal(ParameterChangeHead.begin(), ParameterChangeHead.end(), message.begin());
  if (!isParameterChange) {
    return understood;
  }
  const auto number = ParameterAt(message[6], message[7]);
  if (!number) {
    return Malformed;
  }
  understood.kind = Kind::SoundParameter;
  understood.number = *number;
  understood.value = message[8];
  return understood;
}

MicroQMessage UnderstandChannelMessage(MidiBytes message) {
  constexpr std::array<Kind, 7> kinds = {Kind::NoteOff,    Kind::NoteOn,  Kind::KeyPressure,
                                         Kind::Controller, Kind::Program, Kind::ChannelPressure,
                                         Kind::PitchBend};
  MicroQMessage understood;
  understood.kind = kinds.at((message[0] - 0x80U) / 16);
  understood.channel = message[0] & 0x0FU;
  switch (understood.kind) {
  case Kind::ChannelPressure:
    understood.value = message[1];
    break;
  case Kind::PitchBend:
    understood.value = static_cast<std::uint16_t>(message[1] | message[2] << 7);
    break;
  case Kind::Program:
    understood.number = message[1];
    break;
  default:
    understood.number = message[1];
    understood.value = message[2];
  }
  if (understood.kind == Kind::NoteOn && understood.value == 0) {
    understood.kind = Kind::NoteOff;
  }
  return understood;
}

} // namespace

MicroQMessage Understand(MidiBytes message) {
  if (message.empty()) {
    return Malformed;
  }
  const std::uint8_t status = message.front();
  if (status == SysExStart) {
    return UnderstandSysEx(message);
  }
  const bool isWhole = message.size() == ShortMessageLength(status);
  if (!isWhole || std::any_of(message.begin() + 1, message.end(), IsStatus)) {
    return Malformed;
  }
  if (status < SysExStart) {
    return UnderstandChannelMessage(message);
  }
  MicroQMessage understood;
  understood.kind = status >= FirstRealTime ? Kind::RealTime : Kind::SystemCommon;
  return understood;
}

} // namespace Tessoro
