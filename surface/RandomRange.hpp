// Whole numbers by chance.
#pragma once

#include "sound/RandomNumbers.hpp"

#include <cstdint>

namespace Tessoro {

// A whole number from low to high, both included; the two ends have half the chance of the others.
// With a low of 0 or less, high is raised by its distance from 0, in the caller's variable too.
// Fails with 6 beyond the 16-bit range.
int RandomInRange(RandomNumbers &random, std::int16_t low, std::int16_t &high);

} // namespace Tessoro
