// Work without a mouse, and a wheel that changes nothing by the way.
#include "tests/endtoend/PluggedEditorTest.hpp"

#include <gmock/gmock.h>

#include <cmath>
#include <thread>

namespace Tessoro::Tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int Cutoff = 78;
constexpr int Resonance = 80;
constexpr int Drive = 81;
constexpr int AmpVelocity = 122;

constexpr auto UntilKeysRepeat = 1200ms;

class WindowKeyboardTest : public PluggedEditorTest {
protected:
  void SetUp() override { StartPlugged(); }

  const F_Tessoro &Design() const { return editor->Design().F_Tessoro; }

  void TabToFirstNoteKey() {
    editor->MainForm().Type(Design().TextAmpVelocity, "7 Tab Tab");
    EXPECT_THAT(Hear(1), ElementsAre(Parameter(AmpVelocity, 7)));
  }

  void TurnWheelOver(const Control &control) const {
    display.TurnWheel(editor->MainForm().SpotOn(control), 2);
  }
};

TEST_F(WindowKeyboardTest, TabGoesFromBoxToBoxAsOneReadsAndBack) {
  editor->MainForm().Type(Design().TextF1_cutoff, "7 Tab 8 Tab 9 shift+Tab shift+Tab 5");
  EXPECT_THAT(Hear(4), ElementsAre(Parameter(Cutoff, 7), Parameter(Resonance, 8),
                                   Parameter(Drive, 9), Parameter(Cutoff, 5)));
}

TEST_F(WindowKeyboardTest, TheNoteKeysAreReachedWithTabAndSoundWhileAKeyIsHeld) {
  TabToFirstNoteKey();
  display.HoldKey("space");
  EXPECT_THAT(Hear(1), ElementsAre(Note(36, 100)));
  std::this_thread::sleep_for(UntilKeysRepeat);
  EXPECT_THAT(Hear(0), IsEmpty());
  display.LetGoOfKey("space");
  EXPECT_THAT(Hear(1), ElementsAre(Note(36, 0)));

  display.PressKeys("Tab Tab space Right KP_Enter shift+Tab shift+Tab Return");
  EXPECT_THAT(Hear(6), ElementsAre(Note(60, 100), Note(60, 0), Note(72, 100), Note(72, 0),
                                   Note(48, 100), Note(48, 0)));
  display.PressKeys("c 5 Escape shift+Tab shift+Tab shift+Tab BackSpace 9");
  EXPECT_THAT(Hear(1), ElementsAre(Parameter(AmpVelocity, 9)));
}

TEST_F(WindowKeyboardTest, AHeldNoteEndsWhenAnotherWindowTakesTheKeys) {
  editor->MainForm().Focus();
  display.PressKeys("ctrl+o");
  const ShownForm files = editor->FileForm();
  editor->MainForm().Focus();
  TabToFirstNoteKey();
  display.HoldKey("space");
  files.Focus();
  EXPECT_THAT(Hear(2), ElementsAre(Note(36, 100), Note(36, 0)));
  display.LetGoOfKey("space");
  editor->MainForm().Focus();
  display.PressKeys("space");
  EXPECT_THAT(Hear(2), ElementsAre(Note(36, 100), Note(36, 0)));
}

TEST_F(WindowKeyboardTest, AHeldNoteEndsWithTheProgram) {
  TabToFirstNoteKey();
  display.HoldKey("space");
  EXPECT_THAT(Hear(1), ElementsAre(Note(36, 100)));
  editor->CloseMainWindow();
  EXPECT_EQ(editor->ExitStatus(), 0);
  EXPECT_THAT(Hear(1), ElementsAre(Note(36, 0)));
}

TEST_F(WindowKeyboardTest, AClickOnANoteKeyLeavesTheBoxThatIsBeingTypedIn) {
  const ShownForm form = editor->MainForm();
  form.Type(Design().TextF1_cutoff, "7");
  form.Click(Design().NoteC3);
  form.PressKeys("8");
  EXPECT_THAT(Hear(4),
              ElementsAre(Parameter(Cutoff, 7), Note(60, 100), Note(60, 0), Parameter(Cutoff, 78)));
}

TEST_F(WindowKeyboardTest, AFilesNameIsTypedAtOnce) {
  editor->MainForm().PressKeys("ctrl+o");
  editor->FileForm().PressKeys("p a d");
  display.WaitForWindow("^Open .*/pad$");
}

TEST_F(WindowKeyboardTest, AListSendsAtEveryStepOfTheArrowKeys) {
  editor->MainForm().Pick(Design().ComboOSC1oct, 0);
  Hear(1);
  display.PressKeys("Down Down Up");
  const std::vector<Bytes> steps = Hear(3);
  ASSERT_EQ(steps.size(), 3U);
  EXPECT_EQ(steps[0], steps[2]);
  EXPECT_NE(steps[0], steps[1]);
}

TEST_F(WindowKeyboardTest, TheWheelChangesAListOnlyWhileItHasTheFocus) {
  const ShownForm form = editor->MainForm();
  form.Pick(Design().ComboOSC1oct, 0);
  Hear(1);
  form.Type(Design().TextF1_cutoff, "7");
  TurnWheelOver(Design().ComboOSC1oct);
  form.PressKeys("BackSpace 9");
  EXPECT_THAT(Hear(2), ElementsAre(Parameter(Cutoff, 7), Parameter(Cutoff, 9)));

  form.Pick(Design().ComboOSC1oct, 1);
  Hear(1);
  TurnWheelOver(Design().ComboOSC1oct);
  EXPECT_EQ(Hear(2).size(), 2U);
}

TEST_F(WindowKeyboardTest, TheWheelChangesABarOnlyWhileItHasTheFocus) {
  const ShownForm form = editor->MainForm();
  form.Type(Design().TextF1_cutoff, "7");
  TurnWheelOver(Design().HScrollOSC1semi);
  form.PressKeys("BackSpace 9");
  EXPECT_THAT(Hear(2), ElementsAre(Parameter(Cutoff, 7), Parameter(Cutoff, 9)));

  form.Click(Design().HScrollOSC1semi, {.x = 0.97});
  ASSERT_EQ(Hear(1).size(), 1U);
  TurnWheelOver(Design().HScrollOSC1semi);
  EXPECT_EQ(Hear(2).size(), 2U);
}

TEST_F(WindowKeyboardTest, ControlAndPlusMinusAndZeroZoomTheWindowAsAWhole) {
  const Area before = editor->MainForm().WindowArea();
  const auto hasWidth = [&](double zoom) {
    return Eventually(
        [&] { return std::abs(editor->MainForm().WindowArea().width - zoom * before.width) < 2; });
  };
  editor->MainForm().Focus();
  display.PressKeys("ctrl+plus");
  EXPECT_TRUE(hasWidth(1.25));
  display.PressKeys("ctrl+minus ctrl+minus");
  EXPECT_TRUE(hasWidth(0.75));
  // What is seen is still what is worked.
  editor->MainForm().Type(Design().TextF1_cutoff, "7");
  EXPECT_THAT(Hear(1), ElementsAre(Parameter(Cutoff, 7)));
  display.PressKeys("ctrl+0");
  EXPECT_TRUE(hasWidth(1));
}

TEST_F(WindowKeyboardTest, AccessKeysWorkTheMenuAndTheButtons) {
  editor->MainForm().Focus();
  display.PressKeys("alt+m Up Return");
  const ShownForm ports = editor->PortForm();
  ports.Focus();
  ports.PressKeys("alt+c");
  ports.WaitUntilGone();
}

} // namespace
} // namespace Tessoro::Tests
