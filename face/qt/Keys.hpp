// Keys, modifiers and mouse buttons as the forms number them.
#pragma once

#include <Qt>

class QKeyEvent;

namespace Tessoro {

// Letters and digits are their ASCII capitals, F1 is 112; 0 for a key without a number.
int KeyCodeOf(const QKeyEvent &event);
// The Windows-1252 code of the character that the key types; 0 where it types none.
int CharacterOf(const QKeyEvent &event);
// 1 for Shift, 2 for Ctrl, 4 for Alt.
int ShiftStateOf(Qt::KeyboardModifiers modifiers);
// 1 for the left button, 2 for the right, 4 for the middle.
int ButtonsOf(Qt::MouseButtons buttons);

} // namespace Tessoro
