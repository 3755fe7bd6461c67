// What a message means to a microQ.
#pragma once

#include "service/MidiDevices.hpp"

#include <cstdint>

namespace Tessoro {

enum class MicroQMessageKind : std::uint8_t {
  NoteOn,
  NoteOff,
  KeyPressure,
  Controller,
  Program,
  ChannelPressure,
  PitchBend,
  SoundParameter, // a change of one parameter in the edit buffer
  OtherSysEx,     // whole, but nothing that the editor sends
  SystemCommon,
  RealTime,
  Malformed,
};

// What the three last fields hold depends on the kind.
struct MicroQMessage {
  MicroQMessageKind kind = MicroQMessageKind::Malformed;
  std::uint8_t channel = 0; // 0 to 15
  // Note, controller, program, or the parameter's number: 1 to 383, without 256.
  std::uint16_t number = 0;
  // Velocity, pressure, value; a pitch bend has 14 bits, 8192 in the middle.
  std::uint16_t value = 0;
};

// A message that is not whole, that has a status byte among its data, or that addresses a parameter
// that no microQ has, is malformed.
MicroQMessage Understand(MidiBytes message);

} // namespace Tessoro
