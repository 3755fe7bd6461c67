// The first start on a machine without MIDI hardware, as a new user would do it.
#include "tests/endtoend/JackInstruments.hpp"
#include "tests/endtoend/JackServer.hpp"
#include "tests/endtoend/MachinePorts.hpp"
#include "tests/endtoend/RunningMonitor.hpp"
#include "tests/endtoend/WindowedEditor.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace Tessoro::Tests {
namespace {

// As on a machine without one, whatever the user of this machine runs.
struct NoJackServer {
  NoJackServer() { setenv("JACK_DEFAULT_SERVER", "tessoro-test-no-server", 1); }
  ~NoJackServer() { unsetenv("JACK_DEFAULT_SERVER"); }
};

TEST(WindowFirstStartTest, BuiltInDevicesAreChosenAndPlayed) {
  const NoJackServer noServer;
  const VirtualDisplay display;
  const EditorDirectory place;
  WindowedEditor editor(display, place);
  editor.CloseHint();
  editor.ChoosePorts(NumberOfOut("microQ (built-in)"), NumberOfIn("Silence (built-in)"));

  // It comes up by itself, and is put aside so that the main window can be clicked.
  display.Move(display.WaitForWindow("^microQ .built-in.$"), {.x = 900, .y = 700});

  const F_Tessoro &form = editor.Design().F_Tessoro;
  const ShownForm mainForm = editor.MainForm();
  mainForm.Click(form.NoteC3);
  mainForm.Type(form.TextOSC1detune, "5");
  // A change that goes out as a controller marks the title; one that fails shows a box.
  display.WaitForWindow("^Tessoro v1.3.1 - .tss [*]$");
  EXPECT_FALSE(editor.ShowsBox("Tessoro"));

  // Its window is no form, so it doesn't keep the program alive.
  editor.QuitByMenu();
  EXPECT_EQ(editor.ExitStatus(), 0);
}

TEST(WindowFirstStartTest, OnAMachineWithJackTheMonitorTellsWhatIsPlayed) {
  const JackServer server;
  const RunningMonitor monitor("--text --jack");
  ASSERT_TRUE(Eventually([&] { return !monitor.Output().empty(); }));
  const int out = NumberOfOut("microQ (monitor)");
  const int in = NumberOfIn("Silence (built-in)");
  LetTheNewsPass();
  const VirtualDisplay display;
  const EditorDirectory place;
  {
    WindowedEditor editor(display, place);
    editor.CloseHint();
    editor.ChoosePorts(out, in);

    const F_Tessoro &form = editor.Design().F_Tessoro;
    const ShownForm mainForm = editor.MainForm();
    mainForm.Click(form.NoteC3);
    mainForm.Type(form.TextF1_cutoff, "6 4");
    mainForm.Pick(form.ComboOSC2shape, 2);
    mainForm.Click(form.CheckOSC3mute);
    ASSERT_TRUE(Eventually([&] { return monitor.Messages().size() == 6; })) << monitor.Output();
    EXPECT_THAT(
        monitor.Messages(),
        testing::ElementsAre("90 3C 64                       Note C3 on, velocity 100",
                             "90 3C 00                       Note C3 off",
                             "F0 3E 10 00 20 00 00 4E 06 F7  Filter 1 cutoff = 6",
                             "F0 3E 10 00 20 00 00 4E 40 F7  Filter 1 cutoff = 64",
                             "B0 27 02                       Controller 39: OSC 2 shape = Saw (2)",
                             "B0 3A 00                       Controller 58: OSC 3 level = 0"));
    editor.CloseMainWindow();
    EXPECT_EQ(editor.ExitStatus(), 0);
  }

  // From now on the ports are known.
  const WindowedEditor editor(display, place);
  editor.CloseHint();
  editor.MainForm().Click(editor.Design().F_Tessoro.NoteC1);
  EXPECT_TRUE(Eventually([&] { return monitor.Messages().size() == 8; })) << monitor.Output();
}

TEST(WindowFirstStartTest, TheWindowOfTheMonitorStandsAnInitAndEndsWithItsCloseControl) {
  const JackServer server;
  const VirtualDisplay display;
  RunningMonitor monitor("--jack", {"DISPLAY=" + display.Name(), "QT_QPA_PLATFORM=xcb"});
  const std::string window = display.WaitForWindow("^microQ .monitor.");
  const EditorDirectory place;
  place.WriteSettings(
      SettingsWithPorts(NumberOfOut("microQ (monitor)"), NumberOfIn("Silence (built-in)")));
  LetTheNewsPass();
  WindowedEditor editor(display, place);
  const ShownForm mainForm = editor.MainForm();
  mainForm.Click(editor.Design().F_Tessoro.InitSnd);
  display.WaitForWindow("^Tessoro v1.3.1$");
  editor.QuitByMenu();
  EXPECT_EQ(editor.ExitStatus(), 0);

  display.Close(window);
  EXPECT_EQ(monitor.ExitStatus(), 0);
}

} // namespace
} // namespace Tessoro::Tests
