#include "face/qt/Keys.hpp"

#include "face/qt/Text.hpp"

#include <QKeyEvent>

#include <array>

namespace Tessoro {

namespace {

struct KeyRow {
  int key;
  int code;
};

constexpr std::array<KeyRow, 22> NamedKeys{{
    {Qt::Key_Backspace, 8}, {Qt::Key_Tab, 9},       {Qt::Key_Backtab, 9},  {Qt::Key_Return, 13},
    {Qt::Key_Enter, 13},    {Qt::Key_Shift, 16},    {Qt::Key_Control, 17}, {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},    {Qt::Key_CapsLock, 20}, {Qt::Key_Escape, 27},  {Qt::Key_PageUp, 33},
    {Qt::Key_PageDown, 34}, {Qt::Key_End, 35},      {Qt::Key_Home, 36},    {Qt::Key_Left, 37},
    {Qt::Key_Up, 38},       {Qt::Key_Right, 39},    {Qt::Key_Down, 40},    {Qt::Key_Insert, 45},
    {Qt::Key_Delete, 46},   {Qt::Key_NumLock, 144},
}};

constexpr int CodeOfF1 = 112;

} // namespace

int KeyCodeOf(const QKeyEvent &event) {
  const int key = event.key();
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9) ||
      key == Qt::Key_Space)
    return key; // Qt numbers these by their ASCII capitals too
  if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
    return CodeOfF1 + key - Qt::Key_F1;
  for (const KeyRow &row : NamedKeys)
    if (row.key == key)
      return row.code;
  return 0;
}

int CharacterOf(const QKeyEvent &event) {
  if (event.key() == Qt::Key_Delete || event.text().size() != 1)
    return 0;
  return static_cast<unsigned char>(ToModel(event.text()).front());
}

int ShiftStateOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) +
         (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) +
         (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

int ButtonsOf(Qt::MouseButtons buttons) {
  return (buttons.testFlag(Qt::LeftButton) ? 1 : 0) + (buttons.testFlag(Qt::RightButton) ? 2 : 0) +
         (buttons.testFlag(Qt::MiddleButton) ? 4 : 0);
}

} // namespace Tessoro
