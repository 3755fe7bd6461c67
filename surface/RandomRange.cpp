#include "surface/RandomRange.hpp"

#include "surface/Conversions.hpp"

#include <cmath>
#include <cstdlib>

namespace Tessoro {

int RandomInRange(RandomNumbers &random, std::int16_t low, std::int16_t &high) {
  // The product is rounded to single precision before the rest is added.
  const float drawn = random.Next();
  if (low > 0)
    return static_cast<int>(std::floor(double{drawn * static_cast<float>(high - low)} + 1.5)) +
           low - 1;
  high = RoundInteger(high + std::abs(int{low}));
  return static_cast<int>(std::floor(double{drawn * static_cast<float>(high)} + 1.5)) -
         std::abs(int{low}) - 1;
}

} // namespace Tessoro
