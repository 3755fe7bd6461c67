#include "tests/support/TestClock.hpp"

#include "surface/Timer.hpp"

#include <algorithm>

namespace Tessoro {

void TestClock::StartTimer(Timer &timer, int milliseconds) {
  waiting[&timer] = {now + milliseconds, milliseconds};
}

bool TestClock::IsWaiting(const Timer &timer) const {
  return std::any_of(waiting.begin(), waiting.end(),
                     [&timer](const auto &entry) { return entry.first == &timer; });
}

void TestClock::Pass(int milliseconds) {
  const int end = now + milliseconds;
  while (!waiting.empty()) {
    const auto next =
        std::min_element(waiting.begin(), waiting.end(), [](const auto &one, const auto &other) {
          return one.second.due < other.second.due;
        });
    if (next->second.due > end)
      break;
    now = next->second.due;
    next->second.due += next->second.interval;
    next->first->Tick();
  }
  now = end;
}

} // namespace Tessoro
