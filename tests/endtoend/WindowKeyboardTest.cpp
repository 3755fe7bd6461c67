// Work without a mouse, and a wheel that changes nothing by the way.
#include "tests/endtoend/PluggedEditorTest.hpp"

#include <gmock/gmock.h>

#include <cmath>

namespace Tessoro::Tests {
namespace {

using testing::ElementsAre;

constexpr int Cutoff = 78;
constexpr int Resonance = 80;
constexpr int Drive = 81;

class WindowKeyboardTest : public PluggedEditorTest {
protected:
  void SetUp() override { StartPlugged(); }

  const F_Tessoro &Design() const { return editor->Design().F_Tessoro; }

  void TurnWheelOver(const Control &control) const {
    display.TurnWheel(editor->MainForm().SpotOn(control), 2);
  }
};

TEST_F(WindowKeyboardTest, TabGoesFromBoxToBoxAsOneReadsAndBack) {
  editor->MainForm().Type(Design().TextF1_cutoff, "7 Tab 8 Tab 9 shift+Tab shift+Tab 5");
  EXPECT_THAT(Hear(4), ElementsAre(Parameter(Cutoff, 7), Parameter(Resonance, 8),
                                   Parameter(Drive, 9), Parameter(Cutoff, 5)));
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
