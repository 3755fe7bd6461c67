// What can happen to the real program on a real display.
#include "tests/endtoend/WindowedEditor.hpp"
#include "tests/support/TestRun.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

namespace Tessoro::Tests {
namespace {

class WindowSurprises : public testing::Test {
protected:
  WindowSurprises() { setenv("JACK_DEFAULT_SERVER", "tessoro-test-no-server", 1); }
  ~WindowSurprises() override { unsetenv("JACK_DEFAULT_SERVER"); }

  const TestRun design; // where the controls are
};

TEST_F(WindowSurprises, WhenTheDisplayGoesTheProgramEndsAndLeavesItsSettingsWhole) {
  WindowedEditor editor(0, 0);
  editor.Click(design.app.F_Tessoro.TextF1_cutoff);
  editor.PressKeys("End BackSpace 6 4");
  const std::string settings = editor.Settings();
  editor.LoseDisplay();
  EXPECT_TRUE(editor.ExitStatus().has_value());
  EXPECT_EQ(editor.Settings(), settings);
}

TEST_F(WindowSurprises, TwoEditorsRunAtOnce) {
  WindowedEditor one(0, 0);
  WindowedEditor other(0, 0);
  for (WindowedEditor *editor : {&one, &other, &one}) {
    editor->Click(design.app.F_Tessoro.TextF1_cutoff);
    editor->PressKeys("End BackSpace 6 4");
  }
  one.QuitByMenu();
  EXPECT_EQ(one.ExitStatus(), 0);
  other.PressKeys("End BackSpace 5");
  EXPECT_FALSE(other.ExitStatus().has_value());
  other.QuitByMenu();
  EXPECT_EQ(other.ExitStatus(), 0);
}

} // namespace
} // namespace Tessoro::Tests
