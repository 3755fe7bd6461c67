// What can happen to the real program on a real display.
#include "tests/endtoend/WindowedEditor.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

namespace Tessoro::Tests {
namespace {

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

} // namespace
} // namespace Tessoro::Tests
