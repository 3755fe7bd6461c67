#include "face/qt/ScrollBarView.hpp"
#include "tests/face/FaceTest.hpp"

#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWheelEvent>

namespace Tessoro::Tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ScrollBarViewTest : public FaceTest {
protected:
  void SetUp() override {
    FaceTest::SetUp();
    lying = &WidgetOf<QScrollBar>(bench.HBar);
    standing = &WidgetOf<QScrollBar>(bench.VBar);
  }

  std::vector<std::string> HeardOfBars() {
    std::vector<std::string> heard = Heard();
    std::erase_if(heard, [](const std::string &event) { return event.find("Bar") != 1; });
    return heard;
  }

  static QPoint PlaceOf(const QScrollBar &bar, QStyle::SubControl part) {
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = bar.orientation();
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.sliderPosition = bar.sliderPosition();
    option.sliderValue = bar.value();
    option.pageStep = bar.pageStep();
    if (bar.orientation() == Qt::Horizontal)
      option.state |= QStyle::State_Horizontal;
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar).center();
  }

  static void Click(QScrollBar &bar, QStyle::SubControl part) {
    QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, PlaceOf(bar, part));
  }

  static void TurnWheel(QScrollBar &bar, int eighthsOfADegree) {
    QWheelEvent turn(QPointF(5, 5), bar.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, eighthsOfADegree),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&bar, &turn);
  }

  QScrollBar *lying = nullptr;
  QScrollBar *standing = nullptr;
};

TEST_F(ScrollBarViewTest, ArrowsMoveByOneAndTheTroughByALargeChange) {
  Click(*lying, QStyle::SC_ScrollBarAddLine);
  Click(*lying, QStyle::SC_ScrollBarSubLine);
  Click(*lying, QStyle::SC_ScrollBarAddPage);
  EXPECT_THAT(HeardOfBars(), ElementsAre("HBar Change 1", "HBar Change 0", "HBar Change 4"));
}

TEST_F(ScrollBarViewTest, TheTopOfAnInvertedBarIsItsMin) {
  bench.VBar.SetValue(127);
  EXPECT_EQ(standing->value(), 0);
  Heard();
  Click(*standing, QStyle::SC_ScrollBarAddLine);
  Click(*standing, QStyle::SC_ScrollBarSubLine);
  Click(*standing, QStyle::SC_ScrollBarAddPage);
  EXPECT_THAT(HeardOfBars(), ElementsAre("VBar Change 126", "VBar Change 127", "VBar Change 117"));
}

TEST_F(ScrollBarViewTest, NothingIsHeardOfADraggedThumbUntilItIsLetGo) {
  const QPoint thumb = PlaceOf(*standing, QStyle::SC_ScrollBarSlider);
  QTest::mousePress(standing, Qt::LeftButton, Qt::NoModifier, thumb);
  for (int y = 1; y <= 30; ++y)
    QTest::mouseMove(standing, thumb - QPoint(0, y));
  EXPECT_THAT(HeardOfBars(), IsEmpty());
  EXPECT_EQ(bench.VBar.Value(), 0);
  QTest::mouseRelease(standing, Qt::LeftButton, Qt::NoModifier, thumb - QPoint(0, 30));
  const std::vector<std::string> heard = HeardOfBars();
  ASSERT_EQ(heard.size(), 1U);
  EXPECT_EQ(heard.front(), "VBar Change " + std::to_string(bench.VBar.Value()));
  EXPECT_GT(bench.VBar.Value(), 30);
}

TEST_F(ScrollBarViewTest, KeysMoveTheThumbTheWayTheyPoint) {
  bench.VBar.SetValue(60);
  Heard();
  for (const Qt::Key key :
       {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End})
    QTest::keyClick(standing, key);
  EXPECT_THAT(HeardOfBars(), ElementsAre("VBar Change 61", "VBar Change 60", "VBar Change 70",
                                         "VBar Change 60", "VBar Change 127", "VBar Change 0"));
  QTest::keyClick(lying, Qt::Key_Right);
  QTest::keyClick(lying, Qt::Key_Left);
  EXPECT_THAT(HeardOfBars(), ElementsAre("HBar Change 1", "HBar Change 0"));
}

TEST_F(ScrollBarViewTest, TheWheelPassesByWithoutTheFocus) {
  Focus(bench.Box);
  TurnWheel(*standing, 120);
  EXPECT_THAT(HeardOfBars(), IsEmpty());
}

TEST_F(ScrollBarViewTest, TheWheelUpMovesTheThumbUpOrToTheRight) {
  Focus(bench.VBar);
  TurnWheel(*standing, 120);
  TurnWheel(*standing, 240);
  TurnWheel(*standing, -120);
  EXPECT_THAT(HeardOfBars(),
              ElementsAre("VBar Change 1", "VBar Change 2", "VBar Change 3", "VBar Change 2"));
  Focus(bench.HBar);
  TurnWheel(*lying, 60);
  EXPECT_THAT(HeardOfBars(), IsEmpty()) << "half a step";
  TurnWheel(*lying, 60);
  EXPECT_THAT(HeardOfBars(), ElementsAre("HBar Change 1"));
}

TEST_F(ScrollBarViewTest, AHandlerMayPutTheThumbBack) {
  bench.HBar.onChange = [this] { bench.HBar.SetValue(0); };
  QTest::keyClick(lying, Qt::Key_End);
  EXPECT_EQ(bench.HBar.Value(), 0);
  EXPECT_EQ(lying->value(), 12);
}

TEST_F(ScrollBarViewTest, BarsAreReachedByTab) {
  EXPECT_TRUE(lying->focusPolicy() & Qt::TabFocus);
  EXPECT_TRUE(standing->focusPolicy() & Qt::TabFocus);
}

TEST_F(ScrollBarViewTest, AHeldArrowStopsWhenABoxComesUp) {
  bench.HBar.onChange = [this] {
    bench.heard.push_back("HBar Change " + std::to_string(bench.HBar.Value()));
    app.MsgBox("no port", MsgBoxFlags::Critical, "MIDI");
  };
  WithNextBox([](QMessageBox &box) {
    LetPass(900); // an arrow that is held would have gone on by now
    box.accept();
  });
  QTest::mousePress(lying, Qt::LeftButton, Qt::NoModifier,
                    PlaceOf(*lying, QStyle::SC_ScrollBarAddLine));
  LetPass(900);
  EXPECT_THAT(HeardOfBars(), ElementsAre("HBar Change 1"));
}

} // namespace
} // namespace Tessoro::Tests
