#include "face/qt/ScrollBarView.hpp"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>

namespace Tessoro {

ScrollBarView::ScrollBarView(Tessoro::ScrollBar &shown, const Surroundings &around, QWidget *parent)
    : QScrollBar(shown.Type() == ControlType::HScrollBar ? Qt::Horizontal : Qt::Vertical, parent),
      ControlView(shown, around), bar(shown) {
  setRange(0, std::abs(bar.Max() - bar.Min()));
  setPageStep(bar.LargeChange());
  setTracking(false); // a dragged thumb is heard of when it is let go
  setFocusPolicy(Qt::StrongFocus);
  setContextMenuPolicy(Qt::NoContextMenu);
  connect(this, &QScrollBar::valueChanged, this, [this](int steps) { Moved(steps); });
}

void ScrollBarView::ShowContent() {
  const QSignalBlocker silence(this);
  setValue(std::abs(bar.Value() - bar.Min()));
}

void ScrollBarView::Moved(int steps) {
  const int direction = bar.Min() > bar.Max() ? -1 : 1;
  Enter([&] { bar.UserScroll(bar.Min() + direction * steps); });
  ShowContent();
}

void ScrollBarView::ScrollTo(int value) {
  const auto [lower, upper] = std::minmax({bar.Min(), bar.Max()});
  Moved(std::abs(std::clamp(value, lower, upper) - bar.Min()));
}

// The button or the thumb that is held would go on repeating behind a message box.
void ScrollBarView::LetGo() {
  QMouseEvent release(QEvent::MouseButtonRelease, QPointF(-1, -1), mapToGlobal(QPointF(-1, -1)),
                      Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(this, &release);
}

void ScrollBarView::keyPressEvent(QKeyEvent *event) {
  const auto actionOf = [](int key) {
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Up:
      return SliderSingleStepSub;
    case Qt::Key_Right:
    case Qt::Key_Down:
      return SliderSingleStepAdd;
    case Qt::Key_PageUp:
      return SliderPageStepSub;
    case Qt::Key_PageDown:
      return SliderPageStepAdd;
    case Qt::Key_Home:
      return SliderToMinimum;
    case Qt::Key_End:
      return SliderToMaximum;
    default:
      return SliderNoAction;
    }
  };
  const SliderAction action = actionOf(event->key());
  if (action == SliderNoAction)
    event->ignore();
  else
    triggerAction(action);
}

// Up moves the thumb up, or to the right. Without the focus the wheel passes by.
void ScrollBarView::wheelEvent(QWheelEvent *event) {
  if (!hasFocus()) {
    event->ignore();
    return;
  }
  const QPoint delta = event->angleDelta();
  wheelTurn += delta.y() != 0 ? delta.y() : -delta.x();
  for (; std::abs(wheelTurn) >= QWheelEvent::DefaultDeltasPerStep;
       wheelTurn -= QWheelEvent::DefaultDeltasPerStep * (wheelTurn > 0 ? 1 : -1)) {
    const bool isUp = wheelTurn > 0;
    const bool addsSteps = isUp == (orientation() == Qt::Horizontal);
    triggerAction(addsSteps ? SliderSingleStepAdd : SliderSingleStepSub);
  }
}

} // namespace Tessoro
