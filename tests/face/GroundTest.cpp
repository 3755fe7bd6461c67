// What a ground does for the controls that it draws.
#include "tests/face/FaceTest.hpp"

#include <QHelpEvent>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QTest>
#include <QToolTip>

namespace Tessoro::Tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GroundTest : public FaceTest {
protected:
  Tessoro::Ground &Ground() const { return GroundOf(bench); }
  QPoint MiddleOf(const Control &control) const { return DrawnFor(control)->Area().center(); }
  QColor ColorAt(QPoint place) const { return Ground().grab().toImage().pixelColor(place); }
  // How many pixels there are that aren't the ground's.
  int InkOf(const Control &control) const {
    const QImage image = Ground().grab(DrawnFor(control)->Area()).toImage();
    const QColor bare = Ground().palette().color(QPalette::Window);
    int ink = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        ink += image.pixelColor(x, y) == bare ? 0 : 1;
    return ink;
  }
  void Press(QPoint place) const { QTest::mousePress(&Ground(), Qt::LeftButton, {}, place); }
  void Release(QPoint place) const { QTest::mouseRelease(&Ground(), Qt::LeftButton, {}, place); }

  static constexpr QPoint BareGround{2, 2};
};

TEST_F(GroundTest, ALabelAndAFrameAreClickedAndTheGroundBelowIsNot) {
  QTest::mouseClick(&Ground(), Qt::LeftButton, {}, MiddleOf(bench.Tag));
  QTest::mouseClick(&Ground(), Qt::LeftButton, {},
                    DrawnFor(bench.Group)->Area().topLeft() + QPoint(2, 2));
  EXPECT_THAT(Heard(), ElementsAre("Tag Click", "Group Click"));
}

TEST_F(GroundTest, AClickBeginsAndEndsOnTheSame) {
  Press(MiddleOf(bench.Tag));
  Release(BareGround);
  Press(MiddleOf(bench.Tag));
  Release(MiddleOf(bench.Title));
  EXPECT_THAT(Heard(), IsEmpty());
  Press(BareGround);
  Release(BareGround);
  EXPECT_THAT(Heard(), ElementsAre("Form Click"));
}

TEST_F(GroundTest, AButtonThatIsLeftWhilePressedClicksTheGround) {
  QTest::mouseClick(&Ground(), Qt::LeftButton, {}, MiddleOf(bench.Tag));
  Heard();
  QTest::mousePress(&WidgetOf(bench.Push), Qt::LeftButton);
  const QPoint tag = Ground().mapTo(&WindowOf(bench), MiddleOf(bench.Tag));
  QTest::mouseRelease(&WidgetOf(bench.Push), Qt::LeftButton, {},
                      WidgetOf(bench.Push).mapFrom(&WindowOf(bench), tag));
  EXPECT_THAT(Heard(), ElementsAre("Form Click"));
}

TEST_F(GroundTest, NothingIsClickedWhileABoxIsOpen) {
  WithNextBox([this](QMessageBox &box) {
    Press(MiddleOf(bench.Tag));
    Release(MiddleOf(bench.Tag));
    Press(BareGround);
    Release(BareGround);
    box.accept();
  });
  app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
  EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(GroundTest, OnlyTheLeftButtonClicks) {
  QTest::mouseClick(&Ground(), Qt::RightButton, {}, MiddleOf(bench.Tag));
  QTest::mouseClick(&Ground(), Qt::RightButton, {}, BareGround);
  EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(GroundTest, WhatIsHiddenOrDisabledLeavesItsClickToTheGround) {
  bench.Tag.SetVisible(false);
  QTest::mouseClick(&Ground(), Qt::LeftButton, {}, MiddleOf(bench.Tag));
  bench.Tag.SetVisible(true);
  bench.Tag.SetEnabled(false);
  QTest::mouseClick(&Ground(), Qt::LeftButton, {}, MiddleOf(bench.Tag));
  EXPECT_THAT(Heard(), ElementsAre("Form Click", "Form Click"));
}

TEST_F(GroundTest, ADisabledWidgetLeavesItsClickToTheGroundAndNotToTheFrameBelow) {
  bench.Drive.SetEnabled(false);
  QTest::mouseClick(&Ground(), Qt::LeftButton, {}, WidgetOf(bench.Drive).geometry().center());
  EXPECT_THAT(Heard(), ElementsAre("Form Click"));
}

TEST_F(GroundTest, ALabelShowsItsCaptionAsItStandsNow) {
  const int before = InkOf(bench.Tag);
  bench.Tag.SetCaption("i");
  EXPECT_GT(InkOf(bench.Tag), 0);
  EXPECT_LT(InkOf(bench.Tag), before);
  bench.Tag.SetVisible(false);
  EXPECT_EQ(InkOf(bench.Tag), 0);
}

TEST_F(GroundTest, BreaksAtTheEndOfACaptionMoveNothing) {
  const QImage before = Ground().grab().toImage();
  bench.Tag.SetCaption("label\r\n\r\n");
  EXPECT_EQ(Ground().grab().toImage(), before);
}

TEST_F(GroundTest, ATabIsABlank) {
  bench.Tag.SetCaption("a b");
  const QImage blank = Ground().grab().toImage();
  bench.Tag.SetCaption("a\tb");
  EXPECT_EQ(Ground().grab().toImage(), blank);
}

TEST_F(GroundTest, ATextThatIsTooHighStaysInItsPlace) {
  EXPECT_GT(InkOf(bench.Low), 0);
  const QRect area = DrawnFor(bench.Low)->Area();
  const QColor bare = Ground().palette().color(QPalette::Window);
  for (int x = area.left(); x <= area.right(); ++x) {
    EXPECT_EQ(ColorAt({x, area.top() - 1}), bare) << x;
    EXPECT_EQ(ColorAt({x, area.bottom() + 1}), bare) << x;
  }
}

TEST_F(GroundTest, ADisabledLabelIsFaded) {
  const QImage before = Ground().grab().toImage();
  bench.Tag.SetEnabled(false);
  EXPECT_NE(Ground().grab().toImage(), before);
}

// Notes which part of a widget is painted.
class PaintWatch : public QObject {
public:
  explicit PaintWatch(QWidget &widget) { widget.installEventFilter(this); }

  bool eventFilter(QObject * /*watched*/, QEvent *event) override {
    if (event->type() == QEvent::Paint)
      painted += static_cast<QPaintEvent *>(event)->region();
    return false;
  }

  QRegion painted;
};

TEST_F(GroundTest, ALabelThatChangesPaintsNoMoreThanItself) {
  LetPass(50);
  const PaintWatch watch(Ground());
  bench.Tag.SetCaption("other");
  LetPass(50);
  EXPECT_EQ(watch.painted.boundingRect(), DrawnFor(bench.Tag)->Area());
}

TEST_F(GroundTest, ALineThatMovesPaintsNoMoreThanItsOldPlaceAndItsNewOne) {
  LetPass(50);
  const PaintWatch watch(Ground());
  bench.Slope.SetY1(3600);
  bench.Slope.SetY2(3600);
  LetPass(50);
  EXPECT_TRUE(watch.painted.contains(QPoint(230, 140))) << "where it was";
  EXPECT_TRUE(watch.painted.contains(QPoint(230, 240))) << "where it is";
  EXPECT_FALSE(watch.painted.contains(QPoint(10, 270)));
}

TEST_F(GroundTest, ALineIsDrawnWhereItsEndsAreAndGoneFromWhereTheyWere) {
  const auto isInk = [this](QPoint place) {
    const QColor color = ColorAt(place);
    return color.blue() > 100 && color.red() < 100;
  };
  bench.Slope.SetX1(3000);
  bench.Slope.SetX2(4200);
  bench.Slope.SetY1(3600);
  bench.Slope.SetY2(3600);
  EXPECT_TRUE(isInk({240, 241}) || isInk({240, 239}) || isInk({240, 240}));
  bench.Slope.SetY1(3750);
  bench.Slope.SetY2(3750);
  EXPECT_FALSE(isInk({240, 240}));
  EXPECT_TRUE(isInk({240, 250}) || isInk({240, 249}));
}

TEST_F(GroundTest, AToolTipIsThatOfTheLabelBelowThePointer) {
  const auto tipAt = [this](QPoint place) {
    QHelpEvent help(QEvent::ToolTip, place, Ground().mapToGlobal(place));
    QCoreApplication::sendEvent(&Ground(), &help);
    return help.isAccepted() ? QToolTip::text() : QString();
  };
  EXPECT_EQ(tipAt(MiddleOf(bench.Readout)), QStringLiteral("A folder"));
  EXPECT_EQ(tipAt(MiddleOf(bench.Tag)), QString());
  EXPECT_EQ(tipAt(BareGround), QString());
  bench.Readout.SetVisible(false);
  EXPECT_EQ(tipAt(MiddleOf(bench.Readout)), QString());
}

TEST_F(GroundTest, AToolTipGoesWhenThePointerLeavesItsLabel) {
  const auto show = [this](QPoint place) {
    QHelpEvent help(QEvent::ToolTip, place, Ground().mapToGlobal(place));
    QCoreApplication::sendEvent(&Ground(), &help);
  };
  const auto hasGone = [] { return !QToolTip::isVisible(); };
  show(MiddleOf(bench.Readout));
  ASSERT_FALSE(hasGone());
  const QPointF place(MiddleOf(bench.Tag));
  QMouseEvent move(QEvent::MouseMove, place, Ground().mapToGlobal(place), Qt::NoButton,
                   Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&Ground(), &move);
  EXPECT_TRUE(QTest::qWaitFor(hasGone)) << "onto the ground";
  show(MiddleOf(bench.Readout));
  ASSERT_FALSE(hasGone());
  show(WidgetOf(bench.Combo).geometry().center()); // as the combo has no tool tip of its own
  EXPECT_TRUE(QTest::qWaitFor(hasGone)) << "onto a widget";
}

} // namespace
} // namespace Tessoro::Tests
