// The lines in which a microQ tells of messages, without the times that no test knows.
#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

namespace Tessoro::Tests {

inline std::vector<std::string> LinesWithoutTimes(const std::string &text) {
  constexpr std::size_t timeWidth = 11;
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);)
    lines.push_back(line.substr(std::min(line.size(), timeWidth)));
  return lines;
}

} // namespace Tessoro::Tests
