// A note key under the keyboard: held for as long as a key is, and never longer.
#include "tests/face/FaceTest.hpp"

#include <QApplication>
#include <QKeyEvent>
#include <QTest>

namespace Tessoro::Tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto Down = "Key MouseDown 1 150 600";
constexpr auto Up = "Key MouseUp 1 150 600";

class NoteKeyTest : public FaceTest {
protected:
  NoteKeyTest() : FaceTest(false) {}

  void SetUp() override {
    FaceTest::SetUp();
    Focus(bench.Key);
  }

  QWindow *Window() const { return WindowOf(bench).windowHandle(); }

  void Press(Qt::Key key) const { QTest::keyPress(Window(), key); }
  // A release counts when it is clear that the key isn't repeating.
  void LetGoOf(Qt::Key key) const {
    QTest::keyRelease(Window(), key);
    LetPass(30);
  }

  // At that instant, marked as a repetition or not.
  void Send(QEvent::Type type, int key, quint64 time, bool isMarked = false) const {
    QKeyEvent event(type, key, Qt::NoModifier, QStringLiteral(" "), isMarked);
    event.setTimestamp(time);
    QCoreApplication::sendEvent(&WidgetOf(bench.Key), &event);
  }
};

TEST_F(NoteKeyTest, ItSoundsForAsLongAsSpaceOrReturnIsHeld) {
  for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
    Press(key);
    EXPECT_THAT(Heard(), ElementsAre(Down)) << key;
    LetGoOf(key);
    EXPECT_THAT(Heard(), ElementsAre(Up)) << key;
  }
}

TEST_F(NoteKeyTest, AKeyThatRepeatsPressesOnce) {
  Press(Qt::Key_Space);
  quint64 time = 48'312'874;
  for (const bool isMarked : {false, true, true, false, false}) {
    Send(QEvent::KeyRelease, Qt::Key_Space, time, isMarked);
    Send(QEvent::KeyPress, Qt::Key_Space, time, isMarked);
    LetPass(30);
    time += 40;
  }
  EXPECT_THAT(Heard(), ElementsAre(Down));
  LetGoOf(Qt::Key_Space);
  EXPECT_THAT(Heard(), ElementsAre(Up));
}

// As where the focus came with Return, which is still held.
TEST_F(NoteKeyTest, AKeyThatWasDownBeforePressesNothing) {
  for (const bool isMarked : {false, true}) {
    constexpr quint64 time = 48'312'874;
    Send(QEvent::KeyRelease, Qt::Key_Return, time, isMarked);
    Send(QEvent::KeyPress, Qt::Key_Return, time, isMarked);
    if (isMarked)
      Send(QEvent::KeyPress, Qt::Key_Return, time + 40,
           isMarked); // where repetitions have no release
    LetGoOf(Qt::Key_Return);
    EXPECT_THAT(Heard(), IsEmpty()) << isMarked;
  }
}

TEST_F(NoteKeyTest, PressesThatFollowEachOtherFastAreAsMany) {
  for (const quint64 time : {1000U, 1002U, 1004U}) {
    Send(QEvent::KeyPress, Qt::Key_Space, time);
    Send(QEvent::KeyRelease, Qt::Key_Space, time + 1);
  }
  LetPass(30);
  EXPECT_THAT(Heard(), ElementsAre(Down, Up, Down, Up, Down, Up));
}

TEST_F(NoteKeyTest, TheKeyThatPressedItReleasesIt) {
  Press(Qt::Key_Space);
  Press(Qt::Key_Return);
  LetGoOf(Qt::Key_Return);
  EXPECT_THAT(Heard(), ElementsAre(Down));
  LetGoOf(Qt::Key_Space);
  EXPECT_THAT(Heard(), ElementsAre(Up));
}

TEST_F(NoteKeyTest, OtherKeysPlayNothing) {
  QTest::keyClicks(&WidgetOf(bench.Key), QStringLiteral("cdefgab12345"));
  QTest::keyClick(Window(), Qt::Key_Escape);
  EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(NoteKeyTest, ItLooksPressedWhileItIs) {
  QWidget &key = WidgetOf(bench.Key);
  const QImage before = key.grab().toImage();
  Press(Qt::Key_Space);
  EXPECT_NE(key.grab().toImage(), before);
  LetGoOf(Qt::Key_Space);
  EXPECT_EQ(key.grab().toImage(), before);
}

TEST_F(NoteKeyTest, WhereTheFocusLeavesItIsReleasedOnce) {
  for (const Qt::Key away : {Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Left, Qt::Key_Right}) {
    Focus(bench.Key);
    Press(Qt::Key_Space);
    QTest::keyClick(Window(), away);
    LetGoOf(Qt::Key_Space);
    EXPECT_FALSE(WidgetOf(bench.Key).hasFocus()) << away;
    std::vector<std::string> heard = Heard();
    std::erase_if(heard, [](const std::string &each) { return !each.starts_with("Key "); });
    EXPECT_THAT(heard, ElementsAre(Down, Up)) << away;
  }
}

TEST_F(NoteKeyTest, AWindowThatGoesBehindAnotherReleasesIt) {
  Press(Qt::Key_Space);
  WindowOf(app.F_Tessoro).activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&WindowOf(app.F_Tessoro)));
  EXPECT_THAT(Heard(), ElementsAre(Down, Up));
}

TEST_F(NoteKeyTest, AWindowThatIsHiddenReleasesIt) {
  Press(Qt::Key_Space);
  WindowOf(bench).hide();
  EXPECT_THAT(Heard(), ElementsAre(Down, Up));
}

TEST_F(NoteKeyTest, AMenuThatOpensReleasesIt) {
  Press(Qt::Key_Space);
  QTest::keyClick(Window(), Qt::Key_O, Qt::AltModifier);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QApplication::activePopupWidget()->close();
  LetGoOf(Qt::Key_Space);
  EXPECT_THAT(Heard(), ElementsAre(Down, Up));
}

TEST_F(NoteKeyTest, AnEntryOfTheMenuFindsItReleased) {
  Press(Qt::Key_Space);
  QTest::keyClick(Window(), Qt::Key_O, Qt::ControlModifier);
  LetGoOf(Qt::Key_Space);
  EXPECT_THAT(Heard(), ElementsAre(Down, Up, "Menu_Order Click"));
}

TEST_F(NoteKeyTest, TheMenuFindsReleasedWhatTheMouseHolds) {
  QWidget &key = WidgetOf(bench.Key);
  for (const auto modifier : {Qt::AltModifier, Qt::ControlModifier}) {
    QTest::mousePress(&key, Qt::LeftButton);
    QTest::keyClick(Window(), Qt::Key_O, modifier);
    const std::vector<std::string> heard = Heard();
    ASSERT_GE(heard.size(), 2U);
    EXPECT_THAT(heard[1], testing::StartsWith("Key MouseUp"));
    if (QWidget *list = QApplication::activePopupWidget())
      list->close();
    QTest::mouseRelease(&key, Qt::LeftButton);
    EXPECT_THAT(Heard(), IsEmpty());
  }
}

TEST_F(NoteKeyTest, AKnobIsDraggedOnPastAnEntryOfTheMenu) {
  QWidget &knob = WidgetOf(bench.Knob);
  QTest::mousePress(&knob, Qt::LeftButton);
  Heard();
  QTest::keyClick(Window(), Qt::Key_O, Qt::ControlModifier);
  EXPECT_THAT(Heard(), ElementsAre("Menu_Order Click"));
  QTest::mouseRelease(&knob, Qt::LeftButton);
  EXPECT_THAT(Heard(), testing::Contains(testing::StartsWith("Knob MouseUp")));
}

// The box takes the release away, and until it has gone no handler may run.
TEST_F(NoteKeyTest, ABoxReleasesItWhenItHasGone) {
  bench.Key.onMouseDown = [this](const MouseEvent &) {
    bench.heard.emplace_back("press");
    app.MsgBox("no port", MsgBoxFlags::Critical, "MIDI");
    bench.heard.emplace_back("pressed");
  };
  WithNextBox([](QMessageBox &box) {
    QTest::keyRelease(&box, Qt::Key_Space);
    box.accept();
  });
  Press(Qt::Key_Space);
  LetPass(10);
  EXPECT_THAT(Heard(), ElementsAre("press", "pressed", Up));
}

TEST_F(NoteKeyTest, OnceDisabledItIsFreeForTheNextPress) {
  Press(Qt::Key_Space);
  bench.Key.SetEnabled(false);
  bench.Key.SetEnabled(true);
  Focus(bench.Key);
  Heard();
  LetGoOf(Qt::Key_Space);
  EXPECT_THAT(Heard(), IsEmpty());
  Press(Qt::Key_Space);
  LetGoOf(Qt::Key_Space);
  EXPECT_THAT(Heard(), ElementsAre(Down, Up));
}

TEST_F(NoteKeyTest, TheMouseAndAKeyPressItEachForItself) {
  Press(Qt::Key_Space);
  QTest::mousePress(&WidgetOf(bench.Key), Qt::LeftButton, {}, {4, 4});
  LetGoOf(Qt::Key_Space);
  QTest::mouseRelease(&WidgetOf(bench.Key), Qt::LeftButton, {}, {4, 4});
  EXPECT_THAT(Heard(), ElementsAre(Down, "Key MouseDown 1 60 60", Up, "Key MouseUp 1 60 60"));
}

TEST_F(NoteKeyTest, AClickLeavesABoxItsFocusAndWhatIsTypedThere) {
  Focus(bench.Name);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("ba"));
  QTest::mouseClick(&WidgetOf(bench.Key), Qt::LeftButton);
  QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("ss"));
  EXPECT_EQ(bench.Name.Text(), "bass");
}

TEST_F(NoteKeyTest, TheFiveOfTheMainFormSendTheirNotes) {
  FormWindow &window = WindowOf(app.F_Tessoro);
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  Focus(app.F_Tessoro.NoteC1);
  for (int i = 0; i < 5; ++i) {
    QTest::keyClick(window.windowHandle(), Qt::Key_Space);
    QTest::keyClick(window.windowHandle(), Qt::Key_Right);
  }
  EXPECT_THAT(midi.messages,
              ElementsAre("00642490", "00002490", "00643090", "00003090", "00643C90", "00003C90",
                          "00644890", "00004890", "00645490", "00005490"));
  EXPECT_TRUE(WidgetOf(app.F_Tessoro.Panic).hasFocus());
}

// What shuts the ports must not leave a note behind.
TEST_F(NoteKeyTest, AFormThatClosesReleasesItFirst) {
  Press(Qt::Key_Space);
  WindowOf(bench).close();
  EXPECT_FALSE(bench.IsLoaded());
  EXPECT_THAT(Heard(), ElementsAre(Down, Up));
}

TEST_F(NoteKeyTest, AnyButtonOfTheMouseIsReleasedWithTheForm) {
  QTest::mousePress(&WidgetOf(bench.Key), Qt::BackButton);
  Heard();
  WindowOf(bench).close();
  EXPECT_THAT(Heard(), ElementsAre(testing::StartsWith("Key MouseUp")));
}

TEST_F(NoteKeyTest, ItHearsWithWhichKeysItIsPressed) {
  int shift = 0;
  bench.Key.onMouseDown = [&](const MouseEvent &event) { shift = event.shift; };
  QTest::keyClick(Window(), Qt::Key_Space, Qt::ShiftModifier | Qt::ControlModifier);
  EXPECT_EQ(shift, 3);
}

class PreviewedNoteKeyTest : public FaceTest {};

TEST_F(PreviewedNoteKeyTest, AFormThatPreviewsKeysSeesThemFirst) {
  Focus(bench.Key);
  QTest::keyClick(WindowOf(bench).windowHandle(), Qt::Key_Space, Qt::ShiftModifier);
  LetPass(30);
  EXPECT_THAT(Heard(), ElementsAre("KeyDown 16 1", "KeyDown 32 1", "KeyPress 32", Down,
                                   "KeyUp 32 1", "KeyUp 16 0", Up));
}

} // namespace
} // namespace Tessoro::Tests
