#include "face/qt/Look.hpp"

#include <QFontDatabase>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace Tessoro::Look {

QColor FromModel(Color color) {
  return {static_cast<int>(color & 255), static_cast<int>(color >> 8 & 255),
          static_cast<int>(color >> 16 & 255)};
}

QColor FrameColor() { return {201, 160, 10}; }
QColor Ink() { return FromModel(Colors::Navy); }
QColor FadedInk() { return {168, 134, 20}; }

namespace {

// Looked for once: of a list of names the toolkit looks up each, for each font. In the list of all,
// as asking for one by its name has the system look for another that may stand for it.
QString FindFamily() {
  const QStringList wished{QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans"),
                           QStringLiteral("Segoe UI"), QStringLiteral("Helvetica Neue"),
                           QStringLiteral("Arial")};
  const QStringList present = QFontDatabase::families();
  const auto found = std::find_if(wished.begin(), wished.end(),
                                  [&](const QString &each) { return present.contains(each); });
  return found == wished.end() ? QFont().family() : *found;
}

} // namespace

QFont Font(TextSize size, const Scale &scale, QFont::Weight weight) {
  static const QString family = FindFamily();
  QFont font(family);
  font.setPixelSize(std::max(1, qRound(static_cast<double>(size) * scale.zoom)));
  font.setWeight(weight);
  font.setKerning(false);
  font.setStyleStrategy(QFont::PreferNoShaping);
  return font;
}

QFont ForAnyText(QFont font) {
  font.setKerning(true);
  font.setStyleStrategy(QFont::PreferDefault);
  return font;
}

QPalette Windows() {
  const QColor amber = FromModel(Colors::Amber);
  const QColor lightAmber(255, 240, 176);
  QPalette palette = Field(Colors::Navy);
  palette.setColor(QPalette::Window, amber);
  palette.setColor(QPalette::WindowText, Qt::black);
  palette.setColor(QPalette::Button, lightAmber);
  palette.setColor(QPalette::ButtonText, Qt::black);
  palette.setColor(QPalette::Light, QColor(255, 248, 214));
  palette.setColor(QPalette::Midlight, lightAmber);
  palette.setColor(QPalette::Mid, FrameColor());
  palette.setColor(QPalette::Dark, QColor(160, 126, 0));
  palette.setColor(QPalette::Shadow, QColor(96, 76, 0));
  palette.setColor(QPalette::ToolTipBase, QColor(255, 250, 226));
  palette.setColor(QPalette::ToolTipText, Qt::black);
  palette.setColor(QPalette::Disabled, QPalette::WindowText, FadedInk());
  palette.setColor(QPalette::Disabled, QPalette::ButtonText, FadedInk());
  return palette;
}

QPalette Menus() {
  QPalette palette = Windows();
  palette.setColor(QPalette::Window, palette.color(QPalette::Light));
  palette.setColor(QPalette::Base, palette.color(QPalette::Light));
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::Highlight, Ink());
  palette.setColor(QPalette::HighlightedText, FromModel(Colors::Amber));
  palette.setColor(QPalette::Disabled, QPalette::Text, FadedInk());
  return palette;
}

QPalette Field(Color back) {
  const QColor amber = FromModel(Colors::Amber);
  QPalette palette;
  palette.setColor(QPalette::Base, FromModel(back));
  palette.setColor(QPalette::AlternateBase, FromModel(back));
  palette.setColor(QPalette::Text, amber);
  palette.setColor(QPalette::ButtonText, amber); // of a list that can't be typed into
  palette.setColor(QPalette::PlaceholderText, amber);
  palette.setColor(QPalette::Highlight, amber);
  palette.setColor(QPalette::HighlightedText, FromModel(Colors::Navy));
  if (back == Colors::Navy)
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(128, 116, 96));
  return palette;
}

void DrawFocusRing(QPainter &painter, const QRectF &frame, double radius, const QColor &color) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(color, 1.5));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(frame.adjusted(1.75, 1.75, -1.75, -1.75), radius - 1, radius - 1);
  painter.restore();
}

void DrawArrow(QPainter &painter, const QRectF &area, Direction direction, const QColor &color) {
  constexpr double strokePart = 1.0 / 9; // of a side of the square that it stands in
  const double side = std::min(area.width(), area.height());
  const QPointF middle = area.center();
  const double reach = side * 0.2;
  const double depth = side * 0.1;
  const bool lies = direction == Direction::Left || direction == Direction::Right;
  const double sign = direction == Direction::Left || direction == Direction::Up ? -1 : 1;
  const auto at = [&](double along, double across) {
    return lies ? middle + QPointF(sign * along, across) : middle + QPointF(across, sign * along);
  };
  QPainterPath path(at(-depth, -reach));
  path.lineTo(at(depth, 0));
  path.lineTo(at(-depth, reach));
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(
      QPen(color, std::max(1.2, side * strokePart), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(path);
  painter.restore();
}

} // namespace Tessoro::Look
