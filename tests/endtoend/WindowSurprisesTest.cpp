// What can happen to the real program on a real display.
#include "tests/endtoend/ShownMicroQ.hpp"
#include "tests/endtoend/Waiting.hpp"
#include "tests/endtoend/WindowedEditor.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

namespace Tessoro::Tests {
namespace {

constexpr const char *MidiError = "Tessoro"; // the title of its box
constexpr const char *ChangedTitle = "^Tessoro v1.3.1 - .tss [*]$";

class WindowSurprises : public testing::Test {
protected:
  void SetUp() override { setenv("JACK_DEFAULT_SERVER", "tessoro-test-no-server", 1); }
  void TearDown() override { unsetenv("JACK_DEFAULT_SERVER"); }

  // A folder of the program that knows its ports, which are those that every machine has.
  struct Desk {
    Desk() { place.WriteSettings(SettingsWithPorts(0, 0)); }

    VirtualDisplay display;
    EditorDirectory place;
  };

  static ShownForm OpenFileForm(const WindowedEditor &editor) {
    editor.MainForm().PressKeys("ctrl+o");
    return editor.FileForm();
  }
  // From now on no change can go out, and each tells so in a box.
  static void ShutPorts(const Desk &desk, const WindowedEditor &editor) {
    editor.OpenPortFormByMenu();
    desk.display.Close(desk.display.WaitForWindow("^MIDI settings$"));
    desk.display.WaitUntilGone("^MIDI settings$");
  }
  static void TypeInto(const WindowedEditor &editor) {
    editor.MainForm().Type(editor.Design().F_Tessoro.TextF1_cutoff, "6 4");
  }
  static std::string Settings(const EditorDirectory &place) {
    std::ifstream file(place.Settings(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
};

TEST_F(WindowSurprises, WhenTheDisplayGoesTheProgramEndsAndLeavesItsSettingsWhole) {
  Desk desk;
  const std::string settings = Settings(desk.place);
  WindowedEditor editor(desk.display, desk.place);
  TypeInto(editor);
  desk.display.Vanish();
  EXPECT_TRUE(editor.ExitStatus().has_value());
  EXPECT_EQ(Settings(desk.place), settings);
}

TEST_F(WindowSurprises, TwoEditorsRunAtOnce) {
  const Desk left;
  const Desk right;
  WindowedEditor one(left.display, left.place);
  WindowedEditor other(right.display, right.place);
  for (const WindowedEditor *editor : {&one, &other, &one})
    TypeInto(*editor);
  one.QuitByMenu();
  EXPECT_EQ(one.ExitStatus(), 0);
  TypeInto(other);
  EXPECT_FALSE(other.ExitStatus().has_value());
  other.QuitByMenu();
  EXPECT_EQ(other.ExitStatus(), 0);
}

// A keyboard with accents, as many countries have it.
TEST_F(WindowSurprises, ADeadKeyAndItsLetterBecomeOneCharacter) {
  const Desk desk;
  OutputOf("DISPLAY=" + desk.display.Name() + " setxkbmap us -variant intl");
  WindowedEditor editor(desk.display, desk.place, {"LC_ALL=C.UTF-8"});
  OpenFileForm(editor).Type(editor.Design().F_FileIO.TextFilename, "c a f dead_acute e");
  desk.display.WaitForWindow("^Open .*/caf\u00E9$");
  editor.QuitByMenu();
  EXPECT_EQ(editor.ExitStatus(), 0);
}

TEST_F(WindowSurprises, AComposeKeyAndTwoOthersBecomeOneCharacter) {
  const Desk desk;
  OutputOf("DISPLAY=" + desk.display.Name() + " setxkbmap us -option compose:menu");
  WindowedEditor editor(desk.display, desk.place, {"LC_ALL=C.UTF-8"});
  OpenFileForm(editor).Type(editor.Design().F_FileIO.TextFilename, "c a f Multi_key apostrophe e");
  desk.display.WaitForWindow("^Open .*/caf\u00E9$");
  // Of a sequence that is broken off nothing comes.
  editor.MainForm().Type(editor.Design().F_Tessoro.TextF1_cutoff, "7 Multi_key apostrophe Tab 9");
  EXPECT_THAT(ShownMicroQ(desk.display, "^microQ").Lines(2),
              testing::ElementsAre("F0 3E 10 00 20 00 00 4E 07 F7  Filter 1 cutoff = 7",
                                   "F0 3E 10 00 20 00 00 50 09 F7  Filter 1 resonance = 9"));
  editor.QuitByMenu();
  EXPECT_EQ(editor.ExitStatus(), 0);
}

TEST_F(WindowSurprises, TenMegabytesArePastedFromAnotherProgram) {
  const Desk desk;
  const ChildProcess other(
      {"sh", "-c",
       "yes 7 | tr -d '\\n' | head -c 10000000 | exec xclip -selection clipboard -quiet"},
      {"DISPLAY=" + desk.display.Name()});
  WaitFor("the clipboard", [&] {
    return OutputOf("DISPLAY=" + desk.display.Name() +
                    " timeout 5 xclip -selection clipboard -o 2>/dev/null | head -c 1") == "7";
  });
  WindowedEditor editor(desk.display, desk.place);
  OpenFileForm(editor).Type(editor.Design().F_FileIO.TextFilename, "ctrl+v");
  desk.display.WaitForWindow("^Open .*/7777777");
  // Of a number that large the limit goes out.
  editor.MainForm().Type(editor.Design().F_Tessoro.TextOSC1detune, "ctrl+v");
  desk.display.WaitForWindow(ChangedTitle);
  editor.QuitByMenu();
  EXPECT_EQ(editor.ExitStatus(), 0);
}

TEST_F(WindowSurprises, TextIsDraggedInFromAnotherProgram) {
  const Desk desk;
  WindowedEditor editor(desk.display, desk.place);
  const ShownForm form = OpenFileForm(editor);
  const ChildProcess other({TESSORO_DRAG_SOURCE, "dragged", "1100", "700"},
                           {"DISPLAY=" + desk.display.Name(), "QT_QPA_PLATFORM=xcb"});
  const std::string source = desk.display.WaitForWindow("^drag source$");
  WaitFor("the drop", [&, word = Point{.x = 20, .y = 20}] {
    desk.display.Press({word, source});
    for (const int away : {10, 25, 50})
      desk.display.PointAt({{.x = word.x + away, .y = word.y}, source});
    for (const double x : {0.4, 0.35, 0.3})
      form.PointAt(editor.Design().F_FileIO.TextFilename, {.x = x});
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    desk.display.ReleaseButton();
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    return !desk.display.WindowCalled("^Open .*dragged").empty();
  });
  editor.QuitByMenu();
  EXPECT_EQ(editor.ExitStatus(), 0);
}

TEST_F(WindowSurprises, TheRightButtonBringsUpAMenuOverABoxAndOverAList) {
  const Desk desk;
  WindowedEditor editor(desk.display, desk.place);
  const ShownForm form = editor.MainForm();
  const F_Tessoro &design = editor.Design().F_Tessoro;
  for (const Control *control :
       std::initializer_list<const Control *>{&design.TextF1_cutoff, &design.ComboFilter1}) {
    form.PointAt(*control, {.x = 0.3});
    const std::string below = desk.display.WindowUnderPointer();
    desk.display.RightClick(form.SpotOn(*control, {.x = 0.3}));
    EXPECT_TRUE(Eventually([&] {
      form.PointAt(*control, {.x = 0.3, .y = 1.5});
      form.PointAt(*control, {.x = 0.5, .y = 1.6});
      return desk.display.WindowUnderPointer() != below;
    })) << control->Name();
    desk.display.PressKeys("Escape");
    EXPECT_TRUE(Eventually([&] { return desk.display.WindowUnderPointer() == below; }));
  }
  editor.QuitByMenu();
  EXPECT_EQ(editor.ExitStatus(), 0);
}

TEST_F(WindowSurprises, ABoxForEachOfManyFailuresIsAnsweredOneByOne) {
  const Desk desk;
  WindowedEditor editor(desk.display, desk.place);
  ShutPorts(desk, editor);
  editor.MainForm().Click(editor.Design().F_Tessoro.ResetFilter1);
  constexpr int messages = 9; // besides a controller, which fails in silence
  for (int i = 0; i < messages; ++i)
    editor.AnswerBox(MidiError, i % 2 == 0 ? "Return" : "Escape");
  EXPECT_FALSE(editor.ShowsBox(MidiError));
  editor.QuitByMenu();
  EXPECT_EQ(editor.ExitStatus(), 0);
}

// The button comes up over the box, so the knob never hears of it.
TEST_F(WindowSurprises, AKnobIsLetGoOfWhenABoxComesUpWhileItIsHeld) {
  const Desk desk;
  WindowedEditor editor(desk.display, desk.place);
  const F_Tessoro &design = editor.Design().F_Tessoro;
  editor.MainForm().Click(design.InitSnd);
  desk.display.WaitForWindow("^Tessoro v1.3.1$");
  ShutPorts(desk, editor);
  const ShownForm form = editor.MainForm();
  form.Press(design.knobF1_reso);
  WaitFor("the box", [&, up = 0.4]() mutable {
    form.PointAt(design.knobF1_reso, {.y = up -= 0.2});
    return editor.ShowsBox(MidiError);
  });
  desk.display.ReleaseButton();
  editor.AnswerBox(MidiError);
  form.Focus();
  for (const double up : {0.5, 0.1, -0.5, -1.0, 0.5})
    form.PointAt(design.knobF1_reso, {.y = up});
  std::this_thread::sleep_for(std::chrono::milliseconds(300));
  EXPECT_FALSE(editor.ShowsBox(MidiError)) << "it follows the pointer still";
  editor.QuitByMenu();
  EXPECT_EQ(editor.ExitStatus(), 0);
}

} // namespace
} // namespace Tessoro::Tests
