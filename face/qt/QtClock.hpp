// Waits on behalf of the editor's timers.
#pragma once

#include "face/qt/Gate.hpp"
#include "surface/Screen.hpp"

#include <QObject>

#include <memory>
#include <unordered_map>

class QTimer;

namespace Tessoro {

// A tick that falls due while a message box is up comes once, when the box has gone.
class QtClock : public QObject, public Clock {
public:
  explicit QtClock(const Gate &entrance);
  ~QtClock() override;

  void StartTimer(Timer &timer, int milliseconds) override;
  void StopTimer(Timer &timer) override;

private:
  struct Wait {
    std::unique_ptr<QTimer> timer;
    bool isDue = false;
  };

  void Tick(Timer &timer);
  void MakeUpForTicks();

  const Gate &gate;
  std::unordered_map<Timer *, Wait> waits;
};

} // namespace Tessoro
