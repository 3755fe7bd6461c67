// The first start on a machine without MIDI hardware, as a new user would do it.
#include "tests/endtoend/JackInstruments.hpp"
#include "tests/endtoend/JackServer.hpp"
#include "tests/endtoend/MachinePorts.hpp"
#include "tests/endtoend/RunningMonitor.hpp"
#include "tests/endtoend/ShownMicroQ.hpp"
#include "tests/endtoend/WindowedEditor.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

namespace Tessoro::Tests {
namespace {

// As on a machine without one, whatever the user of this machine runs.
struct NoJackServer {
  NoJackServer() { setenv("JACK_DEFAULT_SERVER", "tessoro-test-no-server", 1); }
  ~NoJackServer() { unsetenv("JACK_DEFAULT_SERVER"); }
};

// On the display of most desks.
constexpr Extent DeskSize{.width = 1920, .height = 1080};

constexpr const char *BuiltIn = "^microQ .built-in.$";
constexpr const char *Monitor = "^microQ .monitor.$";

// A note, a box, a list, a check box and a knob, as somebody plays who has just come.
void PlayAround(const WindowedEditor &editor) {
  const F_Tessoro &form = editor.Design().F_Tessoro;
  const ShownForm mainForm = editor.MainForm();
  mainForm.Click(form.NoteC3);
  mainForm.Type(form.TextF1_cutoff, "6 4");
  mainForm.Pick(form.ComboOSC2shape, 2);
  mainForm.Click(form.CheckOSC3mute);
  mainForm.Press(form.knobOSC1pw);
  mainForm.PointAt(form.knobOSC1pw, {.y = 0.3});
  mainForm.PointAt(form.knobOSC1pw, {.y = 0.1});
  mainForm.Release();
  mainForm.Click(form.NoteC1);
}

const std::vector<std::string> PlayedAround{
    "90 3C 64                       Note C3 on, velocity 100",
    "90 3C 00                       Note C3 off",
    "F0 3E 10 00 20 00 00 4E 06 F7  Filter 1 cutoff = 6",
    "F0 3E 10 00 20 00 00 4E 40 F7  Filter 1 cutoff = 64",
    "B0 27 02                       Controller 39: OSC 2 shape = Saw (2)",
    "B0 3A 00                       Controller 58: OSC 3 level = 0",
    "F0 3E 10 00 20 00 00 09 01 F7  OSC 1 pulse width = 1",
    "F0 3E 10 00 20 00 00 09 02 F7  OSC 1 pulse width = 2",
    "90 24 64                       Note C1 on, velocity 100",
    "90 24 00                       Note C1 off"};

// Of an init after that, which finds one box at its value already.
constexpr std::size_t LinesOfInit = 388;
constexpr const char *LastOfInit = "F0 3E 10 00 20 00 02 41 00 F7  Arpeggiator value 322 = 0";

bool SaysThatItIsStrange(const std::string &line) {
  return line.find("nknown") != std::string::npos || line.find("Malformed") != std::string::npos;
}

bool AreApart(const Area &one, const Area &other) {
  return one.left + one.width <= other.left || other.left + other.width <= one.left ||
         one.top + one.height <= other.top || other.top + other.height <= one.top;
}

class WindowFirstStartTest : public testing::Test {
protected:
  // Without settings, up to the main window alone.
  void StartAndChoose(const std::string &out) {
    const int outPort = NumberOfOut(out);
    const int inPort = NumberOfIn("Silence (built-in)");
    LetTheNewsPass();
    editor = std::make_unique<WindowedEditor>(display, place);
    editor->CloseHint();
    editor->ChoosePorts(outPort, inPort);
  }

  // Behind what was played around.
  static void ExpectInit(const ShownMicroQ &microQ) {
    const auto lines = microQ.Lines(PlayedAround.size() + LinesOfInit);
    ASSERT_EQ(lines.size(), PlayedAround.size() + LinesOfInit);
    EXPECT_EQ(lines.back(), LastOfInit);
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(), SaysThatItIsStrange), 0);
  }

  const VirtualDisplay display{DeskSize};
  const EditorDirectory place;
  std::unique_ptr<WindowedEditor> editor;
};

TEST_F(WindowFirstStartTest, TheBuiltInMicroQIsChosenAndTellsInItsWindowWhatIsPlayed) {
  const NoJackServer noServer;
  StartAndChoose("microQ (built-in)");
  const ShownMicroQ microQ(display, BuiltIn);
  const ShownForm mainForm = editor->MainForm();
  EXPECT_TRUE(AreApart(microQ.WindowArea(), mainForm.WindowArea()));

  PlayAround(*editor);
  EXPECT_EQ(microQ.Lines(PlayedAround.size()), PlayedAround);
  // A change that goes out as a controller marks the title; one that fails shows a box.
  display.WaitForWindow("^Tessoro v1.3.1 - .tss [*]$");
  EXPECT_FALSE(editor->ShowsBox("Tessoro"));

  mainForm.Focus();
  mainForm.Click(editor->Design().F_Tessoro.InitSnd);
  ExpectInit(microQ);

  // It is no form, so it doesn't keep the program alive.
  editor->QuitByMenu();
  EXPECT_EQ(editor->ExitStatus(), 0);
}

TEST_F(WindowFirstStartTest, OnAMachineWithJackTheMonitorTellsWhatIsPlayed) {
  const JackServer server;
  const RunningMonitor monitor("--text --jack");
  ASSERT_TRUE(Eventually([&] { return !monitor.Output().empty(); }));
  StartAndChoose("microQ (monitor)");
  PlayAround(*editor);
  EXPECT_TRUE(Eventually([&] { return monitor.Messages().size() >= PlayedAround.size(); }));
  EXPECT_EQ(monitor.Messages(), PlayedAround);
  editor->CloseMainWindow();
  EXPECT_EQ(editor->ExitStatus(), 0);

  // From now on the ports are known.
  editor = std::make_unique<WindowedEditor>(display, place);
  editor->CloseHint();
  editor->MainForm().Click(editor->Design().F_Tessoro.NoteC1);
  EXPECT_TRUE(Eventually([&] { return monitor.Messages().size() == PlayedAround.size() + 2; }))
      << monitor.Output();
  editor.reset();
}

TEST_F(WindowFirstStartTest, TheWindowOfTheMonitorTellsTheSameAndEndsWithItsCloseControl) {
  const JackServer server;
  RunningMonitor monitor("--jack", {"DISPLAY=" + display.Name(), "QT_QPA_PLATFORM=xcb"});
  const ShownMicroQ microQ(display, Monitor);
  StartAndChoose("microQ (monitor)");
  PlayAround(*editor);
  EXPECT_EQ(microQ.Lines(PlayedAround.size()), PlayedAround);

  const ShownForm mainForm = editor->MainForm();
  mainForm.Click(editor->Design().F_Tessoro.InitSnd);
  display.WaitForWindow("^Tessoro v1.3.1$");
  ExpectInit(microQ);
  editor->QuitByMenu();
  EXPECT_EQ(editor->ExitStatus(), 0);

  microQ.Close();
  EXPECT_EQ(monitor.ExitStatus(), 0);
}

} // namespace
} // namespace Tessoro::Tests
