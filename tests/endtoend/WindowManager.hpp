// A window manager on a virtual display: frames to drag, and somebody who decides what lies on top.
#pragma once

#include "tests/endtoend/ChildProcess.hpp"
#include "tests/endtoend/VirtualDisplay.hpp"

#include <chrono>
#include <filesystem>
#include <string>

namespace Tessoro::Tests {

// The buttons in a frame, as they stand from its right edge.
enum class FrameButton { Close, Maximise, Iconify };

class WindowManager {
public:
  static bool IsInstalled();

  // Returns when it has taken over the display.
  explicit WindowManager(const VirtualDisplay &managed);
  ~WindowManager();
  WindowManager(const WindowManager &) = delete;
  WindowManager &operator=(const WindowManager &) = delete;

  // Of the window with all that stands around it, on the display.
  Area FrameOf(const std::string &window) const;
  // Waits until one lies above the other, and tells whether it came to that.
  bool LiesAbove(const std::string &upper, const std::string &lower) const;

  // Of a window that has that button, and those to its right.
  void Click(const std::string &window, FrameButton button) const;

  // Moves the lower right corner of the frame in so many steps, with a pause after each.
  void DragCorner(const std::string &window, Point way, int steps,
                  std::chrono::milliseconds pause) const;

private:
  const VirtualDisplay &display;
  const std::filesystem::path sign;
  ChildProcess program;
};

} // namespace Tessoro::Tests
