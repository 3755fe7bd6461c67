// Texts that are composed before they are typed, by a real input method under real keys.
#include "tests/endtoend/InputMethod.hpp"
#include "tests/endtoend/ShownMicroQ.hpp"
#include "tests/endtoend/Waiting.hpp"
#include "tests/endtoend/WindowedEditor.hpp"

#include <gmock/gmock.h>

#include <cstdlib>

namespace Tessoro::Tests {
namespace {

using testing::ElementsAre;

constexpr const char *CutoffOf6 = "F0 3E 10 00 20 00 00 4E 06 F7  Filter 1 cutoff = 6";
constexpr const char *CutoffOf64 = "F0 3E 10 00 20 00 00 4E 40 F7  Filter 1 cutoff = 64";
constexpr const char *ResonanceOf9 = "F0 3E 10 00 20 00 00 50 09 F7  Filter 1 resonance = 9";

// Of the Korean one, to switch from Latin letters and to write half a word with.
constexpr const char *ToKorean = "shift+space";
constexpr const char *HalfComposed = "g k s";

// A method answers each key some time later, through a daemon and a bus of its own. Nobody turns
// away before what he has composed so far is to be seen.
void SeeWhatStandsThere() { std::this_thread::sleep_for(std::chrono::milliseconds(400)); }

class WindowInputMethodTest : public testing::Test {
protected:
  void SetUp() override {
    if (!InputMethod::IsInstalled())
      GTEST_SKIP() << "ibus, the input method of this test, isn't installed";
    setenv("JACK_DEFAULT_SERVER", "tessoro-test-no-server", 1);
    method = std::make_unique<InputMethod>(display);
    method->Choose("hangul");
    place.WriteSettings(SettingsWithPorts(0, 0));
    editor = std::make_unique<WindowedEditor>(display, place, method->Environment());
    editor->MainForm();
  }
  void TearDown() override {
    unsetenv("JACK_DEFAULT_SERVER");
    if (!editor)
      return;
    editor->CloseMainWindow();
    EXPECT_EQ(editor->ExitStatus(), 0);
  }

  const F_Tessoro &Main() const { return editor->Design().F_Tessoro; }

  void TypeCutoffInKorean(const std::string &keys) const {
    editor->MainForm().Type(Main().TextF1_cutoff, ToKorean + (" " + keys));
    SeeWhatStandsThere();
  }
  void TakeLastDigitFromCutoff() const {
    editor->MainForm().Click(Main().TextF1_cutoff, {.x = 0.3});
    display.PressKeys("End BackSpace");
  }
  // Which takes the focus along.
  void TypeResonanceOf9() const { editor->MainForm().Type(Main().TextF1_reso, "9"); }
  void TypeFileName(const std::string &keys) const {
    editor->MainForm().PressKeys("ctrl+o");
    editor->FileForm().Type(editor->Design().F_FileIO.TextFilename, keys);
    SeeWhatStandsThere();
  }
  void CloseFileForm() const {
    display.Close(display.WaitForWindow("^Open"));
    display.WaitUntilGone("^Open");
  }
  std::vector<std::string> Sent(std::size_t count) const {
    return ShownMicroQ(display, "^microQ").Lines(count);
  }

  const VirtualDisplay display;
  const EditorDirectory place;
  std::unique_ptr<InputMethod> method;
  std::unique_ptr<WindowedEditor> editor;
};

TEST_F(WindowInputMethodTest, DigitsThatItHandsOverGoOutLikeTypedOnes) {
  TypeCutoffInKorean("6 4");
  EXPECT_THAT(Sent(2), ElementsAre(CutoffOf6, CutoffOf64));
}

// No sound's file can have a name in Korean.
TEST_F(WindowInputMethodTest, WordsArriveSyllableBySyllableAsTheCharactersThatAFormHas) {
  TypeFileName(std::string(ToKorean) + " g k s r n r space 2");
  display.WaitForWindow("^Open .*/[?][?] 2$");
  CloseFileForm();
}

TEST_F(WindowInputMethodTest, WhatIsHalfComposedBehindANumberGoesWithTheFocus) {
  TypeCutoffInKorean(std::string("6 4 ") + HalfComposed);
  TypeResonanceOf9();
  TakeLastDigitFromCutoff();
  EXPECT_THAT(Sent(4), ElementsAre(CutoffOf6, CutoffOf64, ResonanceOf9, CutoffOf6));
}

TEST_F(WindowInputMethodTest, ANumberComesBackWhenWhatIsHalfComposedInItsPlaceGoes) {
  TypeCutoffInKorean(std::string("6 4 shift+Home ") + HalfComposed);
  TypeResonanceOf9();
  TakeLastDigitFromCutoff();
  EXPECT_THAT(Sent(4), ElementsAre(CutoffOf6, CutoffOf64, ResonanceOf9, CutoffOf6));
}

TEST_F(WindowInputMethodTest, WhatIsHalfComposedGoesWhenAnotherWindowOrNoneIsWorked) {
  TypeFileName(std::string("a b ") + ToKorean + " " + HalfComposed);
  const std::string form = display.WaitForWindow("^Open .*/ab$");
  TypeResonanceOf9();
  EXPECT_EQ(display.WaitForWindow("^Open .*/ab$"), form);
  editor->FileForm().Click(editor->Design().F_FileIO.TextFilename, {.x = 0.3});
  display.PressKeys(std::string("End ") + HalfComposed);
  SeeWhatStandsThere();
  CloseFileForm();
  editor->MainForm().Type(Main().TextF1_cutoff, "6");
  EXPECT_THAT(Sent(2), ElementsAre(ResonanceOf9, CutoffOf6));
}

// The knob doesn't take the focus, but its change can't go out.
TEST_F(WindowInputMethodTest, WhatIsHalfComposedGoesWhenABoxComesUp) {
  editor->OpenPortFormByMenu();
  display.Close(display.WaitForWindow("^MIDI settings$"));
  display.WaitUntilGone("^MIDI settings$");
  TypeCutoffInKorean(HalfComposed);
  const ShownForm form = editor->MainForm();
  form.Press(Main().knobF1_reso);
  WaitFor("the box", [&, up = 0.4]() mutable {
    form.PointAt(Main().knobF1_reso, {.y = up -= 0.2});
    return editor->ShowsBox("Tessoro");
  });
  display.ReleaseButton();
  editor->AnswerBox("Tessoro");
  form.Focus();
  EXPECT_FALSE(editor->ShowsBox("Tessoro"));
}

TEST_F(WindowInputMethodTest, AnAccentAndItsLetterBecomeOneCharacter) {
  method->Choose("xkb:us:intl:eng");
  editor->MainForm().PressKeys("ctrl+o");
  editor->FileForm().Type(editor->Design().F_FileIO.TextFilename, "c a f dead_acute e");
  display.WaitForWindow("^Open .*/caf\u00E9$");
  CloseFileForm();
}

TEST_F(WindowInputMethodTest, AnAccentWithoutItsLetterGoesWithTheFocus) {
  method->Choose("xkb:us:intl:eng");
  editor->MainForm().Type(Main().TextF1_cutoff, "6 dead_acute");
  SeeWhatStandsThere();
  TypeResonanceOf9();
  EXPECT_THAT(Sent(2), ElementsAre(CutoffOf6, ResonanceOf9));
}

} // namespace
} // namespace Tessoro::Tests
