// How often a window that shows news looks for them.
#pragma once

#include <chrono>
#include <cmath>

namespace Tessoro::ScreenPace {

// Platforms without a screen that they know say 0, or what they like.
inline constexpr double SlowestScreen = 20;
inline constexpr double FastestScreen = 500;
inline constexpr double UsualScreen = 60;

// Between two looks at a screen that shows so many pictures a second: more would never be seen.
inline std::chrono::milliseconds Interval(double picturesInSecond) {
  constexpr double millisecondsInSecond = 1000;
  const bool isCredible = picturesInSecond >= SlowestScreen && picturesInSecond <= FastestScreen;
  const double pace = isCredible ? picturesInSecond : UsualScreen;
  return std::chrono::milliseconds(std::lround(std::ceil(millisecondsInSecond / pace)));
}

} // namespace Tessoro::ScreenPace
