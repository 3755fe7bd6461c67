// What an input method puts together in a field.
#pragma once

#include <QDeadlineTimer>
#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QString>

class QInputMethodEvent;
class QLineEdit;

namespace Tessoro {

// Sees to it that only what the method itself hands over counts as typed. When the focus leaves,
// the toolkit would type what is only half composed, and a method hands it over late, when another
// field has the keyboard: neither is what the user meant.
//
// A filter of the whole application: no field can tell by itself where a text comes from.
class Composition : public QObject {
public:
  using QObject::QObject;

  // Comes to a field before code writes into it, which ends what is half composed there.
  static constexpr auto WriteByCode = static_cast<QEvent::Type>(QEvent::User + 1);

  bool eventFilter(QObject *watched, QEvent *event) override;

private:
  bool HoldsBack(QObject *watched, const QInputMethodEvent &event);
  bool IsLate(const QInputMethodEvent &event);
  void HandOver();
  void Abandon();
  void Send(const QString &finished);

  QPointer<QLineEdit> field; // in which the last was composed
  QString begun;             // what stands there half composed
  QString held; // handed over by the method, or else by the toolkit: what follows tells
  int cursorWhenHeld = 0;
  QString abandoned; // what a method may still hand over, or show once more
  QDeadlineTimer lateUntil;
  bool isSending = false;
};

} // namespace Tessoro
