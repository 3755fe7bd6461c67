// Starts programs that end with their first frame, and measures them from outside.
#pragma once

#include <string>
#include <vector>

namespace Tessoro {

struct WindowStart {
  // From the start of the process to its first frame.
  double seconds = 0;
  // The most memory that it held.
  double mebibytes = 0;
};

struct WindowStarts {
  WindowStart editor;
  WindowStart emptyWindow;
  WindowStart windowWithWord;
};

// The medians of so many starts of each, by turns, on a virtual display. Throws where a program
// can't be started or fails.
WindowStarts MeasureWindowStarts(int repetitions);

} // namespace Tessoro
