#include "face/headless/HeadlessClock.hpp"

#include "surface/Timer.hpp"

#include <algorithm>

namespace Tessoro {

void HeadlessClock::StartTimer(Timer &timer, int milliseconds) {
  StopTimer(timer);
  waits.push_back({&timer, milliseconds, now + milliseconds});
}

void HeadlessClock::StopTimer(Timer &timer) {
  std::erase_if(waits, [&](const Wait &wait) { return wait.timer == &timer; });
}

void HeadlessClock::Pass(std::int64_t milliseconds, const std::function<bool()> &isOver) {
  const std::int64_t until = now + milliseconds;
  while (!isOver()) {
    const auto next = std::min_element(waits.begin(), waits.end(),
                                       [](const Wait &a, const Wait &b) { return a.due < b.due; });
    if (next == waits.end() || next->due > until)
      break;
    now = next->due;
    // Before the call: a handler that restarts its timer counts from the moment it was called.
    next->due += next->milliseconds;
    next->timer->Tick();
  }
  now = until;
}

} // namespace Tessoro
