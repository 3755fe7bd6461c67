#include "face/qt/RoundedBox.hpp"

#include <QImage>
#include <QPainter>
#include <QWidget>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <utility>

namespace Tessoro {

namespace {

const QColor Navy(0, 0, 128);
const QColor Gold(201, 160, 10);
constexpr int Side = 64;

QImage OnAmber(double scale, const std::function<void(QPainter &)> &draw) {
  QImage image(Side, Side, QImage::Format_RGB32);
  image.fill(QColor(255, 200, 40));
  QPainter painter(&image);
  painter.scale(scale, scale);
  draw(painter);
  return image;
}

QImage ByThePainter(const QRect &area, double radius, const QColor &fill, const QColor &edge,
                    double scale = 1) {
  return OnAmber(scale, [&](QPainter &painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
    painter.setPen(edge.isValid() ? QPen(edge) : QPen(Qt::NoPen));
    const double inset = edge.isValid() ? 0.5 : 0;
    painter.drawRoundedRect(QRectF(area).adjusted(inset, inset, -inset, -inset), radius, radius);
  });
}

QImage AsABox(const QRect &area, double radius, const QColor &fill, const QColor &edge,
              double scale = 1) {
  return OnAmber(scale,
                 [&](QPainter &painter) { DrawRoundedBox(painter, area, radius, fill, edge); });
}

int LargestDifference(const QImage &one, const QImage &other) {
  int largest = 0;
  for (int y = 0; y < Side; ++y)
    for (int x = 0; x < Side; ++x) {
      const QRgb a = one.pixel(x, y);
      const QRgb b = other.pixel(x, y);
      largest = std::max({largest, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                          std::abs(qBlue(a) - qBlue(b))});
    }
  return largest;
}

// Of 255: blending rounds once more.
constexpr int Unseen = 2;

} // namespace

TEST(RoundedBox, LooksAsThePaintersOwn) {
  for (const QRect &area : {QRect(3, 5, 40, 21), QRect(0, 0, 64, 64), QRect(10, 2, 12, 60)})
    for (const double radius : {2.0, 3.0, 3.7, 4.5})
      for (const auto &[fill, edge] :
           {std::pair(Navy, QColor()), std::pair(QColor(), Gold), std::pair(Navy, Gold)})
        EXPECT_LE(LargestDifference(AsABox(area, radius, fill, edge),
                                    ByThePainter(area, radius, fill, edge)),
                  Unseen)
            << area.width() << " x " << area.height() << ", radius " << radius;
}

TEST(RoundedBox, ThatIsTooSmallForItsCornersLooksAsThePaintersOwn) {
  const QRect area(3, 5, 7, 6);
  EXPECT_EQ(AsABox(area, 3, Navy, Gold), ByThePainter(area, 3, Navy, Gold));
}

TEST(RoundedBox, ThatIsScaledLooksAsThePaintersOwn) {
  const QRect area(3, 5, 30, 20);
  EXPECT_EQ(AsABox(area, 3, Navy, Gold, 1.5), ByThePainter(area, 3, Navy, Gold, 1.5));
}

// As forms are drawn for pictures: the display of the widget itself is a coarser one.
TEST(RoundedBox, OfAWidgetIsDrawnInTheFinerPixelsOfAPicture) {
  class Boxed : public QWidget {
    void paintEvent(QPaintEvent * /*event*/) override {
      QPainter painter(this);
      DrawRoundedBox(painter, QRect(0, 0, 32, 32), 3, Navy, Gold);
    }
  };
  QImage picture(Side, Side, QImage::Format_RGB32);
  picture.setDevicePixelRatio(2);
  picture.fill(QColor(255, 200, 40));
  Boxed widget;
  widget.resize(32, 32);
  widget.render(&picture, {}, {}, QWidget::DrawChildren);
  picture.setDevicePixelRatio(1);
  EXPECT_LE(LargestDifference(picture, ByThePainter(QRect(0, 0, 32, 32), 3, Navy, Gold, 2)),
            Unseen);
}

// As while a window is dragged larger, pixel by pixel.
TEST(RoundedBox, OfNearlyTheSameRadiusHasWholeCorners) {
  const QRect area(0, 0, 40, 30);
  const QColor green(0, 96, 0);
  for (const double radius : {3.0, 3.004})
    EXPECT_LE(LargestDifference(AsABox(area, radius, green, Gold),
                                ByThePainter(area, radius, green, Gold)),
              Unseen);
  for (const double radius : {3.004, 3.0})
    EXPECT_LE(LargestDifference(AsABox(area, radius, green, Navy),
                                ByThePainter(area, radius, green, Navy)),
              Unseen);
}

// Corners are kept by their colours.
TEST(RoundedBox, InAnotherColourHasCornersOfThatColour) {
  const QRect area(0, 0, 30, 20);
  EXPECT_LE(LargestDifference(AsABox(area, 3, Navy, {}), ByThePainter(area, 3, Navy, {})), Unseen);
  EXPECT_LE(LargestDifference(AsABox(area, 3, Gold, {}), ByThePainter(area, 3, Gold, {})), Unseen);
  EXPECT_LE(LargestDifference(AsABox(area, 3, Gold, Navy), ByThePainter(area, 3, Gold, Navy)),
            Unseen);
}

} // namespace Tessoro
