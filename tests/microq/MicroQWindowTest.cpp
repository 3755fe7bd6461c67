#include "face/microq/MicroQWindow.hpp"
#include "face/microq/WatchedMicroQ.hpp"
#include "service/builtin/BuiltinSource.hpp"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace Tessoro::Tests {
namespace {

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

TEST_F(MicroQWindowTest, AnswersWhileAHundredThousandMessagesComeAndKeepsTheLastTenThousand) {
  constexpr int count = 100'000;
  window.show();
  std::atomic<bool> isSending = true;
  std::thread sender([&] {
    for (int i = 0; i < count; ++i)
      microQ.Receive(Bytes{0xB0, static_cast<std::uint8_t>(i / 128 % 128),
                           static_cast<std::uint8_t>(i % 128)});
    isSending = false;
  });
  int clicks = 0;
  while (isSending) {
    QTest::mouseClick(ButtonCalled(QStringLiteral("&Pause")), Qt::LeftButton);
    QTest::mouseClick(ButtonCalled(QStringLiteral("&Resume")), Qt::LeftButton);
    QCoreApplication::processEvents();
    ++clicks;
  }
  sender.join();
  window.Refresh();
  EXPECT_GT(clicks, 0);
  EXPECT_EQ(inbox.Total(), static_cast<std::uint64_t>(count));
  ASSERT_EQ(window.Messages().rowCount(), 10000);
  for (int row = 0; row < 10000; ++row) {
    const int sent = count - 10000 + row;
    const MicroQMessage &meaning = window.Messages().At(row).meaning;
    ASSERT_EQ(meaning.number, sent / 128 % 128) << row;
    ASSERT_EQ(meaning.value, sent % 128) << row;
  }
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
