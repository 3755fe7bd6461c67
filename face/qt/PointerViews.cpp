#include "face/qt/PointerViews.hpp"

#include "face/qt/Keys.hpp"
#include "face/qt/PictureStore.hpp"
#include "face/qt/Text.hpp"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>

namespace Tessoro {

PointerView::PointerView(MouseControl &shown, const Surroundings &around, QWidget *parent)
    : QWidget(parent), ControlView(shown, around), control(shown) {
  setMouseTracking(true);
}

MouseEvent PointerView::AtPointer(Qt::MouseButtons buttons) const {
  return {.button = ButtonsOf(buttons),
          .shift = ShiftStateOf(modifiers),
          .x = static_cast<float>(Scale().Twips(pointer.x())),
          .y = static_cast<float>(Scale().Twips(pointer.y()))};
}

void PointerView::Follow(const QMouseEvent &event) {
  pointer = event.position();
  modifiers = event.modifiers();
}

void PointerView::Press(const QMouseEvent &event) {
  held |= event.button();
  wasPressedOnce = true;
  update();
  Enter([&] { control.UserMouseDown(AtPointer(event.button())); });
}

// A release that can't be told now is made up for when the box has gone.
void PointerView::Release(Qt::MouseButton button) {
  if (!CanEnter())
    return;
  held &= ~Qt::MouseButtons(button);
  update();
  control.UserMouseUp(AtPointer(button));
}

void PointerView::ReleaseAllBut(Qt::MouseButtons buttons) {
  for (unsigned bit = Qt::LeftButton; bit <= Qt::MaxMouseButton; bit <<= 1U) {
    const auto each = static_cast<Qt::MouseButton>(bit);
    if (held.testFlag(each) && !buttons.testFlag(each))
      Release(each);
  }
}

void PointerView::BoxHasGone() { ReleaseAllBut(QGuiApplication::mouseButtons()); }

void PointerView::mousePressEvent(QMouseEvent *event) {
  Follow(*event);
  Press(*event);
}

// A fast press on what wasn't pressed before is no double click, even if it follows another press.
void PointerView::mouseDoubleClickEvent(QMouseEvent *event) {
  Follow(*event);
  const bool isLeft = event->button() == Qt::LeftButton;
  if (!isLeft || !std::exchange(wasPressedOnce, false) || !DoubleClicked()) {
    Press(*event);
    return;
  }
  held |= Qt::LeftButton;
}

void PointerView::mouseMoveEvent(QMouseEvent *event) {
  ReleaseAllBut(event->buttons());
  Follow(*event);
  Enter([&] { control.UserMouseMove(AtPointer(event->buttons())); });
}

void PointerView::mouseReleaseEvent(QMouseEvent *event) {
  if (!held.testFlag(event->button()))
    return;
  const bool endsClick = wasPressedOnce && event->button() == Qt::LeftButton;
  Follow(*event);
  Release(event->button());
  if (endsClick && rect().contains(event->pos()))
    Clicked();
}

void PointerView::hideEvent(QHideEvent *event) {
  QWidget::hideEvent(event);
  ReleaseButtons();
  wasPressedOnce = false;
}

void PointerView::changeEvent(QEvent *event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::EnabledChange && !isEnabled())
    ReleaseButtons();
}

ImageView::ImageView(Image &shown, const Surroundings &around, QWidget *parent)
    : PointerView(shown, around, parent), image(shown) {
  if (!image.AccessKey().empty())
    connect(new QShortcut(QKeySequence(FromModel(image.AccessKey())), this), &QShortcut::activated,
            this, [this] { Clicked(); });
}

void ImageView::Clicked() {
  Enter([this] { image.UserClick(); });
}

bool ImageView::DoubleClicked() {
  Enter([this] { image.UserDblClick(); });
  return true;
}

void ImageView::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  if (!isEnabled())
    painter.setOpacity(0.35);
  // Of what is really drawn on: a screen, or a picture of another scale.
  const double scaleOfDevice = painter.deviceTransform().m11();
  painter.drawPixmap(0, 0, Pictures().Draw(image.Picture(), size(), scaleOfDevice));
}

} // namespace Tessoro
