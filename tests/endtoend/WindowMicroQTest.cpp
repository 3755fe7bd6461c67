// The window of the built-in microQ beside a large main window.
#include "tests/endtoend/Waiting.hpp"
#include "tests/endtoend/WindowedEditor.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

namespace Tessoro::Tests {
namespace {

constexpr Extent LargeScreen{.width = 3840, .height = 2160};

TEST(WindowMicroQTest, OnALargeScreenItsLettersGrowAsFarAsItHasRoomAndFollowTheKeys) {
  setenv("JACK_DEFAULT_SERVER", "tessoro-test-no-server", 1);
  const VirtualDisplay display(LargeScreen);
  const EditorDirectory place;
  place.WriteSettings(SettingsWithPorts(0, 0));
  WindowedEditor editor(display, place);
  const Area mainArea = editor.MainForm().WindowArea();
  const std::string window = display.WaitForWindow("^microQ .built-in.$");
  const Area opened = display.AreaOf(window);
  EXPECT_GE(opened.left, mainArea.left + mainArea.width);
  EXPECT_LE(opened.left + opened.width, LargeScreen.width);
  constexpr double zoom = 1.5; // 1.75 would cut its columns
  EXPECT_EQ(opened.height, 560 * zoom);

  const auto hasHeight = [&](double height) {
    return Eventually([&] { return std::abs(display.AreaOf(window).height - height) <= 1; });
  };
  display.Focus(window);
  display.PressKeys("ctrl+plus");
  EXPECT_TRUE(hasHeight(560 * 1.75));
  display.PressKeys("ctrl+minus ctrl+minus");
  EXPECT_TRUE(hasHeight(560 * 1.25));
  display.PressKeys("ctrl+0");
  EXPECT_TRUE(hasHeight(560 * zoom));
  editor.QuitByMenu();
  EXPECT_EQ(editor.ExitStatus(), 0);
  unsetenv("JACK_DEFAULT_SERVER");
}

} // namespace
} // namespace Tessoro::Tests
