// A session of the driver whose trace is taken act by act.
#pragma once

#include "face/headless/Session.hpp"
#include "tests/support/TestFiles.hpp"

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace Tessoro::Tests {

using Lines = std::vector<std::string>;

class TracedSession {
public:
  // On the machine's files, or on those that are given.
  explicit TracedSession(const std::string &programDirectory) : editor(programDirectory, trace) {}
  TracedSession(const std::string &programDirectory, FileSystem &files)
      : editor(programDirectory, trace, files) {}

  Session &Editor() { return editor; }

  // What one line of the language prints.
  Lines Play(std::string_view line);
  // What has been printed since the trace was last taken.
  Lines TakeTrace();

private:
  std::ostringstream trace;
  Session editor;
};

// The line of a box with an OK button, as the trace prints it.
std::string BoxLine(int flags, std::string_view title, std::string_view text);

bool IsBox(std::string_view line);

// A file of those that the tests of sound files read.
std::string SoundFile(const std::string &name);

// Ports 0 and 0 on channel 0, and the folder given.
std::string SettingsWithPorts(std::string_view folder);

} // namespace Tessoro::Tests
