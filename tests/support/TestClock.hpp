// A clock that stands still until a test moves it.
#pragma once

#include "surface/Screen.hpp"

#include <map>

namespace Tessoro {

class TestClock : public Clock {
public:
  void StartTimer(Timer &timer, int milliseconds) override;
  void StopTimer(Timer &timer) override { waiting.erase(&timer); }

  // Lets time pass; timers fire in the order in which they fall due, again and again.
  void Pass(int milliseconds);
  bool IsWaiting(const Timer &timer) const;

private:
  struct Wait {
    int due;
    int interval;
  };

  int now = 0;
  std::map<Timer *, Wait> waiting;
};

} // namespace Tessoro
