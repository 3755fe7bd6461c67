// The connection to the desktop's message bus, made beside the making of the first window.
#pragma once

#include "face/qt/SideThread.hpp"

namespace Tessoro {

// The toolkit asks that bus for screen readers as soon as the first widget has a name, and waits
// for the answer. To be begun behind the QApplication and to end before it; whoever asks before it
// is done waits no longer than else.
class BusConnecting {
public:
  BusConnecting();

private:
  SideThread thread;
};

} // namespace Tessoro
