// The window of a microQ as it stands on a display, under the test's keys.
#pragma once

#include "tests/endtoend/VirtualDisplay.hpp"

#include <string>
#include <vector>

namespace Tessoro::Tests {

class ShownMicroQ {
public:
  // Waits until there is a window under such a title.
  ShownMicroQ(const VirtualDisplay &shownOn, const std::string &titlePattern);

  Area WindowArea() const { return display.AreaOf(window); }
  void Close() const { display.Close(window); }

  // All lines of its list, as its button for copying gives them, without the times. Waits for so
  // many, takes the keyboard, and returns what is there if they don't come.
  std::vector<std::string> Lines(std::size_t count) const;

private:
  const VirtualDisplay &display;
  const std::string window;
};

} // namespace Tessoro::Tests
