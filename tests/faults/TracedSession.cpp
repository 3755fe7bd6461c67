#include "tests/faults/TracedSession.hpp"

#include "face/headless/Script.hpp"

#include <fstream>
#include <iterator>
#include <utility>

namespace Tessoro::Tests {

Lines TracedSession::Play(std::string_view line) {
  PlayLine(editor, line);
  return TakeTrace();
}

Lines TracedSession::TakeTrace() {
  std::istringstream printed(std::exchange(trace, std::ostringstream()).str());
  Lines lines;
  for (std::string line; std::getline(printed, line);)
    lines.push_back(line);
  return lines;
}

std::string BoxLine(int flags, std::string_view title, std::string_view text) {
  return "MsgBox " + std::to_string(flags) + ' ' + QuotedText(title) + ' ' + QuotedText(text) +
         " -> OK";
}

bool IsBox(std::string_view line) { return line.starts_with("MsgBox "); }

std::string SoundFile(const std::string &name) {
  std::ifstream file(std::string(TESSORO_FILES_DIRECTORY) + "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string SettingsWithPorts(std::string_view folder) {
  return "\"Tessoro v1.3.1\"\r\n\"\",\"\"\r\n3,3\r\n0,0\r\n0,0\r\n\"" + std::string(folder) +
         "\"\r\n\"Yes\"\r\n";
}

} // namespace Tessoro::Tests
