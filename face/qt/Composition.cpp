#include "face/qt/Composition.hpp"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QLineEdit>

#include <utility>

namespace Tessoro {

namespace {

constexpr int LatestMilliseconds = 500;

} // namespace

bool Composition::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == WriteByCode && watched == field)
    Abandon();
  switch (event->type()) {
  case QEvent::InputMethod:
    return HoldsBack(watched, *static_cast<QInputMethodEvent *>(event));
  case QEvent::FocusAboutToChange:
  case QEvent::FocusOut:
    if (watched == field)
      Abandon();
    return false;
  case QEvent::KeyPress:
  case QEvent::ShortcutOverride:
  case QEvent::MouseButtonPress:
    HandOver();
    return false;
  default:
    return false;
  }
}

// The toolkit hands over just what stands there, and takes the focus away, or moves the cursor, in
// the same breath. A method may do the former too, but then nothing follows.
bool Composition::HoldsBack(QObject *watched, const QInputMethodEvent &event) {
  if (std::exchange(isSending, false))
    return false;
  HandOver();
  const QString &finished = event.commitString();
  if (IsLate(event))
    return true;
  const bool isSameField = watched == field;
  field = qobject_cast<QLineEdit *>(watched);
  if (field == nullptr)
    return false;
  if (isSameField && !finished.isEmpty() && finished == begun && event.preeditString().isEmpty()) {
    held = finished;
    cursorWhenHeld = field->cursorPosition();
    QMetaObject::invokeMethod(this, &Composition::HandOver, Qt::QueuedConnection);
    return true;
  }
  begun = event.preeditString();
  if (!begun.isEmpty())
    abandoned.clear();
  return false;
}

// Keys don't end the wait: with a method that works through a bus they may overtake its answer.
bool Composition::IsLate(const QInputMethodEvent &event) {
  if (abandoned.isEmpty() || lateUntil.hasExpired())
    return false;
  if (event.commitString().isEmpty())
    return event.preeditString() == abandoned;
  return event.commitString() == std::exchange(abandoned, {});
}

void Composition::HandOver() {
  if (field == nullptr)
    held.clear();
  if (held.isEmpty())
    return;
  if (field->cursorPosition() != cursorWhenHeld) {
    Abandon();
    return;
  }
  begun.clear();
  Send(std::exchange(held, {}));
}

void Composition::Abandon() {
  held.clear();
  if (begun.isEmpty())
    return;
  abandoned = std::exchange(begun, {});
  lateUntil.setRemainingTime(LatestMilliseconds);
  Send({});
}

void Composition::Send(const QString &finished) {
  QInputMethodEvent event;
  event.setCommitString(finished);
  isSending = true;
  QCoreApplication::sendEvent(field, &event);
}

} // namespace Tessoro
