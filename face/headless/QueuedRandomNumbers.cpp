#include "face/headless/QueuedRandomNumbers.hpp"

#include <algorithm>
#include <cmath>

namespace Tessoro {

void QueuedRandomNumbers::Queue(double number) {
  // A number just below 1 must not become 1 in single precision.
  const float belowOne = std::nextafter(1.0F, 0.0F);
  queued.push_back(std::min(static_cast<float>(number), belowOne));
}

float QueuedRandomNumbers::Next() {
  if (queued.empty())
    return standard.Next();
  const float next = queued.front();
  queued.pop_front();
  return next;
}

} // namespace Tessoro
