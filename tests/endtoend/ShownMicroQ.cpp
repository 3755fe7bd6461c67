#include "tests/endtoend/ShownMicroQ.hpp"

#include "tests/endtoend/MessageLines.hpp"
#include "tests/endtoend/Waiting.hpp"

namespace Tessoro::Tests {

ShownMicroQ::ShownMicroQ(const VirtualDisplay &shownOn, const std::string &titlePattern)
    : display(shownOn), window(display.WaitForWindow(titlePattern)) {}

std::vector<std::string> ShownMicroQ::Lines(std::size_t count) const {
  display.Focus(window);
  std::vector<std::string> lines;
  Eventually([&] {
    display.PressKeys("alt+c");
    lines = LinesWithoutTimes(display.Clipboard());
    return lines.size() >= count;
  });
  return lines;
}

} // namespace Tessoro::Tests
