// The keys that zoom a window.
#pragma once

#include <functional>

class QWidget;

namespace Tessoro {

// Tells of Ctrl with plus as 1, with minus as -1, and with 0 as 0: the zoom that the window opened
// with.
void ListenToZoomKeys(QWidget &window, const std::function<void(int)> &asked);

} // namespace Tessoro
