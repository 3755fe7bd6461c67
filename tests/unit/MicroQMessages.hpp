// Messages of the synthesizer, byte by byte.
#pragma once

#include <cstdint>
#include <vector>

namespace Tessoro {

using Bytes = std::vector<std::uint8_t>;

// A change of the parameter with that address, to the edit buffer.
inline Bytes Change(std::uint8_t high, std::uint8_t low, std::uint8_t value) {
  return {0xF0, 0x3E, 0x10, 0x00, 0x20, 0x00, high, low, value, 0xF7};
}

} // namespace Tessoro
