// A display that nobody sees, with a mouse and a keyboard that only the test has.
#pragma once

#include "tests/endtoend/ChildProcess.hpp"

#include <filesystem>
#include <memory>
#include <string>

namespace Tessoro::Tests {

// In pixels.
struct Point {
  int x = 0;
  int y = 0;
};

// In pixels.
struct Extent {
  int width = 0;
  int height = 0;
};

struct Area {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

// A place in a window, or on the whole display where none is named.
struct Spot {
  Point place;
  std::string window = {};
};

// An X server of the test's own, under a number that was free. No window manager runs there, so the
// test places windows and gives them the keyboard. Titles are patterns, as "^MIDI settings$"; what
// is waited for in vain throws.
class VirtualDisplay {
public:
  // In pixels, where nothing else is asked for.
  static constexpr int Width = 1280;
  static constexpr int Height = 1024;

  explicit VirtualDisplay(Extent size = {Width, Height});
  ~VirtualDisplay();
  VirtualDisplay(const VirtualDisplay &) = delete;
  VirtualDisplay &operator=(const VirtualDisplay &) = delete;

  // The server dies.
  void Vanish() { server.reset(); }

  // As ":7".
  const std::string &Name() const { return name; }

  // Of those of one process, or of all where none is named. Empty if no such window is to be seen.
  std::string WindowCalled(const std::string &title, pid_t owner = 0) const;
  // The titles of all that are to be seen, a line each.
  std::string Titles() const;
  std::string WaitForWindow(const std::string &title, pid_t owner = 0) const;
  void WaitUntilGone(const std::string &title, pid_t owner = 0) const;
  Area AreaOf(const std::string &window) const;
  void Move(const std::string &window, Point leftTop) const;
  // As the close control in its frame does, which it doesn't have here.
  void Close(const std::string &window) const;
  // Brings it to the front and gives it the keyboard.
  void Focus(const std::string &window) const;
  // Of those that a window manager has put away: asks it as a task bar does.
  void BringBack(const std::string &window) const;
  // Who has the keyboard.
  std::string Focused() const;

  void PointAt(const Spot &spot) const;
  // The left button, also away from where the pointer was.
  void Press(const Spot &spot) const;
  void ReleaseButton() const;
  void Click(const Spot &spot) const;
  void DoubleClick(const Spot &spot) const;
  void RightClick(const Spot &spot) const;
  // The wheel, towards the user.
  void TurnWheel(const Spot &spot, int notches) const;
  std::string WindowUnderPointer() const;

  // Key names of X, as "1 2 BackSpace alt+f".
  void PressKeys(const std::string &keys) const;
  void HoldKey(const std::string &key) const;
  void LetGoOfKey(const std::string &key) const;

  // What was copied last; nothing where no program offers it as a text.
  std::string Clipboard() const;

private:
  std::string Do(const std::string &command) const;

  std::filesystem::path numberFile;
  std::unique_ptr<ChildProcess> server;
  std::string name;
};

} // namespace Tessoro::Tests
