// A clock whose time passes only when it is told to.
#pragma once

#include "surface/Screen.hpp"

#include <cstdint>
#include <functional>
#include <vector>

namespace Tessoro {

class HeadlessClock : public Clock {
public:
  void StartTimer(Timer &timer, int milliseconds) override;
  void StopTimer(Timer &timer) override;

  // Calls the timers that fall due meanwhile, in the order of their times; each again and again
  // until it is stopped. Ends early once `isOver` says so.
  void Pass(std::int64_t milliseconds, const std::function<bool()> &isOver);

private:
  struct Wait {
    Timer *timer;
    std::int64_t milliseconds;
    std::int64_t due;
  };

  // In the order in which they were started, which decides between two that are due together.
  std::vector<Wait> waits;
  std::int64_t now = 0;
};

} // namespace Tessoro
