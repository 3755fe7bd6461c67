#include "tests/endtoend/InputMethod.hpp"

#include "tests/endtoend/Waiting.hpp"

namespace Tessoro::Tests {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> EnvironmentIn(const fs::path &home, const VirtualDisplay &display) {
  return {
      "DISPLAY=" + display.Name(),
      "DBUS_SESSION_BUS_ADDRESS=unix:path=" + (home / "bus").string(),
      "HOME=" + home.string(),
      "XDG_CONFIG_HOME=" + (home / "config").string(),
      "XDG_CACHE_HOME=" + (home / "cache").string(),
      "XDG_RUNTIME_DIR=" + home.string(),
      "GSETTINGS_BACKEND=memory",
      "QT_IM_MODULE=ibus",
      "LC_ALL=C.UTF-8",
  };
}

} // namespace

bool InputMethod::IsInstalled() {
  return !OutputOf("command -v ibus-daemon").empty() &&
         fs::exists("/usr/share/ibus/component/hangul.xml");
}

// Its engines ask for their settings as they start, and the daemon waits long for one that got no
// answer. Nobody is to be seen beside the windows.
InputMethod::InputMethod(const VirtualDisplay &display)
    : home(NewTestDirectory()), environment(EnvironmentIn(home, display)) {
  const std::string bus = (home / "bus").string();
  sessionBus = std::make_unique<ChildProcess>(
      std::vector<std::string>{"dbus-daemon", "--session", "--nofork",
                               "--address=unix:path=" + bus},
      environment);
  WaitFor("a session bus", [&] { return fs::exists(bus); });
  daemon = std::make_unique<ChildProcess>(
      std::vector<std::string>{"ibus-daemon", "--desktop=none", "--panel=disable",
                               "--emoji-extension=disable", "--config=/usr/libexec/ibus-memconf"},
      environment);
  WaitFor("the settings of the input method", [this] {
    return Ask("dbus-send --bus=\"$(ibus address)\" --print-reply --dest=org.freedesktop.DBus "
               "/org/freedesktop/DBus org.freedesktop.DBus.NameHasOwner "
               "string:org.freedesktop.IBus.Config")
        .ends_with("boolean true\n");
  });
}

InputMethod::~InputMethod() {
  daemon.reset();
  sessionBus.reset();
  std::error_code ignored;
  fs::remove_all(home, ignored);
}

void InputMethod::Choose(const std::string &engine) const {
  WaitFor("the input method " + engine,
          [&] { return Ask("ibus engine " + engine + "; ibus engine") == engine + "\n"; });
}

std::string InputMethod::Ask(const std::string &command) const {
  std::string line;
  for (const std::string &entry : environment)
    line += "export '" + entry + "'; ";
  return OutputOf(line + "exec 2>/dev/null; " + command);
}

} // namespace Tessoro::Tests
