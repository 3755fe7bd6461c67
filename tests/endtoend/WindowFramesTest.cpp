// Windows with frames: how they behave under a window manager.
#include "tests/endtoend/ShownMicroQ.hpp"
#include "tests/endtoend/Waiting.hpp"
#include "tests/endtoend/WindowManager.hpp"
#include "tests/endtoend/WindowedEditor.hpp"

#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <string>
#include <thread>
#include <utility>

namespace Tessoro::Tests {
namespace {

using namespace std::chrono_literals;

constexpr const char *MainTitle = "^Tessoro (freeware )?v[0-9]";
constexpr const char *MicroQTitle = "^microQ";
constexpr const char *HintTitle = "^Tessoro info$";
// Of the menu, which comes in whole pixels.
constexpr double Tolerance = 6;

bool Overlap(const Area &one, const Area &other) {
  return one.left < other.left + other.width && other.left < one.left + one.width &&
         one.top < other.top + other.height && other.top < one.top + one.height;
}

bool IsOnDisplay(const Area &area) {
  return area.left >= 0 && area.top >= 0 && area.left + area.width <= VirtualDisplay::Width &&
         area.top + area.height <= VirtualDisplay::Height;
}

class WindowFramesTest : public testing::Test {
protected:
  void SetUp() override {
    if (!WindowManager::IsInstalled())
      GTEST_SKIP() << "openbox, the window manager of this test, isn't installed";
    setenv("JACK_DEFAULT_SERVER", "tessoro-test-no-server", 1);
    display = std::make_unique<VirtualDisplay>();
    manager = std::make_unique<WindowManager>(*display);
    place.WriteSettings(SettingsWithPorts(0, 0));
    editor = std::make_unique<WindowedEditor>(*display, place);
    mainWindow = display->WaitForWindow(MainTitle);
    editor->MainForm();
    atFirst = display->AreaOf(mainWindow);
  }
  void TearDown() override { unsetenv("JACK_DEFAULT_SERVER"); }

  void MoveMainFormTo(Point leftTop) const {
    OutputOf("DISPLAY=" + display->Name() + " xdotool windowmove " + mainWindow + " " +
             std::to_string(leftTop.x) + " " + std::to_string(leftTop.y));
    WaitFor("the main window in its place",
            [&] { return std::abs(manager->FrameOf(mainWindow).left - leftTop.x) < 10; });
  }

  // Never less than the time that the program takes for the end of a drag.
  bool SettlesInProportion() const {
    return Eventually(
        [&] {
          const Area area = display->AreaOf(mainWindow);
          const double zoom = static_cast<double>(area.width) / atFirst.width;
          return std::abs(area.height - atFirst.height * zoom) < Tolerance;
        },
        5s);
  }
  double Zoom() const {
    return static_cast<double>(display->AreaOf(mainWindow).width) / atFirst.width;
  }
  void ExpectBesideMainForm(const std::string &window) const {
    const Area frame = manager->FrameOf(window);
    EXPECT_TRUE(IsOnDisplay(frame)) << frame.left << " " << frame.top;
    EXPECT_FALSE(Overlap(frame, manager->FrameOf(mainWindow))) << frame.left << " " << frame.top;
  }
  void DoubleClickTitle() const {
    const Area frame = manager->FrameOf(mainWindow);
    display->DoubleClick({{.x = frame.left + frame.width / 2, .y = frame.top + 8}});
  }

  EditorDirectory place;
  std::unique_ptr<VirtualDisplay> display;
  std::unique_ptr<WindowManager> manager;
  std::unique_ptr<WindowedEditor> editor;
  std::string mainWindow;
  Area atFirst;
};

TEST_F(WindowFramesTest, TheCornerOfTheMainWindowZoomsItWithItsProportionKept) {
  MoveMainFormTo({.x = 10, .y = 10});
  manager->DragCorner(mainWindow, {.x = 350, .y = 320}, 20, 5ms);
  ASSERT_TRUE(SettlesInProportion());
  EXPECT_NEAR(Zoom(), 1.43, 0.1);
  manager->DragCorner(mainWindow, {.x = -300, .y = -120}, 10, 5ms);
  ASSERT_TRUE(SettlesInProportion());
  EXPECT_LT(Zoom(), 1.15);
}

// Meanwhile the window asks for its proportion, and the manager has the last word.
TEST_F(WindowFramesTest, TheProportionIsKeptThoughTheUserPausesWithTheCornerInHand) {
  MoveMainFormTo({.x = 10, .y = 10});
  manager->DragCorner(mainWindow, {.x = 300, .y = 60}, 4, 500ms);
  EXPECT_TRUE(SettlesInProportion());
}

TEST_F(WindowFramesTest, MaximisedItFillsTheDisplayAndComesBackAsItWas) {
  const Area cutoff = editor->MainForm().AreaOf(editor->Design().F_Tessoro.TextF1_cutoff);
  DoubleClickTitle();
  ASSERT_TRUE(
      Eventually([&] { return display->AreaOf(mainWindow).width == VirtualDisplay::Width; }, 5s));
  std::this_thread::sleep_for(500ms); // it asks for no other size
  EXPECT_EQ(display->AreaOf(mainWindow).width, VirtualDisplay::Width);
  // What it holds has grown with it.
  const auto grown = [zoom = Zoom()](double pixels) { return static_cast<int>(pixels * zoom); };
  display->Click(
      {{.x = grown(cutoff.left + cutoff.width / 2.0), .y = grown(cutoff.top + cutoff.height / 2.0)},
       mainWindow});
  display->PressKeys("6");
  DoubleClickTitle();
  ASSERT_TRUE(Eventually([&] { return display->AreaOf(mainWindow).width == atFirst.width; }, 5s));
  EXPECT_TRUE(SettlesInProportion());
  EXPECT_THAT(ShownMicroQ(*display, MicroQTitle).Lines(1),
              testing::ElementsAre("F0 3E 10 00 20 00 00 4E 06 F7  Filter 1 cutoff = 6"));
}

TEST_F(WindowFramesTest, ItsButtonMaximisesItAndBringsItBackAsItWas) {
  manager->Click(mainWindow, FrameButton::Maximise);
  ASSERT_TRUE(
      Eventually([&] { return display->AreaOf(mainWindow).width == VirtualDisplay::Width; }, 5s));
  manager->Click(mainWindow, FrameButton::Maximise);
  ASSERT_TRUE(Eventually([&] { return display->AreaOf(mainWindow).width == atFirst.width; }, 5s));
  EXPECT_TRUE(SettlesInProportion());
}

TEST_F(WindowFramesTest, PutAwayItComesBackWithWhatWasTyped) {
  const TextBox &cutoff = editor->Design().F_Tessoro.TextF1_cutoff;
  editor->MainForm().Type(cutoff, "6");
  const Area before = manager->FrameOf(mainWindow);
  manager->Click(mainWindow, FrameButton::Iconify);
  display->WaitUntilGone(MainTitle);
  const std::string next = display->WaitForWindow(MicroQTitle);
  WaitFor("the keyboard in the next window", [&] { return display->Focused() == next; });
  display->BringBack(mainWindow);
  EXPECT_EQ(display->WaitForWindow(MainTitle), mainWindow);
  WaitFor("the keyboard", [&] { return display->Focused() == mainWindow; });
  // It flies to its place.
  WaitFor("the frame as it was", [&] {
    const Area now = manager->FrameOf(mainWindow);
    return now.left == before.left && now.top == before.top && now.width == before.width &&
           now.height == before.height;
  });
  editor->MainForm().Click(cutoff, {.x = 0.3});
  display->PressKeys("End 4");
  EXPECT_EQ(ShownMicroQ(*display, MicroQTitle).Lines(2).back(),
            "F0 3E 10 00 20 00 00 4E 40 F7  Filter 1 cutoff = 64");
}

TEST_F(WindowFramesTest, EveryKindOfWindowIsClosedByTheButtonInItsFrame) {
  const auto closes = [&](const char *title) {
    manager->Click(display->WaitForWindow(title), FrameButton::Close);
    display->WaitUntilGone(title);
  };
  editor->MainForm().Click(editor->Design().F_Tessoro.InitSnd); // wakes entries of the menu
  for (const auto &[keys, title] :
       {std::pair{"alt+f p", "^Preferences$"}, std::pair{"ctrl+o", "^Open:$"},
        std::pair{"ctrl+s", "^Save .*/[.]tss$"}, std::pair{"ctrl+g", "^General sound settings$"},
        std::pair{"alt+a", "^About Tessoro$"}, std::pair{"alt+m Up Return", "^MIDI settings$"}}) {
    editor->MainForm().PressKeys(keys);
    closes(title);
  }
  // With the ports shut, a change can't go out.
  editor->MainForm().Type(editor->Design().F_Tessoro.TextF1_cutoff, "6");
  closes("^Tessoro$");
  closes(MicroQTitle);
  manager->Click(mainWindow, FrameButton::Close);
  EXPECT_EQ(editor->ExitStatus(), 0);
}

TEST_F(WindowFramesTest, TheHintIsClosedByTheButtonInItsFrameAndComesBackAtTheNextStart) {
  std::string settings = SettingsWithPorts(0, 0);
  settings.replace(settings.rfind("No"), 2, "Yes");
  editor.reset();
  place.WriteSettings(settings);
  for (int start = 1; start <= 2; ++start) {
    editor = std::make_unique<WindowedEditor>(*display, place);
    manager->Click(display->WaitForWindow(HintTitle), FrameButton::Close);
    // After eight seconds it would go by itself.
    EXPECT_TRUE(Eventually([&] { return display->WindowCalled(HintTitle).empty(); }, 4s));
    manager->Click(display->WaitForWindow(MainTitle), FrameButton::Close);
    EXPECT_EQ(editor->ExitStatus(), 0);
  }
}

TEST_F(WindowFramesTest, AMicroQThatIsThereFromTheStartStandsBesideTheMainWindow) {
  ExpectBesideMainForm(display->WaitForWindow(MicroQTitle));
}

TEST_F(WindowFramesTest, FormsOpenBesideTheMainWindowWithTheirFramesOnTheDisplay) {
  for (const auto &[keys, title] :
       {std::pair{"alt+f p", "^Preferences$"}, std::pair{"ctrl+o", "^Open:$"},
        std::pair{"alt+m Up Return", "^MIDI settings$"}}) {
    editor->MainForm().PressKeys(keys);
    const std::string form = display->WaitForWindow(title);
    ExpectBesideMainForm(form);
    display->Focus(form);
    display->PressKeys("alt+F4");
    display->WaitUntilGone(title);
  }
  display->Focus(mainWindow);
  display->PressKeys("alt+F4");
  EXPECT_EQ(editor->ExitStatus(), 0);
}

// They come up before the main window does.
TEST_F(WindowFramesTest, AtTheFirstStartThePortsStandRightBesideTheMainWindow) {
  editor.reset();
  std::filesystem::remove(place.Settings());
  editor = std::make_unique<WindowedEditor>(*display, place);
  mainWindow = display->WaitForWindow(MainTitle);
  const std::string ports = display->WaitForWindow("^MIDI settings$");
  ExpectBesideMainForm(ports);
  const Area frame = manager->FrameOf(mainWindow);
  EXPECT_NEAR(manager->FrameOf(ports).left, frame.left + frame.width, 20);
}

TEST_F(WindowFramesTest, ThePortsStayOnTopAndABoxOnTopOfThem) {
  MoveMainFormTo({.x = 5, .y = 5});
  editor->OpenPortFormByMenu();
  const std::string ports = display->WaitForWindow("^MIDI settings$");
  MoveMainFormTo({.x = manager->FrameOf(ports).left - 200, .y = 5});
  display->PressKeys("alt+Tab");
  WaitFor("the main window in front", [&] { return display->Focused() == mainWindow; });
  EXPECT_TRUE(manager->LiesAbove(ports, mainWindow));
  // With the ports shut, a change can't go out.
  editor->MainForm().Type(editor->Design().F_Tessoro.TextF1_cutoff, "6");
  EXPECT_TRUE(manager->LiesAbove(display->WaitForWindow("^Tessoro$"), ports));
}

} // namespace
} // namespace Tessoro::Tests
