#include "face/qt/Ground.hpp"

#include "face/qt/Look.hpp"
#include "face/qt/RoundedBox.hpp"
#include "surface/Form.hpp"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace Tessoro {

namespace {

constexpr double LineWidth = 2; // pixels at a zoom of 1

} // namespace

Ground::Ground(Form &shown, const Gate &entrance, QWidget *parent)
    : QWidget(parent), form(shown), gate(entrance) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  for (const Control *control : form.Controls()) {
    if (const auto *shape = dynamic_cast<const Shape *>(control))
      shapes.push_back(shape);
    else if (const auto *line = dynamic_cast<const Line *>(control))
      lines.push_back({line, line->Ends()});
  }
}

void Ground::SetScale(const Scale &newScale) {
  scale = newScale;
  setFont(Look::Font(TextSize::Control, scale)); // that of all controls that have none of their own
  resize(scale.RoundedPixels(form.Design().width), scale.RoundedPixels(form.Design().height));
  update();
}

void Ground::ShowEnds(const Line &line) {
  for (DrawnLine &drawn : lines) {
    if (drawn.line != &line)
      continue;
    UpdateLine(drawn.ends);
    drawn.ends = line.Ends();
    UpdateLine(drawn.ends);
  }
}

QRectF Ground::RectOf(const LineEnds &ends) const {
  return QRectF(QPointF(scale.Pixels(ends.x1), scale.Pixels(ends.y1)),
                QPointF(scale.Pixels(ends.x2), scale.Pixels(ends.y2)))
      .normalized();
}

void Ground::UpdateLine(const LineEnds &ends) {
  const double around = LineWidth * scale.zoom + 1;
  const QRectF touched = RectOf(ends).adjusted(-around, -around, around, around);
  update(touched.intersected(QRectF(rect())).toAlignedRect());
}

void Ground::mousePressEvent(QMouseEvent *event) { event->accept(); }

void Ground::mouseReleaseEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
    gate.Pass([this] { form.UserClick(); });
}

void Ground::paintEvent(QPaintEvent *event) {
  QPainter painter(this);
  painter.fillRect(event->rect(), palette().color(QPalette::Window));
  painter.setRenderHint(QPainter::Antialiasing);
  for (const Shape *shape : shapes)
    if (shape->Visible())
      Draw(painter, *shape);
  for (const DrawnLine &drawn : lines)
    if (drawn.line->Visible())
      Draw(painter, drawn);
}

void Ground::Draw(QPainter &painter, const Shape &shape) const {
  const QRect area = scale.Rect(shape.DesignPlace());
  const double radius = Look::CornerRadius * scale.zoom;
  switch (shape.Kind()) {
  case ShapeKind::Panel:
    DrawRoundedBox(painter, area, 2 * radius, {}, Look::FrameColor());
    break;
  case ShapeKind::Inset:
    DrawRoundedBox(painter, area, radius, palette().color(QPalette::Midlight), Look::FrameColor());
    break;
  case ShapeKind::Rule: {
    const QRectF line = QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5);
    const bool lies = line.width() >= line.height();
    painter.setPen(Look::FrameColor());
    painter.drawLine(lies ? QPointF(line.left(), line.center().y())
                          : QPointF(line.center().x(), line.top()),
                     lies ? QPointF(line.right(), line.center().y())
                          : QPointF(line.center().x(), line.bottom()));
    break;
  }
  }
}

void Ground::Draw(QPainter &painter, const DrawnLine &drawn) const {
  painter.setPen(QPen(Look::FromModel(drawn.line->LineColor()), LineWidth * scale.zoom,
                      Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(scale.Pixels(drawn.ends.x1), scale.Pixels(drawn.ends.y1)),
                   QPointF(scale.Pixels(drawn.ends.x2), scale.Pixels(drawn.ends.y2)));
}

} // namespace Tessoro
