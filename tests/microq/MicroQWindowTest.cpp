#include "face/microq/MicroQWindow.hpp"
#include "face/microq/BufferModel.hpp"
#include "face/microq/ScreenPace.hpp"
#include "face/microq/WatchedMicroQ.hpp"
#include "service/builtin/BuiltinSource.hpp"
#include "tests/microq/MessageList.hpp"

#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QTreeView>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace Tessoro::Tests {
namespace {

using namespace std::chrono_literals;
using Bytes = std::vector<std::uint8_t>;

Bytes CutoffChange(int value) {
  return {0xF0, 0x3E, 0x10, 0, 0x20, 0, 0, 78, static_cast<std::uint8_t>(value), 0xF7};
}

class MicroQWindowTest : public testing::Test {
protected:
  MicroQWindowTest() { microQ.AddListener(inbox); }

  QPushButton *ButtonCalled(const QString &text) {
    for (QPushButton *button : window.findChildren<QPushButton *>())
      if (button->text() == text)
        return button;
    return nullptr;
  }

  BuiltinMicroQ microQ;
  MessageInbox inbox{MessageModel::MostLines};
  MicroQWindow window{microQ, inbox, QStringLiteral("microQ")};
};

TEST_F(MicroQWindowTest, ShowsWhatCameWithoutBeingAsked) {
  window.show();
  microQ.Receive(CutoffChange(64));
  ASSERT_TRUE(QTest::qWaitFor([&] { return window.Messages().rowCount() == 1; }));
  EXPECT_EQ(window.Messages().At(0).meaning.number, 78);
}

TEST_F(MicroQWindowTest, ShowsWhatCameWhileItWasHidden) {
  microQ.Receive(CutoffChange(64));
  microQ.Receive(CutoffChange(65));
  window.show();
  EXPECT_EQ(window.Messages().rowCount(), 2);
}

TEST_F(MicroQWindowTest, APauseHoldsTheListAndLosesNothing) {
  window.show();
  QTest::mouseClick(ButtonCalled(QStringLiteral("&Pause")), Qt::LeftButton);
  microQ.Receive(CutoffChange(64));
  window.Refresh();
  EXPECT_EQ(window.Messages().rowCount(), 0);
  QTest::mouseClick(ButtonCalled(QStringLiteral("&Resume")), Qt::LeftButton);
  EXPECT_EQ(window.Messages().rowCount(), 1);
}

TEST_F(MicroQWindowTest, ClearEmptiesTheListAndLeavesTheBuffer) {
  window.show();
  microQ.Receive(CutoffChange(64));
  window.Refresh();
  QTest::mouseClick(ButtonCalled(QStringLiteral("C&lear")), Qt::LeftButton);
  EXPECT_EQ(window.Messages().rowCount(), 0);
  microQ.Receive(Bytes{0xF8});
  window.Refresh();
  EXPECT_EQ(window.Messages().rowCount(), 1);
  EXPECT_EQ(microQ.State().parameters[78], 64);
}

TEST_F(MicroQWindowTest, KeysZoomItAsTheyZoomAForm) {
  window.resize(760, 500);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  const auto *list = window.findChild<QTreeView *>();
  const QSize before = window.size();
  const int letters = list->fontInfo().pixelSize();
  const int lines = list->sizeHintForRow(0);
  QTest::keyClick(&window, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(window.Zoom(), 0.75);
  EXPECT_EQ(window.width(), before.width() * 3 / 4);
  EXPECT_NEAR(list->fontInfo().pixelSize(), letters * 0.75, 1);
  EXPECT_LE(list->sizeHintForRow(0), lines);
  QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(window.Zoom(), 1);
  EXPECT_EQ(list->fontInfo().pixelSize(), letters);
  // No larger than its columns have room for on the screen.
  QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_LT(window.Zoom(), 1.25);
  EXPECT_LE(window.width(), window.screen()->availableGeometry().width());
}

// The screen of this test is 800 pixels wide.
TEST_F(MicroQWindowTest, ASmallScreenShortensItAndLeavesItsLettersAsTheyAre) {
  window.OpenAlone();
  EXPECT_EQ(window.Zoom(), 1);
  EXPECT_LE(window.width(), window.screen()->availableGeometry().width());
}

TEST_F(MicroQWindowTest, SmallLettersAreNotCut) {
  const auto roomAroundNumbers = [this] {
    const QList<QTreeView *> lists = window.findChildren<QTreeView *>();
    const QTreeView *list = *std::find_if(lists.begin(), lists.end(), [](const QTreeView *each) {
      return each->accessibleName() == QStringLiteral("Edit buffer");
    });
    return list->columnWidth(BufferModel::Number) -
           list->fontMetrics().horizontalAdvance(QStringLiteral("CC 68"));
  };
  const int atOne = roomAroundNumbers();
  window.SetZoom(0.5);
  EXPECT_EQ(roomAroundNumbers(), atOne);
}

TEST_F(MicroQWindowTest, CopyPutsTheLinesOnTheClipboard) {
  window.show();
  microQ.Receive(CutoffChange(64));
  microQ.Receive(Bytes{0x90, 60, 100});
  window.Refresh();
  QTest::mouseClick(ButtonCalled(QStringLiteral("&Copy")), Qt::LeftButton);
  const QStringList lines =
      QGuiApplication::clipboard()->text().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
  ASSERT_EQ(lines.size(), 2);
  EXPECT_TRUE(
      lines[0].endsWith(QStringLiteral("F0 3E 10 00 20 00 00 4E 40 F7  Filter 1 cutoff = 64")));
  EXPECT_TRUE(lines[1].endsWith(QStringLiteral("Note C3 on, velocity 100")));
}

TEST_F(MicroQWindowTest, OnlyATextThatIsCutIsToldAgainWhereThePointerRests) {
  window.show();
  microQ.Receive(Bytes{0xF0, 0x3E, 0x10, 0, 0x20, 0, 2, 0x6D, 0x7C, 0xF7});
  Bytes longOne(30, 0x2A);
  longOne.front() = 0xF0;
  longOne.back() = 0xF7;
  microQ.Receive(longOne);
  window.Refresh();
  const QTreeView &list = MessageListOf(window);
  const auto toldAt = [&](int row) {
    const QPoint place = list.visualRect(list.model()->index(row, MessageModel::Bytes)).center();
    QHelpEvent rest(QEvent::ToolTip, place, list.viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(list.viewport(), &rest);
    return QToolTip::text().toStdString();
  };
  EXPECT_EQ(toldAt(0), "") << "a parameter change fits";
  std::string whole = "F0";
  for (int i = 0; i < 28; ++i)
    whole += " 2A";
  EXPECT_EQ(toldAt(1), whole + " F7");
}

TEST_F(MicroQWindowTest, LooksWhileSomethingHappensAndThenRests) {
  window.show();
  EXPECT_FALSE(window.IsLooking());
  microQ.Receive(CutoffChange(64));
  ASSERT_TRUE(QTest::qWaitFor([&] { return window.IsLooking(); }));
  // The value is marked for a while, and the mark has to go.
  ASSERT_TRUE(QTest::qWaitFor([&] { return !window.IsLooking(); }));
  EXPECT_EQ(window.Messages().rowCount(), 1);
  EXPECT_FALSE(window.Buffer().HasMarks());
  microQ.Receive(Bytes{0x90, 60, 100});
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.Messages().rowCount() == 2; }));
}

TEST_F(MicroQWindowTest, RestsWhileItIsHidden) {
  window.show();
  window.hide();
  microQ.Receive(CutoffChange(64));
  QCoreApplication::processEvents();
  EXPECT_FALSE(window.IsLooking());
  EXPECT_EQ(window.Messages().rowCount(), 0);
}

TEST_F(MicroQWindowTest, GoesAtThePaceThatItsScreenHasNow) {
  auto *timer = window.findChild<QTimer *>();
  window.show();
  microQ.Receive(CutoffChange(64));
  window.Refresh();
  const auto pace = ScreenPace::Interval(window.screen()->refreshRate());
  EXPECT_EQ(timer->intervalAsDuration(), pace);
  timer->start(pace * 3); // as that of another screen, where the window was before
  window.Refresh();
  EXPECT_EQ(timer->intervalAsDuration(), pace);
}

TEST(ScreenPaceTest, IsNeverFasterThanTheScreen) {
  EXPECT_EQ(ScreenPace::Interval(50), 20ms);
  EXPECT_EQ(ScreenPace::Interval(60), 17ms);
  EXPECT_EQ(ScreenPace::Interval(59.94), 17ms);
  EXPECT_EQ(ScreenPace::Interval(144), 7ms);
  EXPECT_EQ(ScreenPace::Interval(500), 2ms);
}

TEST(ScreenPaceTest, IsTheUsualOneWhereThePlatformSaysNothingCredible) {
  for (const double nonsense : {0.0, -60.0, 1.0, 1e9, std::nan("")})
    EXPECT_EQ(ScreenPace::Interval(nonsense), ScreenPace::Interval(60)) << nonsense;
}

TEST(WatchedMicroQTest, ItsWindowComesUpEachTimeTheDeviceIsOpened) {
  WatchedMicroQ watched;
  EXPECT_EQ(watched.Window(), nullptr);
  watched.MicroQ().Open();
  ASSERT_TRUE(QTest::qWaitFor([&] { return watched.Window() && watched.Window()->isVisible(); }));
  watched.Window()->close();
  EXPECT_FALSE(watched.Window()->isVisible());
  watched.MicroQ().Close();
  watched.MicroQ().Open();
  EXPECT_TRUE(QTest::qWaitFor([&] { return watched.Window()->isVisible(); }));
}

TEST(WatchedMicroQTest, SaysWhetherThePortIsOpen) {
  WatchedMicroQ watched;
  const auto says = [&](const char *text) {
    return QTest::qWaitFor([&] {
      if (watched.Window() == nullptr)
        return false;
      for (const QLabel *label : watched.Window()->findChildren<QLabel *>())
        if (label->text().contains(QLatin1String(text)))
          return true;
      return false;
    });
  };
  watched.MicroQ().Open();
  EXPECT_TRUE(says("The port is open"));
  watched.MicroQ().Close();
  EXPECT_TRUE(says("The port is closed"));
}

TEST(WatchedMicroQTest, MayGoWhileItsDeviceIsOpenAndItsWindowUp) {
  auto microQ = MakeMicroQWithWindow();
  const auto source = MakeBuiltinSource(microQ);
  std::unique_ptr<OutputEnd> end;
  ASSERT_EQ(source->OpenOut(source->OutDevices().at(0).key, end), MidiResultCode::Success);
  QCoreApplication::processEvents();
  EXPECT_EQ(QGuiApplication::topLevelWindows().size(), 1);
  const std::weak_ptr<BuiltinMicroQ> watch = microQ;
  microQ.reset();
  end.reset();                   // tells of its closing, to a window that is about to go
  EXPECT_FALSE(watch.expired()); // the source offers it still
  QCoreApplication::processEvents();
}

} // namespace
} // namespace Tessoro::Tests
