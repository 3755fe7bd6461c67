// Which widget shows which type of control.
#pragma once

#include "face/qt/ControlView.hpp"

namespace Tessoro {

// Null for what is no widget of its own: what the ground draws, menu entries and timers, and
// controls without width. The widget belongs to its parent.
ControlView *MakeView(Control &control, const Surroundings &around, QWidget *parent);

} // namespace Tessoro
