#include "tests/endtoend/VirtualDisplay.hpp"

#include "tests/endtoend/Waiting.hpp"
#include "tests/endtoend/XConnection.hpp"

#include <fstream>
#include <stdexcept>

namespace Tessoro::Tests {
namespace {

namespace fs = std::filesystem;

std::string At(Point place) { return std::to_string(place.x) + " " + std::to_string(place.y); }

std::string PointingAt(const Spot &spot) {
  const std::string within = spot.window.empty() ? "" : "--window " + spot.window + " ";
  return "mousemove " + within + At(spot.place);
}

// Of a list as "X=3", line by line.
std::string Entry(const std::string &list, const std::string &key) {
  const std::size_t begin = list.find(key + "=");
  if (begin == std::string::npos)
    throw std::runtime_error("no " + key + " in: " + list);
  const std::size_t value = begin + key.size() + 1;
  return list.substr(value, list.find('\n', value) - value);
}

} // namespace

VirtualDisplay::VirtualDisplay(Extent size) : numberFile(NewTestDirectory() / "number") {
  // Without -noreset it begins anew, and turns others away meanwhile, whenever the last has gone.
  const std::string screen = std::to_string(size.width) + "x" + std::to_string(size.height) + "x24";
  server = std::make_unique<ChildProcess>(
      std::vector<std::string>{"sh", "-c",
                               "exec Xvfb -noreset -displayfd 3 -screen 0 " + screen +
                                   " -nolisten tcp 3>" + numberFile.string()});
  WaitFor("an X server", [this] {
    std::ifstream file(numberFile);
    std::string number;
    if (!std::getline(file, number) || file.eof())
      return false; // the number isn't whole before its line ends
    name = ":" + number;
    return true;
  });
}

VirtualDisplay::~VirtualDisplay() {
  std::error_code ignored;
  fs::remove_all(numberFile.parent_path(), ignored);
}

std::string VirtualDisplay::Do(const std::string &command) const {
  std::string output =
      OutputOf("DISPLAY=" + name + " timeout 10 xdotool " + command + " 2>/dev/null");
  while (!output.empty() && output.back() == '\n')
    output.pop_back();
  return output;
}

std::string VirtualDisplay::WindowCalled(const std::string &title, pid_t owner) const {
  const std::string ofOwner = owner == 0 ? "" : "--all --pid " + std::to_string(owner) + " ";
  return Do("search --onlyvisible " + ofOwner + "--name '" + title + "'");
}

std::string VirtualDisplay::Titles() const {
  return Do("search --onlyvisible --name . getwindowname %@");
}

std::string VirtualDisplay::WaitForWindow(const std::string &title, pid_t owner) const {
  std::string window;
  WaitFor("a window called " + title, [&] {
    window = WindowCalled(title, owner);
    return !window.empty();
  });
  return window;
}

void VirtualDisplay::WaitUntilGone(const std::string &title, pid_t owner) const {
  WaitFor("the end of " + title, [&] { return WindowCalled(title, owner).empty(); });
}

Area VirtualDisplay::AreaOf(const std::string &window) const {
  const std::string geometry = Do("getwindowgeometry --shell " + window);
  const auto number = [&](const std::string &key) { return std::stoi(Entry(geometry, key)); };
  return {number("X"), number("Y"), number("WIDTH"), number("HEIGHT")};
}

void VirtualDisplay::Move(const std::string &window, Point leftTop) const {
  Do("windowmove " + window + " " + At(leftTop));
  WaitFor("a window in its place", [&] {
    const Area area = AreaOf(window);
    return area.left == leftTop.x && area.top == leftTop.y;
  });
}

void VirtualDisplay::Close(const std::string &window) const {
  const XConnection connection = ConnectToX(name);
  xcb_client_message_event_t message{};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = 32;
  message.window = static_cast<xcb_window_t>(std::stoul(window));
  message.type = XAtom(connection, "WM_PROTOCOLS");
  message.data.data32[0] = XAtom(connection, "WM_DELETE_WINDOW");
  const auto request =
      xcb_send_event_checked(connection.get(), 0, message.window, XCB_EVENT_MASK_NO_EVENT,
                             reinterpret_cast<const char *>(&message));
  const XAnswer<xcb_generic_error_t> error(xcb_request_check(connection.get(), request));
  if (error)
    throw std::runtime_error("no window to close: " + window);
}

void VirtualDisplay::Focus(const std::string &window) const {
  WaitFor("the focus of " + window, [&] {
    return Do("windowraise " + window + " windowfocus " + window + " getwindowfocus") == window;
  });
}

void VirtualDisplay::BringBack(const std::string &window) const { Do("windowactivate " + window); }

std::string VirtualDisplay::Focused() const { return Do("getwindowfocus"); }

void VirtualDisplay::PointAt(const Spot &spot) const { Do(PointingAt(spot)); }

void VirtualDisplay::Press(const Spot &spot) const { Do(PointingAt(spot) + " mousedown 1"); }

void VirtualDisplay::ReleaseButton() const { Do("mouseup 1"); }

void VirtualDisplay::Click(const Spot &spot) const { Do(PointingAt(spot) + " click 1"); }

void VirtualDisplay::DoubleClick(const Spot &spot) const {
  Do(PointingAt(spot) + " click --repeat 2 --delay 20 1");
}

void VirtualDisplay::RightClick(const Spot &spot) const { Do(PointingAt(spot) + " click 3"); }

void VirtualDisplay::TurnWheel(const Spot &spot, int notches) const {
  Do(PointingAt(spot) + " click --repeat " + std::to_string(notches) + " --delay 20 5");
}

std::string VirtualDisplay::WindowUnderPointer() const {
  return Entry(Do("getmouselocation --shell"), "WINDOW");
}

void VirtualDisplay::PressKeys(const std::string &keys) const { Do("key --delay 8 " + keys); }

void VirtualDisplay::HoldKey(const std::string &key) const { Do("keydown " + key); }

void VirtualDisplay::LetGoOfKey(const std::string &key) const { Do("keyup " + key); }

std::string VirtualDisplay::Clipboard() const { return XClipboard(name); }

} // namespace Tessoro::Tests
