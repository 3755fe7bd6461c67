#include "face/qt/QtClock.hpp"

#include "surface/Timer.hpp"

#include <QTimer>

namespace Tessoro {

QtClock::QtClock(const Gate &entrance) : gate(entrance) {
  connect(&gate, &Gate::Opened, this, &QtClock::MakeUpForTicks, Qt::QueuedConnection);
}

QtClock::~QtClock() = default;

void QtClock::StartTimer(Timer &timer, int milliseconds) {
  Wait &wait = waits[&timer];
  if (!wait.timer) {
    wait.timer = std::make_unique<QTimer>();
    wait.timer->setTimerType(Qt::PreciseTimer);
    connect(wait.timer.get(), &QTimer::timeout, this, [this, &timer] { Tick(timer); });
  }
  wait.isDue = false;
  wait.timer->start(milliseconds);
}

void QtClock::StopTimer(Timer &timer) {
  const auto found = waits.find(&timer);
  if (found == waits.end())
    return;
  found->second.isDue = false;
  found->second.timer->stop();
}

void QtClock::Tick(Timer &timer) {
  waits[&timer].isDue = !gate.IsOpen();
  gate.Pass([&] { timer.Tick(); });
}

void QtClock::MakeUpForTicks() {
  // Looked up anew each time: a handler may start a timer that never waited before.
  const auto nextDue = [this] {
    for (auto &[timer, wait] : waits)
      if (wait.isDue)
        return timer;
    return static_cast<Timer *>(nullptr);
  };
  while (Timer *timer = gate.IsOpen() ? nextDue() : nullptr)
    Tick(*timer);
}

} // namespace Tessoro
