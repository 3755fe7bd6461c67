#include "face/qt/RoundedBox.hpp"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>
#include <QString>

#include <cmath>
#include <utility>

namespace Tessoro {

namespace {

void DrawSmoothed(QPainter &painter, const QRectF &area, double radius, const QColor &fill,
                  const QColor &edge) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
  if (edge.isValid()) {
    painter.setPen(edge);
    painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
  } else {
    painter.setPen(Qt::NoPen);
    painter.drawRoundedRect(area, radius, radius);
  }
  painter.restore();
}

constexpr double StepsOfRadius = 64; // finer than eyes are

double RoundedRadius(double radius) { return std::round(radius * StepsOfRadius) / StepsOfRadius; }

// A name in the toolkit's cache, which forgets what was not asked for the longest. The radius is a
// rounded one, so that what has one name has corners of one size.
QString NameOf(double radius, QRgb fill, QRgb edge) {
  const auto steps = static_cast<unsigned>(std::lround(radius * StepsOfRadius));
  QString name = QStringLiteral("Tessoro box ");
  for (const unsigned part : {steps, fill, edge}) {
    name += QChar(static_cast<char16_t>(part >> 16));
    name += QChar(static_cast<char16_t>(part & 0xFFFF));
  }
  return name;
}

QRgb Bits(const QColor &color) { return color.isValid() ? color.rgba() : 0; }

// The smallest box that has such corners, with one pixel between them.
QPixmap SmallestBox(int corner, double radius, const QColor &fill, const QColor &edge) {
  const QString name = NameOf(radius, Bits(fill), Bits(edge));
  QPixmap box;
  if (QPixmapCache::find(name, &box))
    return box;
  const int side = 2 * corner + 1;
  QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  DrawSmoothed(painter, QRectF(0, 0, side, side), radius, fill, edge);
  painter.end();
  box = QPixmap::fromImage(std::move(image));
  QPixmapCache::insert(name, box);
  return box;
}

// Whether one unit of the painter is one pixel in the end, whatever it is redirected to.
bool StandsOnPixels(const QPainter &painter) {
  return painter.deviceTransform().type() <= QTransform::TxTranslate;
}

} // namespace

void DrawRoundedBox(QPainter &painter, const QRect &area, double radius, const QColor &fill,
                    const QColor &edge) {
  const double kept = RoundedRadius(radius);
  const int corner = static_cast<int>(std::ceil(kept)) + 1;
  const QRect middle = area.adjusted(corner, corner, -corner, -corner);
  if (!StandsOnPixels(painter) || middle.isEmpty()) {
    DrawSmoothed(painter, area, radius, fill, edge);
    return;
  }

  const QPixmap box = SmallestBox(corner, kept, fill, edge);
  const int right = middle.right() + 1;
  const int bottom = middle.bottom() + 1;
  const int second = corner + 1; // where the far corners begin in the smallest box
  painter.drawPixmap(area.left(), area.top(), box, 0, 0, corner, corner);
  painter.drawPixmap(right, area.top(), box, second, 0, corner, corner);
  painter.drawPixmap(area.left(), bottom, box, 0, second, corner, corner);
  painter.drawPixmap(right, bottom, box, second, second, corner, corner);

  const int width = edge.isValid() ? 1 : 0; // of the edge
  if (fill.isValid()) {
    painter.fillRect(middle.adjusted(0, width - corner, 0, corner - width), fill);
    painter.fillRect(area.left() + width, middle.top(), corner - width, middle.height(), fill);
    painter.fillRect(right, middle.top(), corner - width, middle.height(), fill);
  }
  if (edge.isValid()) {
    painter.fillRect(middle.left(), area.top(), middle.width(), 1, edge);
    painter.fillRect(middle.left(), area.bottom(), middle.width(), 1, edge);
    painter.fillRect(area.left(), middle.top(), 1, middle.height(), edge);
    painter.fillRect(area.right(), middle.top(), 1, middle.height(), edge);
  }
}

} // namespace Tessoro
