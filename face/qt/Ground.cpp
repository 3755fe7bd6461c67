#include "face/qt/Ground.hpp"

#include "face/qt/DrawnDescriptions.hpp"
#include "face/qt/Text.hpp"
#include "surface/Form.hpp"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace Tessoro {

Ground::Ground(Form &shown, const Gate &entrance, QWidget *parent)
    : QWidget(parent), form(shown), gate(entrance), drawn(MakeDrawnControls(shown)) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void Ground::SetScale(const Scale &newScale) {
  look = GroundLook(newScale);
  setFont(look.FontOf(LabelStyle::Plain)); // that of all controls that have none of their own
  resize(newScale.RoundedPixels(form.Design().width), newScale.RoundedPixels(form.Design().height));
  for (const auto &each : drawn)
    each->Follow(newScale);
  update();
}

void Ground::Show(const Control &control, Property property) {
  DrawnControl *changed = DrawnFor(control);
  if (changed == nullptr)
    return;
  update(changed->Area());
  changed->Follow(look.scale);
  update(changed->Area());
  TellScreenReaders(*this, *changed, property);
}

DrawnControl *Ground::DrawnFor(const Control &control) const {
  const auto found = std::find_if(drawn.begin(), drawn.end(),
                                  [&](const auto &each) { return &each->Shown() == &control; });
  return found == drawn.end() ? nullptr : found->get();
}

DrawnControl *Ground::DrawnAt(QPoint place) const {
  if (childAt(place) != nullptr)
    return nullptr;
  const auto found = std::find_if(drawn.rbegin(), drawn.rend(), [&](const auto &each) {
    return each->StandsForItself() && each->Shown().Visible() && each->Area().contains(place);
  });
  return found == drawn.rend() ? nullptr : found->get();
}

bool Ground::event(QEvent *event) {
  if (event->type() == QEvent::ToolTip && ShowToolTip(*static_cast<QHelpEvent *>(event)))
    return true;
  return QWidget::event(event);
}

bool Ground::ShowToolTip(const QHelpEvent &event) {
  const DrawnControl *below = DrawnAt(event.pos());
  if (below == nullptr || below->Shown().ToolTipText().empty()) {
    QToolTip::hideText(); // of a label that the pointer has left for a widget
    return false;
  }
  QToolTip::showText(event.globalPos(), FromModel(below->Shown().ToolTipText()), this,
                     below->Area());
  return true;
}

// A disabled widget leaves its clicks to the ground, not to what is drawn below it.
DrawnControl *Ground::ClickedAt(QPoint place) const {
  DrawnControl *top = DrawnAt(place);
  return top != nullptr && top->Shown().Enabled() ? top : nullptr;
}

void Ground::mousePressEvent(QMouseEvent *event) {
  event->accept();
  if (event->button() == Qt::LeftButton)
    pressed = ClickedAt(event->pos());
}

// A button that is pressed and left hands its release down here, where nothing was pressed.
void Ground::mouseReleaseEvent(QMouseEvent *event) {
  if (event->button() != Qt::LeftButton)
    return;
  DrawnControl *const clicked = std::exchange(pressed, nullptr);
  if (!rect().contains(event->pos()))
    return;
  if (clicked == nullptr)
    gate.Pass([this] { form.UserClick(); });
  else if (clicked == ClickedAt(event->pos()))
    gate.Pass([clicked] { clicked->Click(); });
}

void Ground::paintEvent(QPaintEvent *event) {
  QPainter painter(this);
  look.palette = palette();
  painter.fillRect(event->rect(), look.palette.color(QPalette::Window));
  for (const auto &each : drawn)
    if (each->Shown().Visible() && event->region().intersects(each->Area()))
      each->Draw(painter, look);
}

} // namespace Tessoro
