// The machine's fonts, read beside the connection to the display.
#pragma once

#include "face/qt/SideThread.hpp"

namespace Tessoro {

// Reading what fonts a machine has takes as long as connecting to its display, and both mostly
// wait. To be begun before the QApplication, and ended before the first text is measured, which
// would read them once more.
class FontReading {
public:
  FontReading();
  void End() { thread.Join(); }

private:
  SideThread thread;
};

} // namespace Tessoro
