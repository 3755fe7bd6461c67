// The real program in a real window, on a display that nobody sees, worked by real events.
#pragma once

#include "surface/Control.hpp"
#include "tests/endtoend/ChildProcess.hpp"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace Tessoro::Tests {

// An X server of the test's own, under a number that was free.
class VirtualDisplay {
public:
  VirtualDisplay();
  ~VirtualDisplay();
  VirtualDisplay(const VirtualDisplay &) = delete;
  VirtualDisplay &operator=(const VirtualDisplay &) = delete;

  // The server dies.
  void Vanish() { server.reset(); }

  // As ":7".
  const std::string &Name() const { return name; }

private:
  std::filesystem::path numberFile;
  std::unique_ptr<ChildProcess> server;
  std::string name;
};

// Runs in a directory of its own, in which its settings name these ports. The constructor returns
// when the main window can be worked, and throws if it never comes.
class WindowedEditor {
public:
  WindowedEditor(int outPort, int inPort);
  ~WindowedEditor();
  WindowedEditor(const WindowedEditor &) = delete;
  WindowedEditor &operator=(const WindowedEditor &) = delete;

  // Clicks in the middle of a control of the main form.
  void Click(const Control &control);
  // Key names of X, as "1 2 BackSpace alt+f".
  void PressKeys(const std::string &keys);
  void QuitByMenu();
  void LoseDisplay() { display.Vanish(); }
  // The settings file as it stands.
  std::string Settings() const;
  // Waits for a message box of that title and gives it the keys.
  void FocusBox(const std::string &title);
  // Nothing if it goes on running.
  std::optional<int> ExitStatus();

private:
  std::string Do(const std::string &command) const;
  std::string WaitForWindow(const std::string &titlePattern) const;
  void MeasureMenu();

  VirtualDisplay display;
  std::filesystem::path directory;
  std::unique_ptr<ChildProcess> program;
  std::string window;
  int heightOfMenu = 0;
};

} // namespace Tessoro::Tests
