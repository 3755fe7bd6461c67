// What the windows show beside texts: knobs, the routing, the logo, the signs of message boxes.
#include "face/qt/Drawings.hpp"
#include "face/qt/PictureStore.hpp"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QSvgRenderer>
#include <QTest>

#include <cstdlib>

namespace Tessoro {
namespace {

QImage Blank(const QSize &size) {
  QImage image(size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  return image;
}

QImage Drawn(std::string_view name, const QSize &size) {
  QImage image = Blank(size);
  QPainter painter(&image);
  Paint(*FindDrawing(name), painter, QRectF(QPointF(0, 0), size));
  return image;
}

// How far a pixel's four channels are apart, all in all.
int Difference(QRgb one, QRgb other) {
  return std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
         std::abs(qBlue(one) - qBlue(other)) + std::abs(qAlpha(one) - qAlpha(other));
}

double MeanDifference(const QImage &one, const QImage &other) {
  double sum = 0;
  for (int y = 0; y < one.height(); ++y)
    for (int x = 0; x < one.width(); ++x)
      sum += Difference(one.pixel(x, y), other.pixel(x, y));
  return sum / (one.width() * one.height());
}

bool IsEmpty(const QImage &image) { return image == Blank(image.size()); }

TEST(Drawings, HaveNoneForAnUnknownName) {
  EXPECT_EQ(FindDrawing("fader"), nullptr);
  EXPECT_TRUE(PictureStore().Draw("fader", {40, 40}, 1).isNull());
}

TEST(Drawings, AreSharpOnADenseScreen) {
  const QPixmap knob = PictureStore().Draw("knob", {40, 44}, 2);
  EXPECT_EQ(knob.size(), QSize(80, 88));
  EXPECT_EQ(knob.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
            Drawn("knob", {80, 88}));
}

TEST(Drawings, FillTheWholeAreaWhateverItsProportion) {
  const QImage wide = Drawn("serial", {400, 41});
  EXPECT_FALSE(IsEmpty(wide.copy(0, 0, 8, 41)));
  EXPECT_FALSE(IsEmpty(wide.copy(392, 0, 8, 41)));
}

TEST(Drawings, OfTheRoutingsDiffer) {
  EXPECT_GT(MeanDifference(Drawn("serial", {100, 41}), Drawn("parallel", {100, 41})), 10);
}

TEST(Drawings, OfTheKnobIsItsOwnMirrorBesideItsPointersShade) {
  const QImage knob = Drawn("knob", {160, 176});
  EXPECT_LT(MeanDifference(knob, knob.mirrored(true, false)), 1);
}

// One picture in two hands: the packages bring the icon as a file.
TEST(Drawings, OfTheWindowsIconIsTheIconOfTheDesktop) {
  QSvgRenderer file(QStringLiteral(TESSORO_ICON));
  ASSERT_TRUE(file.isValid());
  QImage fromFile = Blank({128, 128});
  QPainter painter(&fromFile);
  file.render(&painter);
  painter.end();
  EXPECT_FALSE(IsEmpty(fromFile));
  EXPECT_LT(MeanDifference(Drawn("icon", {128, 128}), fromFile), 1);
}

TEST(Drawings, GiveEachWindowItsIcon) {
  ASSERT_TRUE(QTest::qWaitFor([] { return !QApplication::windowIcon().isNull(); }));
  const QIcon icon = QApplication::windowIcon();
  for (const int side : {32, 64})
    EXPECT_EQ(icon.pixmap(side).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied),
              Drawn("icon", {side, side}));
}

TEST(Drawings, GiveMessageBoxesTheirSigns) {
  const auto signOf = [](QStyle::StandardPixmap sign) {
    return QApplication::style()->standardIcon(sign).pixmap(48).toImage().convertToFormat(
        QImage::Format_ARGB32_Premultiplied);
  };
  EXPECT_EQ(signOf(QStyle::SP_MessageBoxCritical), Drawn("critical", {48, 48}));
  EXPECT_EQ(signOf(QStyle::SP_MessageBoxQuestion), Drawn("question", {48, 48}));
  EXPECT_EQ(signOf(QStyle::SP_MessageBoxWarning), Drawn("warning", {48, 48}));
  EXPECT_EQ(signOf(QStyle::SP_MessageBoxInformation), Drawn("information", {48, 48}));
}

} // namespace
} // namespace Tessoro
