#include "face/qt/ZoomKeys.hpp"

#include <QShortcut>
#include <QWidget>

#include <array>
#include <utility>

namespace Tessoro {

namespace {

// Plus and equals are one key on many keyboards.
constexpr std::array<std::pair<Qt::Key, int>, 4> Keys{
    {{Qt::Key_Plus, 1}, {Qt::Key_Equal, 1}, {Qt::Key_Minus, -1}, {Qt::Key_0, 0}}};

} // namespace

void ListenToZoomKeys(QWidget &window, const std::function<void(int)> &asked) {
  for (const auto &[key, direction] : Keys) {
    const auto *shortcut = new QShortcut(QKeyCombination(Qt::ControlModifier, key), &window);
    QObject::connect(shortcut, &QShortcut::activated, &window,
                     [asked, steps = direction] { asked(steps); });
  }
}

} // namespace Tessoro
