#include "face/qt/EditField.hpp"

#include "face/qt/Composition.hpp"

#include <QCoreApplication>
#include <QInputMethodEvent>

#include <utility>

namespace Tessoro {

EditField::EditField(QWidget *parent) : QLineEdit(parent) {
  connect(this, &QLineEdit::textEdited, this, [this](const QString &edited) {
    if (!isKeptBack)
      Edited(edited);
  });
}

void EditField::inputMethodEvent(QInputMethodEvent *event) {
  const bool wasHalfComposed = isHalfComposed;
  const bool isFinished = !event->commitString().isEmpty();
  isHalfComposed = !isFinished && !event->preeditString().isEmpty();
  if (isHalfComposed && !wasHalfComposed)
    replaced = {text(), selectionStart(), selectionLength()};
  isKeptBack = isHalfComposed;
  QLineEdit::inputMethodEvent(event);
  isKeptBack = false;
  if (wasHalfComposed && !isHalfComposed && !isFinished)
    Restore();
}

void EditField::Write(const QString &written) {
  if (isHalfComposed) {
    QEvent event(Composition::WriteByCode);
    QCoreApplication::sendEvent(this, &event);
  }
  setText(written);
}

// A method may also take away what stands there half composed before it hands over the whole, so
// the text is selected again.
void EditField::Restore() {
  const Selection before = std::exchange(replaced, {});
  if (before.start < 0 ||
      text() != QString(before.whole).remove(before.start, before.length)) // written by code
    return;
  setText(before.whole);
  setSelection(before.start, before.length);
}

} // namespace Tessoro
