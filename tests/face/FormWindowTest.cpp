#include "tests/face/FaceTest.hpp"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

namespace Tessoro::Tests {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class FormWindowTest : public FaceTest {
protected:
  using FaceTest::FaceTest;

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(WindowOf(bench).windowHandle(), key, modifiers);
  }

  void Activate(const Form &form) const {
    WindowOf(form).activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&WindowOf(form)));
  }

  // As the window system does: the modifiers are those before the event.
  static void Send(QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers before,
                   bool repeats = false) {
    QKeyEvent event(type, key, before, QString(), repeats);
    QCoreApplication::sendEvent(QApplication::focusWidget(), &event);
  }

  // The ground lies below the controls, in whichever place they leave free.
  QWidget *Ground() { return WidgetOf(bench.Box).parentWidget(); }
  static constexpr QPoint FreePlace{464, 275};
};

TEST_F(FormWindowTest, AFormIsAsLargeAsItsDesignAtFifteenTwipsAPixel) {
  EXPECT_EQ(Ground()->size(), QSize(467, 280));
  EXPECT_EQ(WidgetOf(bench.Combo).geometry(), QRect(10, 80, 100, 21));
}

TEST_F(FormWindowTest, AZoomIsATransformOfAllPlacesAndLetters) {
  FormWindow &window = WindowOf(bench);
  const int letters = WidgetOf(bench.Box).font().pixelSize();
  window.SetZoom(1.5);
  EXPECT_EQ(Ground()->size(), QSize(700, 420));
  EXPECT_EQ(WidgetOf(bench.Combo).geometry(), QRect(15, 120, 150, 32));
  EXPECT_EQ(WidgetOf(bench.Box).font().pixelSize(), qRound(letters * 1.5));
  window.SetZoom(1);
  EXPECT_EQ(Ground()->size(), QSize(467, 280));
}

TEST_F(FormWindowTest, ACaptionFollowsTheModelWithWhateverItHolds) {
  bench.SetCaption("Tessoro v1.3.1 - B\xE4r.tss *");
  EXPECT_EQ(WindowOf(bench).windowTitle(), QString::fromUtf8("Tessoro v1.3.1 - Bär.tss *"));
}

TEST_F(FormWindowTest, AClickOnTheGroundIsTheFormsOwn) {
  QTest::mouseClick(Ground(), Qt::LeftButton, Qt::NoModifier, FreePlace);
  EXPECT_THAT(Heard(), ElementsAre("Form Click"));
}

TEST_F(FormWindowTest, AFormMayUnloadInItsOwnHandlerAndComeBackInIt) {
  QPointer<FormWindow> window = &WindowOf(bench);
  bench.onFormClick = [this] {
    bench.Unload();
    bench.Show();
  };
  QTest::mouseClick(Ground(), Qt::LeftButton, Qt::NoModifier, FreePlace);
  LetPass(1);
  EXPECT_TRUE(window.isNull());
  EXPECT_TRUE(WindowOf(bench).isVisible());
}

TEST_F(FormWindowTest, ACommandMayUnloadItsForm) {
  QPointer<FormWindow> window = &WindowOf(bench);
  bench.Push.onClick = [this] { bench.Unload(); };
  QTest::mouseClick(&WidgetOf(bench.Push), Qt::LeftButton);
  EXPECT_EQ(screen.WindowOf(bench), nullptr);
  LetPass(1);
  EXPECT_TRUE(window.isNull());
}

TEST_F(FormWindowTest, TheCloseControlUnloadsTheForm) {
  EXPECT_TRUE(WindowOf(bench).close());
  EXPECT_FALSE(bench.IsLoaded());
}

TEST_F(FormWindowTest, AFormThatIsLoadedAgainBeginsAnew) {
  bench.Box.SetText("12");
  bench.Menu_Disabled.SetEnabled(true);
  bench.Unload();
  bench.Show();
  EXPECT_EQ(WidgetOf<QLineEdit>(bench.Box).text(), QStringLiteral("?"));
}

TEST_F(FormWindowTest, ClosingTheMainWindowClosesThePortsAndWritesTheSettings) {
  WindowOf(app.F_Tessoro).close();
  EXPECT_FALSE(app.F_Tessoro.IsLoaded());
  EXPECT_FALSE(app.HasEnded()) << "the workbench is still there";
  EXPECT_THAT(midi.calls, Contains("midiOutClose " + std::to_string(TestMidi::OutHandle)));
  EXPECT_TRUE(files.contents["/editor/Tessoro.ini"].starts_with("\"Tessoro v1.3.1\""));
  WindowOf(bench).close();
  EXPECT_TRUE(app.HasEnded());
  EXPECT_EQ(screen.ExitStatus(), 0);
}

TEST_F(FormWindowTest, ANoteThatIsHeldEndsBeforeTheMainWindowCloses) {
  QTest::mousePress(&WidgetOf(app.F_Tessoro.NoteC3), Qt::LeftButton);
  midi.calls.clear();
  WindowOf(app.F_Tessoro).close();
  EXPECT_THAT(midi.calls, ElementsAre("midiOutShortMsg 00003C90",
                                      "midiOutClose " + std::to_string(TestMidi::OutHandle)));
}

TEST_F(FormWindowTest, QuitLeavesNoWindow) {
  app.Quit();
  EXPECT_EQ(screen.ExitStatus(), 0);
  EXPECT_EQ(screen.WindowOf(bench), nullptr);
}

TEST_F(FormWindowTest, TheFormPreviewsTheKeysOfItsControls) {
  Focus(bench.Name);
  Press(Qt::Key_A);
  EXPECT_THAT(Heard(), ElementsAre("KeyDown 65 0", "KeyPress 97", "Name Change a", "KeyUp 65 0"));
}

TEST_F(FormWindowTest, ShiftComesAndGoesWhereverTheFocusLies) {
  for (const Control *control : std::initializer_list<Control *>{
           &bench.Box, &bench.Combo, &bench.Check, &bench.Push, &bench.HBar}) {
    Focus(*control);
    Heard();
    Send(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier);
    Send(QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftModifier);
    EXPECT_THAT(Heard(), ElementsAre("KeyDown 16 1", "KeyUp 16 0")) << control->Name();
  }
}

TEST_F(FormWindowTest, ShiftComesAndGoesWhileAListIsOpen) {
  Focus(bench.Combo);
  QTest::keyClick(&WidgetOf(bench.Combo), Qt::Key_F4);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  ASSERT_EQ(QApplication::focusWidget(), QApplication::activePopupWidget());
  Heard();
  Send(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier);
  Send(QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftModifier);
  EXPECT_THAT(Heard(), ElementsAre("KeyDown 16 1", "KeyUp 16 0"));
}

TEST_F(FormWindowTest, AHeldKeyGoesDownAgainAndAgainAndComesUpOnce) {
  Focus(bench.Push);
  for (const bool repeats : {false, true, true}) {
    Send(QEvent::KeyPress, Qt::Key_F5, Qt::NoModifier, repeats);
    Send(QEvent::KeyRelease, Qt::Key_F5, Qt::NoModifier, true);
  }
  Send(QEvent::KeyRelease, Qt::Key_F5, Qt::NoModifier);
  EXPECT_THAT(Heard(),
              ElementsAre("KeyDown 116 0", "KeyDown 116 0", "KeyDown 116 0", "KeyUp 116 0"));
}

TEST_F(FormWindowTest, ShiftOnTheMainFormSetsTheFlagOfTheKnobs) {
  Activate(app.F_Tessoro);
  for (const Control *control : std::initializer_list<Control *>{
           &app.F_Tessoro.TextF1_cutoff, &app.F_Tessoro.ComboF1Modulation, &app.F_Tessoro.Panic}) {
    Focus(*control);
    ASSERT_EQ(QApplication::focusWidget(), &WidgetOf(*control)) << control->Name();
    Send(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier);
    EXPECT_EQ(app.Module1.ShiftHeld, -1) << control->Name();
    Send(QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftModifier);
    EXPECT_EQ(app.Module1.ShiftHeld, 0) << control->Name();
  }
}

TEST_F(FormWindowTest, ShiftThatIsLetGoWhileABoxIsUpStaysHeldUntilItComesUpAgain) {
  Activate(app.F_Tessoro);
  Focus(app.F_Tessoro.TextF1_cutoff);
  QWidget &box = WidgetOf(app.F_Tessoro.TextF1_cutoff);
  QTest::keyPress(&box, Qt::Key_Shift);
  EXPECT_EQ(app.Module1.ShiftHeld, -1);
  WithNextBox([&box](QMessageBox &message) {
    QTest::keyRelease(&box, Qt::Key_Shift, Qt::ShiftModifier);
    message.accept();
  });
  app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
  LetPass(1);
  EXPECT_EQ(app.Module1.ShiftHeld, -1);
  QTest::keyClick(&box, Qt::Key_Shift);
  EXPECT_EQ(app.Module1.ShiftHeld, 0);
}

TEST_F(FormWindowTest, ShiftOnTheLfoFormSetsTheFlagOnlyWhereNoControlHasTheFocus) {
  app.F_Tessoro.InitPanelParams(); // it takes a sound to load
  app.F_LFO.Show();
  Activate(app.F_LFO);
  QWidget &box = WidgetOf(app.F_LFO.TextLFO1speed);
  box.setFocus(Qt::TabFocusReason);
  Send(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier);
  EXPECT_EQ(app.Module1.ShiftHeld, 0);
  box.clearFocus();
  QTest::keyPress(WindowOf(app.F_LFO).windowHandle(), Qt::Key_Shift);
  EXPECT_EQ(app.Module1.ShiftHeld, -1);
  QTest::keyRelease(WindowOf(app.F_LFO).windowHandle(), Qt::Key_Shift, Qt::ShiftModifier);
  EXPECT_EQ(app.Module1.ShiftHeld, 0);
}

class FormWithoutPreviewTest : public FormWindowTest {
protected:
  FormWithoutPreviewTest() : FormWindowTest(false) {}
};

TEST_F(FormWithoutPreviewTest, TheKeysOfAControlAreItsOwn) {
  Focus(bench.Name);
  Press(Qt::Key_A);
  Press(Qt::Key_F5); // which the box has no use for
  EXPECT_THAT(Heard(), ElementsAre("Name Change a"));
}

TEST_F(FormWithoutPreviewTest, WithoutAFocusTheKeysAreTheForms) {
  WidgetOf(bench.Name).setFocus();
  WidgetOf(bench.Name).clearFocus();
  Press(Qt::Key_Return);
  EXPECT_THAT(Heard(), ElementsAre("KeyDown 13 0", "KeyPress 13", "KeyUp 13 0"));
}

TEST_F(FormWindowTest, AShortcutClicksItsEntry) {
  Press(Qt::Key_O, Qt::ControlModifier);
  EXPECT_THAT(Heard(), Contains("Menu_Order Click"));
}

TEST_F(FormWindowTest, AShortcutGoesBeforeTheEditingKeysOfABox) {
  Focus(bench.Box);
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_THAT(Heard(), Contains("Menu_All Click"));
}

TEST_F(FormWindowTest, TheShortcutOfADisabledOrHiddenEntryDoesNothing) {
  Press(Qt::Key_D, Qt::ControlModifier);
  Press(Qt::Key_F11);
  const std::vector<std::string> heard = Heard();
  EXPECT_THAT(heard, Not(Contains("Menu_Disabled Click")));
  EXPECT_THAT(heard, Not(Contains("Menu_Hidden Click")));
  bench.Menu_Disabled.SetEnabled(true);
  Press(Qt::Key_D, Qt::ControlModifier);
  EXPECT_THAT(Heard(), Contains("Menu_Disabled Click"));
}

TEST_F(FormWindowTest, TheMenuStandsAsItWasDesigned) {
  const auto *bar = WindowOf(bench).findChild<QMenuBar *>();
  ASSERT_EQ(bar->actions().size(), 2);
  const QList<QAction *> entries = bar->actions().front()->menu()->actions();
  ASSERT_EQ(entries.size(), 5);
  EXPECT_EQ(entries[0]->text(), QStringLiteral("&Order"));
  EXPECT_EQ(entries[0]->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_O));
  EXPECT_TRUE(entries[1]->isSeparator());
  EXPECT_FALSE(entries[2]->isEnabled());
  EXPECT_FALSE(entries[3]->isVisible());
  entries[0]->trigger();
  bar->actions().back()->trigger();
  EXPECT_THAT(Heard(), ElementsAre("Menu_Order Click", "Menu_Alone Click"));
}

TEST_F(FormWindowTest, AMenuIsOpenedByItsAccessKey) {
  Press(Qt::Key_O, Qt::AltModifier);
  const auto *menu = WindowOf(bench).findChild<QMenuBar *>()->actions().front()->menu();
  EXPECT_TRUE(menu->isVisible());
}

TEST_F(FormWindowTest, HoweverTheMenuWasOpenedTheFocusGoesBackToWhereItCameFrom) {
  const auto pressInFront = [](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget *popup = QApplication::activePopupWidget();
    QTest::keyClick(popup != nullptr ? popup : QApplication::focusWidget(), key, modifiers);
    LetPass();
  };
  for (const int times : {1, 2, 3}) {
    Focus(bench.Combo);
    for (int i = 0; i < times; ++i) {
      Press(Qt::Key_O, Qt::AltModifier);
      EXPECT_NE(QApplication::activePopupWidget(), nullptr);
      pressInFront(Qt::Key_Escape);
    }
    EXPECT_FALSE(WidgetOf(bench.Combo).hasFocus()) << "the bar is worked with keys";
    pressInFront(Qt::Key_Escape);
    EXPECT_TRUE(WidgetOf(bench.Combo).hasFocus()) << times;
  }
}

TEST_F(FormWindowTest, TabGoesThroughTheControlsInTheOrderOfTheirDeclaration) {
  Focus(bench.Box);
  for (const Control *next : std::initializer_list<Control *>{
           &bench.Name, &bench.Combo, &bench.Check, &bench.Push, &bench.HBar, &bench.VBar,
           &bench.Key, &bench.Drive, &bench.Dir, &bench.File, &bench.Box}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(WidgetOf(*next).hasFocus()) << next->Name();
  }
}

TEST_F(FormWindowTest, TheFormForThePortsStaysOnTop) {
  app.F_Midi.Show();
  EXPECT_TRUE(WindowOf(app.F_Midi).windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_TRUE(WindowOf(app.F_Midi).isVisible());
  EXPECT_EQ(WidgetOf<QLineEdit>(app.F_Midi.AuswahlMIDIPort).text(), QStringLiteral("Synth"));
}

TEST_F(FormWindowTest, TheFormAboutTheProgramGoesAtWhateverKeyIsPressed) {
  struct Key {
    Qt::Key key;
    const char *text;
  };
  for (const Key &each :
       {Key{Qt::Key_A, "a"}, Key{Qt::Key_Escape, "\x1B"}, Key{Qt::Key_F5, ""},
        Key{Qt::Key_Comma, ","}, Key{Qt::Key_Adiaeresis, "ä"}, Key{Qt::Key_Shift, ""}}) {
    app.F_About.Show();
    QKeyEvent press(QEvent::KeyPress, each.key, Qt::NoModifier, QString::fromUtf8(each.text));
    QCoreApplication::sendEvent(&WindowOf(app.F_About), &press);
    EXPECT_FALSE(app.F_About.IsLoaded()) << each.key;
  }
}

TEST_F(FormWindowTest, AClickAnywhereInTheHintClosesIt) {
  for (const QPoint place : {QPoint(3, 3), QPoint(12, 12), QPoint(200, 60), QPoint(300, 183)}) {
    app.F_InfoPopUp.Show();
    QWidget &window = WindowOf(app.F_InfoPopUp);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
    EXPECT_FALSE(app.F_InfoPopUp.IsLoaded()) << place.x();
  }
}

TEST_F(FormWindowTest, AHiddenControlIsHidden) {
  bench.Knob.SetVisible(false);
  EXPECT_FALSE(WidgetOf(bench.Knob).isVisible());
}

TEST_F(FormWindowTest, ALabelFollowsItsWidth) {
  bench.Tag.SetWidth(1480);
  EXPECT_EQ(DrawnFor(bench.Tag)->Area().width(), 99);
}

} // namespace
} // namespace Tessoro::Tests
