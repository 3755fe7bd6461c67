#include "face/qt/ComboBoxView.hpp"

#include "face/qt/ItemList.hpp"
#include "face/qt/Look.hpp"
#include "face/qt/Text.hpp"
#include "face/qt/TextBoxView.hpp"

#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>

namespace Tessoro {

ComboBoxView::ComboBoxView(ComboBox &shown, const Surroundings &around, QWidget *parent)
    : EditField(parent), ControlView(shown, around), combo(shown) {
  setMouseTracking(true); // the pointer's shape tells the field from its arrow
  if (combo.BackColor() != Colors::Navy)
    setPalette(Look::Field(combo.BackColor()));
}

void ComboBoxView::SetScale(const Tessoro::Scale &newScale) {
  ControlView::SetScale(newScale);
  setTextMargins(0, 0, ArrowArea().width(), 0);
}

// Writing takes the cursor to the end and forgets what could be undone, so equal texts aren't
// written. Of a text that is too long for the field the beginning is shown, but not to someone who
// types at its end.
void ComboBoxView::ShowContent() {
  const QString shown = FromModel(combo.Text());
  if (shown == text())
    return;
  Write(shown);
  if (!isBeingTyped)
    home(false);
}

void ComboBoxView::Edited(const QString &edited) {
  isBeingTyped = true;
  const std::string told = TakeEdit(*this, FromModel(combo.Text()), edited);
  Enter([&] { combo.UserEdit(told); });
  ShowContent();
  isBeingTyped = false;
}

void ComboBoxView::focusInEvent(QFocusEvent *event) {
  QLineEdit::focusInEvent(event);
  if (hasSelectedText())
    setSelection(static_cast<int>(text().size()), -static_cast<int>(text().size()));
}

void ComboBoxView::focusOutEvent(QFocusEvent *event) {
  QLineEdit::focusOutEvent(event);
  if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
    home(false);
}

void ComboBoxView::Pick(int index) {
  Enter([&] { combo.UserSelect(index); });
  ShowContent();
}

void ComboBoxView::Step(int direction) {
  const int next = combo.ListIndex() + direction;
  if (combo.HasItem(next))
    Pick(next);
}

ItemList *ComboBoxView::OpenedList() const {
  return list != nullptr && list->isVisible() ? list : nullptr;
}

void ComboBoxView::OpenList() {
  if (OpenedList() != nullptr || combo.List().empty())
    return;
  list = new ItemList(*this);
  for (const std::string &item : combo.List())
    list->addItem(FromModel(item));
  list->setCurrentRow(std::max(combo.ListIndex(), 0));
  connect(list, &ItemList::Picked, this, [this](int index) { Pick(index); });
  list->Open();
}

QRect ComboBoxView::ArrowArea() const {
  const int side = std::min(height() * 7 / 10, width() / 3);
  return {width() - side, 0, side, height()};
}

void ComboBoxView::keyPressEvent(QKeyEvent *event) {
  const bool isAlone = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  const bool isUp = event->key() == Qt::Key_Up;
  const bool isDown = event->key() == Qt::Key_Down;
  if (isAlone && (isUp || isDown))
    Step(isUp ? -1 : 1);
  else if (event->key() == Qt::Key_F4 ||
           (event->modifiers().testFlag(Qt::AltModifier) && (isUp || isDown)))
    OpenList();
  else if (IsAccessKey(*event))
    event->ignore();
  else
    QLineEdit::keyPressEvent(event);
}

void ComboBoxView::mouseMoveEvent(QMouseEvent *event) {
  if (event->buttons() == Qt::NoButton)
    setCursor(ArrowArea().contains(event->pos()) ? Qt::ArrowCursor : Qt::IBeamCursor);
  QLineEdit::mouseMoveEvent(event);
}

void ComboBoxView::mousePressEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton && ArrowArea().contains(event->pos()))
    OpenList();
  else
    QLineEdit::mousePressEvent(event);
}

void ComboBoxView::paintEvent(QPaintEvent *event) {
  QLineEdit::paintEvent(event);
  QPainter painter(this);
  Look::DrawArrow(painter, ArrowArea(), Look::Direction::Down,
                  palette().color(QPalette::Text)); // of the state that the field is in
}

// Without the focus the wheel passes by: scrolling over a list must not send a value.
void ComboBoxView::wheelEvent(QWheelEvent *event) {
  if (!hasFocus()) {
    event->ignore();
    return;
  }
  wheelTurn += event->angleDelta().y();
  for (; std::abs(wheelTurn) >= QWheelEvent::DefaultDeltasPerStep;
       wheelTurn -= QWheelEvent::DefaultDeltasPerStep * (wheelTurn > 0 ? 1 : -1))
    Step(wheelTurn > 0 ? -1 : 1);
}

} // namespace Tessoro
