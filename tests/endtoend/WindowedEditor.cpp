#include "tests/endtoend/WindowedEditor.hpp"

#include "surface/Form.hpp"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

namespace Tessoro::Tests {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

constexpr auto Patience = 20s;
constexpr int TwipsPerPixel = 15;
constexpr int HeightOfForm = 8580 / TwipsPerPixel;

fs::path NewDirectory() {
  std::string name = (fs::temp_directory_path() / "tessoro-window-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr)
    throw std::runtime_error("no directory for the test");
  return name;
}

std::string WithoutLineEnd(std::string text) {
  while (!text.empty() && text.back() == '\n')
    text.pop_back();
  return text;
}

template <typename Condition> void WaitFor(Condition &&condition, const std::string &what) {
  const auto deadline = std::chrono::steady_clock::now() + Patience;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > deadline)
      throw std::runtime_error("in vain waited for " + what);
    std::this_thread::sleep_for(20ms);
  }
}

} // namespace

VirtualDisplay::VirtualDisplay() : numberFile(NewDirectory() / "number") {
  server = std::make_unique<ChildProcess>(std::vector<std::string>{
      "sh", "-c",
      "exec Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>" + numberFile.string()});
  WaitFor(
      [this] {
        std::ifstream file(numberFile);
        std::string number;
        if (!std::getline(file, number) || file.eof())
          return false; // the number isn't whole before its line ends
        name = ":" + number;
        return true;
      },
      "an X server");
}

VirtualDisplay::~VirtualDisplay() {
  std::error_code ignored;
  fs::remove_all(numberFile.parent_path(), ignored);
}

WindowedEditor::WindowedEditor(int outPort, int inPort) : directory(NewDirectory()) {
  const fs::path executable = directory / "tessoro";
  fs::copy_file(TESSORO_PROGRAM, executable);
  std::ofstream settings(directory / "Tessoro.ini", std::ios::binary);
  settings << "\"Tessoro v1.3.1\"\r\n\"\",\"\"\r\n3,3\r\n"
           << inPort << ",0\r\n"
           << outPort << ",0\r\n\"?\"\r\n\"No\"\r\n";
  settings.close();
  program = std::make_unique<ChildProcess>(
      std::vector<std::string>{executable.string()},
      std::vector<std::string>{"DISPLAY=" + display.Name(), "QT_QPA_PLATFORM=xcb"});
  window = WaitForWindow("^Tessoro freeware v");
  MeasureMenu();
}

// A client that is killed may hold up a JACK server for good, so the program is asked to end.
WindowedEditor::~WindowedEditor() {
  if (!program->ExitStatusWithin(0s)) {
    QuitByMenu();
    program->ExitStatusWithin(5s);
  }
  program.reset();
  std::error_code ignored;
  fs::remove_all(directory, ignored);
}

std::string WindowedEditor::Do(const std::string &command) const {
  return WithoutLineEnd(
      OutputOf("DISPLAY=" + display.Name() + " timeout 10 xdotool " + command + " 2>/dev/null"));
}

// Gives it the focus as well, which no window manager does here.
std::string WindowedEditor::WaitForWindow(const std::string &titlePattern) const {
  std::string found;
  WaitFor(
      [&] {
        found = Do("search --onlyvisible --name '" + titlePattern + "'");
        return !found.empty();
      },
      "a window called " + titlePattern);
  WaitFor(
      [&] {
        Do("windowfocus " + found);
        return Do("getwindowfocus") == found;
      },
      "the focus of " + titlePattern);
  return found;
}

void WindowedEditor::FocusBox(const std::string &title) { WaitForWindow("^" + title + "$"); }

void WindowedEditor::MeasureMenu() {
  const std::string geometry = Do("getwindowgeometry --shell " + window);
  const std::size_t height = geometry.find("HEIGHT=");
  if (height == std::string::npos)
    throw std::runtime_error("no size of the window: " + geometry);
  heightOfMenu = std::stoi(geometry.substr(height + 7)) - HeightOfForm;
}

void WindowedEditor::Click(const Control &control) {
  const Place &place = control.DesignPlace();
  const int x = (place.left + place.width / 2) / TwipsPerPixel;
  const int y = heightOfMenu + (place.top + place.height / 2) / TwipsPerPixel;
  Do("mousemove --window " + window + " " + std::to_string(x) + " " + std::to_string(y) +
     " click 1");
}

void WindowedEditor::PressKeys(const std::string &keys) { Do("key --delay 8 " + keys); }

void WindowedEditor::QuitByMenu() {
  PressKeys("alt+f");
  PressKeys("q");
}

std::string WindowedEditor::Settings() const {
  std::ifstream file(directory / "Tessoro.ini", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::optional<int> WindowedEditor::ExitStatus() { return program->ExitStatusWithin(5s); }

} // namespace Tessoro::Tests
