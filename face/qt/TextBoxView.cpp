#include "face/qt/TextBoxView.hpp"

#include "face/qt/Look.hpp"
#include "face/qt/Text.hpp"

#include <QKeyEvent>

#include <algorithm>
#include <utility>

namespace Tessoro {

namespace {

// A box as narrow as this holds a number, which stands in the middle, as below a knob.
constexpr int WidthOfNumbers = 600; // twips

} // namespace

TextBoxView::TextBoxView(TextBox &shown, const Surroundings &around, QWidget *parent)
    : EditField(parent), ControlView(shown, around), box(shown),
      holdsNumber(shown.DesignPlace().width <= WidthOfNumbers) {
  if (box.BackColor() != Colors::Navy)
    setPalette(Look::Field(box.BackColor()));
  if (holdsNumber)
    setAlignment(Qt::AlignCenter);
  if (box.MaxLength() != 0)
    setMaxLength(static_cast<int>(box.MaxLength()));
}

// Writing takes the cursor to the end and forgets what could be undone, so equal texts aren't
// written.
void TextBoxView::ShowContent() {
  const QString shown = FromModel(box.Text());
  if (shown != text())
    Write(shown);
}

void TextBoxView::Edited(const QString &edited) {
  const std::string told = TakeEdit(*this, FromModel(box.Text()), edited);
  Enter([&] { box.UserEdit(told); });
  ShowContent();
}

void TextBoxView::focusInEvent(QFocusEvent *event) {
  QLineEdit::focusInEvent(event);
  wasFocusedByClick = event->reason() == Qt::MouseFocusReason;
}

void TextBoxView::keyPressEvent(QKeyEvent *event) {
  constexpr int enter = 13;
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isEnter && !event->isAutoRepeat()) // one that is held gives its order once
    Enter([this] { box.UserKeyPress(enter); });
  if (IsAccessKey(*event))
    event->ignore();
  else
    QLineEdit::keyPressEvent(event);
}

void TextBoxView::mouseDoubleClickEvent(QMouseEvent *event) {
  QLineEdit::mouseDoubleClickEvent(event);
  isSecondClick = true;
  if (event->button() == Qt::LeftButton)
    Enter([this] { box.UserDblClick(); });
}

void TextBoxView::mouseReleaseEvent(QMouseEvent *event) {
  QLineEdit::mouseReleaseEvent(event);
  if (std::exchange(wasFocusedByClick, false) && holdsNumber && !hasSelectedText())
    selectAll();
  const bool endsFirstClick = !std::exchange(isSecondClick, false);
  if (endsFirstClick && event->button() == Qt::LeftButton && rect().contains(event->pos()))
    Enter([this] { box.UserClick(); });
}

bool IsAccessKey(const QKeyEvent &event) {
  const bool isAltAlone = (event.modifiers() & ~Qt::ShiftModifier) == Qt::AltModifier;
  return isAltAlone && !event.text().isEmpty() && event.text().front().isPrint();
}

std::string TakeEdit(QLineEdit &field, const QString &before, const QString &edited) {
  const QString line = InOneLine(before, edited);
  std::string told = ToModel(line);
  const QString tellable = FromModel(told);
  if (tellable != edited) {
    const auto cursor = std::min<qsizetype>(field.cursorPosition(), line.size());
    const qsizetype tellableCursor = FromModel(ToModel(line.first(cursor))).size();
    field.setText(tellable);
    field.setCursorPosition(static_cast<int>(tellableCursor));
  }
  return told;
}

} // namespace Tessoro
