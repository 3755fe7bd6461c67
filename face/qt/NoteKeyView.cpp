#include "face/qt/NoteKeyView.hpp"

#include "face/qt/Keys.hpp"
#include "face/qt/Look.hpp"
#include "face/qt/Text.hpp"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace Tessoro {

namespace {

constexpr int UntilRepeatMilliseconds = 10;

} // namespace

NoteKeyView::NoteKeyView(NoteKey &shown, const Surroundings &around, QWidget *parent)
    : PointerView(shown, around, parent), key(shown) {
  setFocusPolicy(Qt::TabFocus);
  awaitRepeat.setSingleShot(true);
  connect(&awaitRepeat, &QTimer::timeout, this, &NoteKeyView::ReleaseKeys);
}

void NoteKeyView::Strike() {
  QMouseEvent press(QEvent::MouseButtonPress, rect().center(), mapToGlobal(rect().center()),
                    Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
  mousePressEvent(&press);
  QMouseEvent release(QEvent::MouseButtonRelease, rect().center(), mapToGlobal(rect().center()),
                      Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
  mouseReleaseEvent(&release);
}

// The keyboard presses as the left button would.
MouseEvent NoteKeyView::AtMiddle() const {
  const Place &place = key.DesignPlace();
  return {.shift = ShiftStateOf(QGuiApplication::keyboardModifiers()),
          .x = static_cast<float>(place.width) / 2,
          .y = static_cast<float>(place.height) / 2};
}

// An X server repeats a held key as a release and a press at the same instant, and the toolkit
// tells only some of them from real ones.
bool NoteKeyView::IsRepeat(const QKeyEvent &event) const {
  return event.isAutoRepeat() || (event.key() == releasedKey && event.timestamp() == timeOfRelease);
}

void NoteKeyView::PressByKey(int holder) {
  if (holdingKey != 0 || !CanEnter())
    return;
  holdingKey = holder;
  update();
  key.UserMouseDown(AtMiddle());
}

// While a box is up the release can't be told; it is when the box has gone.
void NoteKeyView::ReleaseKeys() {
  awaitRepeat.stop();
  if (holdingKey == 0 || !CanEnter())
    return;
  holdingKey = 0;
  update();
  key.UserMouseUp(AtMiddle());
}

void NoteKeyView::EndNote() {
  ReleaseKeys();
  ReleaseButtons();
}

void NoteKeyView::BoxHasGone() {
  PointerView::BoxHasGone();
  ReleaseKeys();
}

void NoteKeyView::keyPressEvent(QKeyEvent *event) {
  switch (event->key()) {
  case Qt::Key_Space:
  case Qt::Key_Return:
  case Qt::Key_Enter:
    if (!IsRepeat(*event)) {
      if (awaitRepeat.isActive())
        ReleaseKeys();
      PressByKey(event->key());
    } else if (event->key() == holdingKey) {
      awaitRepeat.stop();
    }
    break;
  case Qt::Key_Left:
  case Qt::Key_Up:
    focusNextPrevChild(false); // as a button does
    break;
  case Qt::Key_Right:
  case Qt::Key_Down:
    focusNextPrevChild(true);
    break;
  default:
    PointerView::keyPressEvent(event);
  }
}

void NoteKeyView::keyReleaseEvent(QKeyEvent *event) {
  releasedKey = event->key();
  timeOfRelease = event->timestamp();
  if (event->key() != holdingKey)
    PointerView::keyReleaseEvent(event);
  else if (!event->isAutoRepeat())
    awaitRepeat.start(UntilRepeatMilliseconds);
}

// Where the focus has gone the key comes up unheard.
void NoteKeyView::focusOutEvent(QFocusEvent *event) {
  PointerView::focusOutEvent(event);
  ReleaseKeys();
}

void NoteKeyView::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double radius = Look::CornerRadius * Scale().zoom;
  const QRectF body = QRectF(rect()).adjusted(0.5, -radius, -0.5, -0.5); // square at the top
  QLinearGradient ivory(body.topLeft(), body.bottomLeft());
  const bool isDown = IsHeld() || holdingKey != 0;
  ivory.setColorAt(0, isDown ? QColor(222, 214, 190) : QColor(250, 247, 236));
  ivory.setColorAt(1, isDown ? QColor(240, 234, 214) : QColor(255, 255, 252));
  painter.setPen(QColor(110, 96, 52));
  painter.setBrush(ivory);
  painter.drawRoundedRect(body, radius, radius);
  painter.drawLine(QPointF(0.5, 0.5), QPointF(width() - 0.5, 0.5));
  painter.setPen(Look::Ink());
  painter.drawText(QRectF(rect()).adjusted(0, 0, 0, -Scale().Pixels(45)),
                   Qt::AlignHCenter | Qt::AlignBottom, WithoutAccessKey(FromModel(key.Caption())));
  if (hasFocus())
    Look::DrawFocusRing(painter, QRectF(rect()), radius, Look::Ink());
}

} // namespace Tessoro
