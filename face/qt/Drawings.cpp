#include "face/qt/Drawings.hpp"

#include "face/qt/Look.hpp"

#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>
#include <array>

namespace Tessoro {

namespace {

constexpr QColor Amber(255, 217, 54);
constexpr QColor LightAmber(255, 228, 122);
constexpr QColor DeepNavy(0, 0, 58);

QPen RoundPen(const QColor &color, double width) {
  return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void Stroke(QPainter &painter, const QPainterPath &path, const QColor &color, double width) {
  painter.strokePath(path, RoundPen(color, width));
}

QPainterPath LineThrough(std::initializer_list<QPointF> points) {
  QPainterPath path;
  path.addPolygon(QPolygonF(QList<QPointF>(points)));
  return path;
}

// The scale around it: longer marks would crowd the labels, so the three main ones are bolder.
void DrawMarksOfKnob(QPainter &painter, QPointF middle) {
  constexpr int marks = 11;
  constexpr double firstDegrees = -135;
  constexpr double degreesBetween = 27;
  for (int i = 0; i < marks; ++i) {
    const bool isMain = i % (marks / 2) == 0;
    const double angle = qDegreesToRadians(firstDegrees + degreesBetween * i);
    const QPointF outwards(qSin(angle), -qCos(angle));
    painter.setPen(RoundPen(QColor(92, 70, 0, 153), isMain ? 1.1 : 0.8));
    painter.drawLine(middle + 16.2 * outwards, middle + 17.9 * outwards);
  }
}

void DrawKnob(QPainter &painter) {
  const QPointF middle(20, 22);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(122, 92, 0, 71)); // its shadow
  painter.drawEllipse(QPointF(20, 24.6), 14.6, 14);
  DrawMarksOfKnob(painter, middle);

  QRadialGradient skirt(QPointF(20, 18), 17);
  skirt.setColorAt(0, QColor(74, 74, 134));
  skirt.setColorAt(0.75, QColor(27, 27, 94));
  skirt.setColorAt(1, QColor(11, 11, 58));
  painter.setPen(QPen(QColor(5, 5, 42), 0.8));
  painter.setBrush(skirt);
  painter.drawEllipse(middle, 14.2, 14.2);

  QLinearGradient cap(QPointF(20, 11), QPointF(20, 33));
  cap.setColorAt(0, QColor(109, 109, 180));
  cap.setColorAt(0.5, QColor(44, 44, 124));
  cap.setColorAt(1, QColor(18, 18, 78));
  painter.setPen(QPen(QColor(138, 138, 200, 140), 0.7));
  painter.setBrush(cap);
  painter.drawEllipse(middle, 10.4, 10.4);

  painter.setPen(RoundPen(Amber, 2.2));
  painter.drawLine(QPointF(20, 8.9), QPointF(20, 17.2));
}

void DrawPlate(QPainter &painter) {
  painter.setPen(Look::FrameColor());
  painter.setBrush(LightAmber);
  painter.drawRoundedRect(QRectF(0.75, 0.75, 98.5, 39.5), 4, 4);
}

void DrawArrowHeadAtTheEnd(QPainter &painter) {
  Stroke(painter, LineThrough({{89.8, 17.5}, {93, 20.5}, {89.8, 23.5}}), Look::Ink(), 1.6);
}

// A tile with the curve of a low pass.
void DrawFilter(QPainter &painter, QPointF corner) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(Look::Ink());
  painter.drawRoundedRect(QRectF(corner, QSizeF(26, 13)), 2.5, 2.5);
  QPainterPath curve(corner + QPointF(4, 4.5));
  curve.lineTo(corner + QPointF(13, 4.5));
  curve.cubicTo(corner + QPointF(17, 4.5), corner + QPointF(18, 6), corner + QPointF(21.5, 9));
  Stroke(painter, curve, Amber, 1.4);
}

void DrawParallel(QPainter &painter) {
  DrawPlate(painter);
  for (const QPainterPath &wire :
       {LineThrough({{7, 20.5}, {20, 20.5}, {20, 11}, {36, 11}}),
        LineThrough({{20, 20.5}, {20, 30}, {36, 30}}),
        LineThrough({{63, 11}, {80, 11}, {80, 20.5}}),
        LineThrough({{63, 30}, {80, 30}, {80, 20.5}}), LineThrough({{80, 20.5}, {93, 20.5}})})
    Stroke(painter, wire, Look::Ink(), 1.6);
  DrawArrowHeadAtTheEnd(painter);
  DrawFilter(painter, {37, 4.5});
  DrawFilter(painter, {37, 23.5});
}

void DrawSerial(QPainter &painter) {
  DrawPlate(painter);
  for (const QPainterPath &wire :
       {LineThrough({{7, 20.5}, {18, 20.5}}), LineThrough({{45, 20.5}, {54, 20.5}}),
        LineThrough({{81, 20.5}, {93, 20.5}})})
    Stroke(painter, wire, Look::Ink(), 1.6);
  DrawArrowHeadAtTheEnd(painter);
  DrawFilter(painter, {19, 14});
  DrawFilter(painter, {55, 14});
}

// A mosaic with an envelope over it.
struct Mosaic {
  double side;
  double cornerRadius;
  double firstTile;
  double tile;
  double pitch;
  std::size_t columns;
  std::string_view tiles; // the brightness of each, row by row
  double shadowWidth;
  double lineWidth;
};

void DrawMosaic(QPainter &painter, const Mosaic &mosaic, const QPainterPath &envelope) {
  painter.setPen(DeepNavy);
  painter.setBrush(QColor(0, 0, 80));
  painter.drawRoundedRect(QRectF(1, 1, mosaic.side - 2, mosaic.side - 2), mosaic.cornerRadius,
                          mosaic.cornerRadius);
  const std::array<QColor, 4> shades{QColor(13, 13, 132), QColor(18, 18, 140), QColor(27, 27, 158),
                                     QColor(35, 35, 171)};
  painter.setPen(Qt::NoPen);
  for (std::size_t i = 0; i < mosaic.tiles.size(); ++i) {
    const std::size_t column = i % mosaic.columns;
    const std::size_t row = i / mosaic.columns;
    const QPointF corner(mosaic.firstTile + mosaic.pitch * static_cast<double>(column),
                         mosaic.firstTile + mosaic.pitch * static_cast<double>(row));
    painter.setBrush(shades.at(static_cast<std::size_t>(mosaic.tiles[i] - '0')));
    painter.drawRoundedRect(QRectF(corner, QSizeF(mosaic.tile, mosaic.tile)), 0.14 * mosaic.tile,
                            0.14 * mosaic.tile);
  }
  QColor shadow = DeepNavy;
  shadow.setAlphaF(0.55F);
  Stroke(painter, envelope, shadow, mosaic.shadowWidth);
  Stroke(painter, envelope, Amber, mosaic.lineWidth);
}

void DrawLogo(QPainter &painter) {
  DrawMosaic(painter, {96, 12, 4, 19.75, 22.75, 4, "1010302100002031", 9.4, 6.4},
             LineThrough({{15, 78}, {33, 22}, {50, 49}, {67, 49}, {82, 78}}));
}

// Fewer tiles, that are still seen where it is small.
void DrawIcon(QPainter &painter) {
  DrawMosaic(painter, {64, 10, 3.4, 17.47, 19.87, 3, "101302000", 8, 5},
             LineThrough({{11, 51}, {23, 15}, {34, 33}, {44, 33}, {53, 51}}));
}

void DrawDisc(QPainter &painter, const QColor &color, const QColor &edge) {
  painter.setPen(edge);
  painter.setBrush(color);
  painter.drawEllipse(QPointF(16, 16), 14, 14);
}

void DrawDot(QPainter &painter, QPointF middle, double radius) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(Amber);
  painter.drawEllipse(middle, radius, radius);
}

constexpr double SignWidth = 3.4;

void DrawCritical(QPainter &painter) {
  DrawDisc(painter, QColor(192, 24, 24), QColor(122, 12, 12));
  Stroke(painter, LineThrough({{11, 11}, {21, 21}}), Qt::white, SignWidth);
  Stroke(painter, LineThrough({{21, 11}, {11, 21}}), Qt::white, SignWidth);
}

void DrawInformation(QPainter &painter) {
  DrawDisc(painter, Look::Ink(), QColor(0, 0, 80));
  Stroke(painter, LineThrough({{16, 15}, {16, 23}}), Amber, SignWidth);
  DrawDot(painter, {16, 9.6}, 2);
}

void DrawQuestion(QPainter &painter) {
  DrawDisc(painter, Look::Ink(), QColor(0, 0, 80));
  QPainterPath hook(QPointF(11.6, 12.4));
  hook.cubicTo(11.6, 9.6, 13.6, 8, 16, 8);
  hook.cubicTo(18.6, 8, 20.4, 9.7, 20.4, 12);
  hook.cubicTo(20.4, 15, 16, 15.4, 16, 18.6);
  Stroke(painter, hook, Amber, SignWidth);
  DrawDot(painter, {16, 23.8}, 1.9);
}

void DrawWarning(QPainter &painter) {
  painter.setPen(RoundPen(Look::Ink(), 3));
  painter.setBrush(Look::Ink());
  painter.drawPolygon(QPolygonF{{16, 3.5}, {29.5, 27.5}, {2.5, 27.5}});
  Stroke(painter, LineThrough({{16, 11.5}, {16, 19}}), Amber, SignWidth);
  DrawDot(painter, {16, 24}, 1.9);
}

constexpr std::array<Drawing, 9> Drawings{{
    {"knob", {40, 44}, DrawKnob},
    {"parallel", {100, 41}, DrawParallel},
    {"serial", {100, 41}, DrawSerial},
    {"logo", {96, 96}, DrawLogo},
    {"icon", {64, 64}, DrawIcon},
    {"critical", {32, 32}, DrawCritical},
    {"question", {32, 32}, DrawQuestion},
    {"warning", {32, 32}, DrawWarning},
    {"information", {32, 32}, DrawInformation},
}};

} // namespace

const Drawing *FindDrawing(std::string_view name) {
  const auto *const found = std::find_if(Drawings.begin(), Drawings.end(),
                                         [&](const Drawing &each) { return each.name == name; });
  return found == Drawings.end() ? nullptr : found;
}

void Paint(const Drawing &drawing, QPainter &painter, const QRectF &area) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(area.topLeft());
  painter.scale(area.width() / drawing.size.width(), area.height() / drawing.size.height());
  drawing.draw(painter);
  painter.restore();
}

} // namespace Tessoro
