#include "tests/face/FaceTest.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QTest>

namespace Tessoro::Tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MessageBoxTest : public FaceTest {
protected:
  MsgBoxButton Ask(int flags, Qt::Key key) {
    WithNextBox([key](QMessageBox &box) { QTest::keyClick(&box, key); });
    return app.MsgBox("text", flags, "title");
  }
};

TEST_F(MessageBoxTest, TheHandlerGoesOnWhenTheBoxIsAnswered) {
  bool wasUp = false;
  WithNextBox([&](QMessageBox &box) {
    wasUp = true;
    box.accept();
  });
  app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
  EXPECT_TRUE(wasUp);
}

TEST_F(MessageBoxTest, ShowsTextTitleAndIcon) {
  WithNextBox([](QMessageBox &box) {
    EXPECT_EQ(box.text(), QStringLiteral("<b>one</b>\ntwo\n\nthree"));
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.windowTitle(), QStringLiteral("No MIDI port set"));
    EXPECT_EQ(box.icon(), QMessageBox::Warning);
    EXPECT_TRUE(box.isModal());
    box.accept();
  });
  app.MsgBox("<b>one</b>\r\ntwo\n\r\n\rthree", MsgBoxFlags::Exclamation, "No MIDI port set");
}

TEST_F(MessageBoxTest, TheFirstButtonIsTheDefault) {
  EXPECT_EQ(Ask(MsgBoxFlags::OkOnly, Qt::Key_Return), MsgBoxButton::Ok);
  EXPECT_EQ(Ask(MsgBoxFlags::OkCancel, Qt::Key_Return), MsgBoxButton::Ok);
  EXPECT_EQ(Ask(MsgBoxFlags::YesNo, Qt::Key_Return), MsgBoxButton::Yes);
}

TEST_F(MessageBoxTest, EscapeIsCancelOrNoOrOk) {
  EXPECT_EQ(Ask(MsgBoxFlags::OkOnly, Qt::Key_Escape), MsgBoxButton::Ok);
  EXPECT_EQ(Ask(MsgBoxFlags::OkCancel, Qt::Key_Escape), MsgBoxButton::Cancel);
  EXPECT_EQ(Ask(MsgBoxFlags::YesNo, Qt::Key_Escape), MsgBoxButton::No);
}

TEST_F(MessageBoxTest, ClosingTheBoxIsItsEscape) {
  WithNextBox([](QMessageBox &box) { box.close(); });
  EXPECT_EQ(app.MsgBox("text", MsgBoxFlags::OkCancel, "title"), MsgBoxButton::Cancel);
}

TEST_F(MessageBoxTest, NothingElseEntersWhileItIsUp) {
  WithNextBox([this](QMessageBox &box) {
    QTest::mouseClick(&WidgetOf(bench.Push), Qt::LeftButton);
    QTest::mouseClick(&WidgetOf(bench.Check), Qt::LeftButton);
    QTest::keyClicks(&WidgetOf(bench.Name), QStringLiteral("a"));
    QTest::keyClick(&WidgetOf(bench.HBar), Qt::Key_Right);
    WindowOf(bench).close();
    box.accept();
  });
  app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
  LetPass(1);
  EXPECT_THAT(Heard(), IsEmpty());
  EXPECT_TRUE(WindowOf(bench).isVisible());
  EXPECT_EQ(WidgetOf<QLineEdit>(bench.Name).text(), QString());
  EXPECT_FALSE(WidgetOf<QAbstractButton>(bench.Check).isChecked());
}

TEST_F(MessageBoxTest, ATimerThatFallsDueWaitsForItsEndAndTicksOnce) {
  WithNextBox([this](QMessageBox &box) {
    LetPass(100); // five intervals
    EXPECT_THAT(Heard(), IsEmpty());
    bench.Clockwork.SetInterval(10'000);
    box.accept();
  });
  bench.Clockwork.SetEnabled(true);
  app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
  LetPass(1);
  EXPECT_THAT(Heard(), IsEmpty()) << "a new wait has begun";

  WithNextBox([this](QMessageBox &box) {
    LetPass(100);
    EXPECT_THAT(Heard(), IsEmpty());
    box.accept();
  });
  bench.Clockwork.SetInterval(20);
  app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
  EXPECT_THAT(Heard(), IsEmpty()) << "the handler hasn't ended";
  QCoreApplication::sendPostedEvents();
  EXPECT_THAT(Heard(), ElementsAre("Clockwork Timer"));
}

TEST_F(MessageBoxTest, TheHourglassMakesWayForABox) {
  app.Display().SetMousePointer(MousePointer::Hourglass);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  WithNextBox([](QMessageBox &box) {
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    box.accept();
  });
  app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
  EXPECT_NE(QApplication::overrideCursor(), nullptr);
  app.Display().SetMousePointer(MousePointer::Default);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(MessageBoxTest, AFailureThatNothingTrappedIsToldAndEndsTheProgram) {
  WithNextBox([](QMessageBox &box) {
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Tessoro"));
    EXPECT_EQ(box.text(), QStringLiteral("Run-time error '13':\n\nType mismatch"));
    EXPECT_EQ(box.icon(), QMessageBox::Critical);
    box.accept();
  });
  auto &cutoff = WidgetOf<QLineEdit>(app.F_Tessoro.TextF1_cutoff);
  cutoff.selectAll();
  QTest::keyClicks(&cutoff, QStringLiteral("12a"));
  EXPECT_TRUE(app.HasEnded());
  EXPECT_EQ(screen.ExitStatus(), 1);
  EXPECT_EQ(screen.WindowOf(app.F_Tessoro), nullptr);
}

TEST_F(MessageBoxTest, ABoxAboveAFormThatStaysOnTopStaysOnTopToo) {
  app.F_Midi.Show();
  WindowOf(app.F_Midi).activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&WindowOf(app.F_Midi)));
  WithNextBox([](QMessageBox &box) {
    EXPECT_TRUE(box.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    box.accept();
  });
  app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
}

// It may be worked in another window meanwhile.
TEST_F(MessageBoxTest, ABoxAboveAnotherFormIsNotHiddenByTheOneThatStaysOnTop) {
  app.F_Midi.Show();
  WindowOf(bench).activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&WindowOf(bench)));
  bool staysOnTop = false;
  const auto see = [&](QMessageBox &box) {
    staysOnTop = box.windowFlags().testFlag(Qt::WindowStaysOnTopHint);
    box.accept();
  };
  WithNextBox(see);
  app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
  EXPECT_TRUE(staysOnTop);
  app.F_Midi.Unload();
  WithNextBox(see);
  app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
  EXPECT_FALSE(staysOnTop);
}

} // namespace
} // namespace Tessoro::Tests
