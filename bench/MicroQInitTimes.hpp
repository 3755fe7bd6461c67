// What it takes the editor that somebody watches.
#pragma once

namespace Tessoro {

// Medians.
struct MicroQInitTimes {
  // A whole init, call to return, in microseconds.
  double atNullService = 0;
  double withoutWindow = 0;
  double withWindow = 0;
  // From the window's look for news to its picture, in milliseconds.
  double look = 0;
};

// Throws where the program that does it fails.
MicroQInitTimes MeasureMicroQInits();

} // namespace Tessoro
