// The pseudo-random generator, with values of the script's choice drawn first.
#pragma once

#include "sound/RandomNumbers.hpp"

#include <deque>

namespace Tessoro {

class QueuedRandomNumbers : public RandomNumbers {
public:
  // 0 <= number < 1.
  void Queue(double number);
  // The generator's own sequence, once no value is queued.
  float Next() override;

private:
  std::deque<float> queued;
  StandardRandomNumbers standard;
};

} // namespace Tessoro
