#include "sound/RandomNumbers.hpp"

namespace Tessoro {

float StandardRandomNumbers::Next() {
  state ^= state << 13;
  state ^= state >> 17;
  state ^= state << 5;
  constexpr int usedBits = 24; // as many as a single-precision number holds exactly
  return static_cast<float>(state >> (32 - usedBits)) / static_cast<float>(1U << usedBits);
}

} // namespace Tessoro
