#include "tests/support/TestRun.hpp"

#include <array>
#include <cstdio>

namespace Tessoro {

std::string ParameterMessage(int high, int low, int value) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "F0 3E 10 00 20 00 %02X %02X %02X F7",
                static_cast<unsigned>(high), static_cast<unsigned>(low),
                static_cast<unsigned>(value));
  return text.data();
}

} // namespace Tessoro
