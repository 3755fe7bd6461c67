// The modal box.
#pragma once

#include "surface/Screen.hpp"

class QString;
class QWidget;

namespace Tessoro {

// Flags as in MsgBoxFlags; the letters are as large as those of a window at that zoom. Returns when
// the user has answered; closing the box, or Esc, counts as Cancel, as No, or as OK where the box
// offers nothing else.
MsgBoxButton ShowMessageBox(QWidget *parent, double zoom, const QString &text, int flags,
                            const QString &title);

} // namespace Tessoro
