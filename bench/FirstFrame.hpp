// Lets a window say when it has painted its first frame.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>

#include <cstdlib>
#include <unistd.h>

namespace Tessoro {

// Ends the process at once when the first frame of any window is done, with a byte to standard
// output that says so.
class FirstFrame : public QObject {
public:
  FirstFrame() { QCoreApplication::instance()->installEventFilter(this); }

  bool eventFilter(QObject * /*watched*/, QEvent *event) override {
    if (event->type() == QEvent::Paint && !seen) {
      seen = true;
      // Behind the rest of this frame.
      QTimer::singleShot(0, this, [] {
        const char done = '\n';
        std::_Exit(write(STDOUT_FILENO, &done, 1) == 1 ? EXIT_SUCCESS : EXIT_FAILURE);
      });
    }
    return false;
  }

private:
  bool seen = false;
};

} // namespace Tessoro
