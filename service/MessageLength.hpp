// How long a MIDI message is, as its first byte tells.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace Tessoro {

inline constexpr std::uint8_t SysExStart = 0xF0;
inline constexpr std::uint8_t SysExEnd = 0xF7;
inline constexpr std::uint8_t FirstRealTime = 0xF8;

constexpr bool IsStatus(std::uint8_t byte) { return byte >= 0x80; }

// 1 to 3 bytes; 0 for what begins no short message: a data byte and the two ends of a System
// Exclusive message.
constexpr std::size_t ShortMessageLength(std::uint8_t status) {
  constexpr std::array<std::uint8_t, 8> byKind = {3, 3, 3, 3, 2, 2, 3, 0};
  constexpr std::array<std::uint8_t, 16> bySystemKind = {0, 2, 3, 2, 1, 1, 1, 0,
                                                         1, 1, 1, 1, 1, 1, 1, 1};
  if (!IsStatus(status)) {
    return 0;
  }
  return status < SysExStart ? byKind.at((status - 0x80U) / 16) : bySystemKind.at(status & 0x0FU);
}

} // namespace Tessoro
