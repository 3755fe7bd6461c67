// A program that a test runs beside itself.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace Tessoro::Tests {

// Is ended with the test, whatever becomes of the test.
class ChildProcess {
public:
  // The first of the command is found by PATH. What it prints goes nowhere.
  explicit ChildProcess(const std::vector<std::string> &command,
                        const std::vector<std::string> &environment = {});
  ~ChildProcess();
  ChildProcess(const ChildProcess &) = delete;
  ChildProcess &operator=(const ChildProcess &) = delete;

  // Nothing if it doesn't end in time, -1 if it died by a signal.
  std::optional<int> ExitStatusWithin(std::chrono::milliseconds patience);

  pid_t Id() const { return process; }

private:
  pid_t process = -1;
  std::optional<int> lastStatus;
};

// Runs a command line of the shell to its end and returns what it prints.
std::string OutputOf(const std::string &commandLine);

} // namespace Tessoro::Tests
