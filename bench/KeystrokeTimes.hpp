// What a keystroke takes in a window.
#pragma once

namespace Tessoro {

// 99th percentiles in microseconds, from the key event to the return of its handler.
struct KeystrokeTimes {
  // In a box of the editor: up to the bytes at a null service.
  double editor = 0;
  // In a field of the library that nobody listens to.
  double bareField = 0;
};

// Throws where the typing program fails.
KeystrokeTimes MeasureKeystrokes();

} // namespace Tessoro
