// The pseudo-random generator.
#pragma once

#include <cstdint>

namespace Tessoro {

class RandomNumbers {
public:
  virtual ~RandomNumbers() = default;

  // A new number at each call, 0 <= number < 1.
  virtual float Next() = 0;
};

// Never seeded: each run of the program draws the same numbers.
class StandardRandomNumbers : public RandomNumbers {
public:
  float Next() override;

private:
  std::uint32_t state = 0x2545F491;
};

} // namespace Tessoro
