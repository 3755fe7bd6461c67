#include "face/qt/DrawnShapes.hpp"

#include "face/qt/Look.hpp"
#include "face/qt/RoundedBox.hpp"

#include <QPainter>

namespace Tessoro {

namespace {

constexpr double LineWidth = 2; // pixels at a zoom of 1

void DrawRule(QPainter &painter, const QRect &area) {
  const QRectF line = QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5);
  const bool lies = line.width() >= line.height();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Look::FrameColor());
  painter.drawLine(
      lies ? QPointF(line.left(), line.center().y()) : QPointF(line.center().x(), line.top()),
      lies ? QPointF(line.right(), line.center().y()) : QPointF(line.center().x(), line.bottom()));
}

QPointF Begin(const LineEnds &ends, const Scale &scale) {
  return {scale.Pixels(ends.x1), scale.Pixels(ends.y1)};
}

QPointF End(const LineEnds &ends, const Scale &scale) {
  return {scale.Pixels(ends.x2), scale.Pixels(ends.y2)};
}

} // namespace

void DrawnShape::Draw(QPainter &painter, const GroundLook &look) const {
  const double radius = Look::CornerRadius * look.scale.zoom;
  switch (shape.Kind()) {
  case ShapeKind::Panel:
    DrawRoundedBox(painter, Area(), 2 * radius, {}, Look::FrameColor());
    break;
  case ShapeKind::Inset:
    DrawRoundedBox(painter, Area(), radius, look.palette.color(QPalette::Midlight),
                   Look::FrameColor());
    break;
  case ShapeKind::Rule:
    DrawRule(painter, Area());
    break;
  }
}

void DrawnLine::Follow(const Scale &scale) {
  ends = line.Ends();
  const double around = LineWidth * scale.zoom + 1;
  SetArea(QRectF(Begin(ends, scale), End(ends, scale))
              .normalized()
              .adjusted(-around, -around, around, around)
              .toAlignedRect());
}

void DrawnLine::Draw(QPainter &painter, const GroundLook &look) const {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Look::FromModel(line.LineColor()), LineWidth * look.scale.zoom, Qt::SolidLine,
                      Qt::RoundCap));
  painter.drawLine(Begin(ends, look.scale), End(ends, look.scale));
}

void DrawnFrame::Draw(QPainter &painter, const GroundLook &look) const {
  DrawRoundedBox(painter, Area(), 2 * Look::CornerRadius * look.scale.zoom,
                 look.palette.color(QPalette::Midlight), Look::FrameColor());
}

} // namespace Tessoro
