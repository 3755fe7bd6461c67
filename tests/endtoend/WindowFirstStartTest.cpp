// The first start on a machine without MIDI hardware, as a new user would do it.
#include "service/MachineMidi.hpp"
#include "tests/endtoend/ChildProcess.hpp"
#include "tests/endtoend/WindowedEditor.hpp"
#include "tests/support/TestRun.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <thread>

namespace Tessoro::Tests {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

constexpr int TwipsPerPixel = 15;
constexpr const char *NoServer = "tessoro-test-no-server";

bool Eventually(const std::function<bool()> &condition) {
  const auto deadline = std::chrono::steady_clock::now() + 20s;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > deadline)
      return false;
    std::this_thread::sleep_for(30ms);
  }
  return true;
}

// The place in the list, which holds the ports of this machine before the built-in devices.
template <typename Record, typename Ask>
int PlaceOf(const std::string &name, std::uint32_t count, const Ask &ask) {
  for (std::int32_t i = 0; i < static_cast<std::int32_t>(count); ++i) {
    Record record;
    if (ask(i, record) == 0 && std::string(record.szPname.data()) == name)
      return i;
  }
  throw std::runtime_error("there is no " + name);
}

class FirstStart : public testing::Test {
protected:
  FirstStart() {
    setenv("JACK_DEFAULT_SERVER", NoServer, 1);
    std::string name = (fs::temp_directory_path() / "tessoro-first-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
      throw std::runtime_error("no directory for the test");
    directory = name;
    fs::copy_file(TESSORO_PROGRAM, directory / "tessoro");
    program = std::make_unique<ChildProcess>(
        std::vector<std::string>{(directory / "tessoro").string()},
        std::vector<std::string>{"DISPLAY=" + display.Name(), "QT_QPA_PLATFORM=xcb"});
  }

  ~FirstStart() override {
    program.reset();
    unsetenv("JACK_DEFAULT_SERVER");
    std::error_code ignored;
    fs::remove_all(directory, ignored);
  }

  std::string Do(const std::string &command) const {
    std::string output =
        OutputOf("DISPLAY=" + display.Name() + " timeout 10 xdotool " + command + " 2>/dev/null");
    while (!output.empty() && output.back() == '\n')
      output.pop_back();
    return output;
  }

  std::string WindowCalled(const std::string &pattern) const {
    return Do("search --onlyvisible --name '" + pattern + "'");
  }

  // Waits for the window and gives it the keyboard, which no window manager does here.
  std::string Work(const std::string &pattern) const {
    std::string window;
    EXPECT_TRUE(Eventually([&] {
      window = WindowCalled(pattern);
      return !window.empty();
    })) << pattern;
    EXPECT_TRUE(Eventually([&] {
      Do("windowraise " + window + " windowfocus " + window);
      return Do("getwindowfocus") == window;
    })) << pattern;
    return window;
  }

  void Click(const std::string &window, const Control &control, int menuHeight = 0) const {
    const Place &place = control.DesignPlace();
    Do("mousemove --window " + window + " " +
       std::to_string((place.left + place.width / 2) / TwipsPerPixel) + " " +
       std::to_string(menuHeight + (place.top + place.height / 2) / TwipsPerPixel) + " click 1");
  }

  void Press(const std::string &keys) const { Do("key --delay 20 " + keys); }

  // From a list that shows nothing yet.
  void PickFromList(int place) const {
    for (int i = 0; i <= place; ++i)
      Press("Down");
  }

  int HeightOf(const std::string &window) const {
    const std::string geometry = Do("getwindowgeometry --shell " + window);
    return std::stoi(geometry.substr(geometry.find("HEIGHT=") + 7));
  }

  const TestRun design; // where the controls are
  VirtualDisplay display;
  fs::path directory;
  std::unique_ptr<ChildProcess> program;
};

TEST_F(FirstStart, BuiltInDevicesAreChosenAndPlayed) {
  const auto service = MakeMachineMidiService(std::make_shared<BuiltinMicroQ>());
  const int out = PlaceOf<MIDIOUTCAPS>(
      "microQ (built-in)", service->midiOutGetNumDevs(), [&](std::int32_t i, MIDIOUTCAPS &record) {
        return service->midiOutGetDevCapsA(i, record, sizeof record);
      });
  const int in = PlaceOf<MIDIINCAPS>("Silence (built-in)", service->midiInGetNumDevs(),
                                     [&](std::int32_t i, MIDIINCAPS &record) {
                                       return service->midiInGetDevCapsA(i, record, sizeof record);
                                     });

  const std::string hint = Work("^Tessoro info$");
  Click(hint, design.app.F_InfoPopUp.InfoText);
  ASSERT_TRUE(Eventually([&] { return WindowCalled("^Tessoro info$").empty(); }));

  const F_Midi &ports = design.app.F_Midi;
  const std::string portWindow = Work("^MIDI settings$");
  Click(portWindow, ports.AuswahlMIDIPort);
  PickFromList(out);
  Click(portWindow, ports.AuswahlMIDIinPort);
  PickFromList(in);
  Click(portWindow, ports.Command1);
  ASSERT_TRUE(Eventually([&] { return WindowCalled("^MIDI settings$").empty(); }));

  // It comes up by itself, and is put aside so that the main window can be clicked.
  ASSERT_TRUE(Eventually([&] { return !WindowCalled("^microQ .built-in.$").empty(); }));
  Do("windowmove " + WindowCalled("^microQ .built-in.$") + " 900 700");

  const std::string mainWindow = Work("^Tessoro freeware v");
  const F_Tessoro &form = design.app.F_Tessoro;
  constexpr int heightOfForm = 8580 / TwipsPerPixel;
  const int menuHeight = HeightOf(mainWindow) - heightOfForm;
  Click(mainWindow, form.NoteC3, menuHeight);
  Click(mainWindow, form.TextOSC1detune, menuHeight);
  Press("End BackSpace 5");
  // A change that goes out as a controller marks the title; one that fails shows a box.
  EXPECT_TRUE(Eventually([&] { return !WindowCalled("^Tessoro v1.3.1 - .tss [*]$").empty(); }));
  EXPECT_TRUE(WindowCalled("^Tessoro$").empty());

  // Its window is no form, so it doesn't keep the program alive.
  Press("alt+f");
  Press("q");
  EXPECT_EQ(program->ExitStatusWithin(10s), 0);
}

} // namespace
} // namespace Tessoro::Tests
