// The monitor as a program of its own.
#pragma once

#include "tests/endtoend/ChildProcess.hpp"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Tessoro::Tests {

// Writes what it prints into files of a directory of its own.
class RunningMonitor {
public:
  // The arguments as a shell takes them.
  explicit RunningMonitor(const std::string &arguments,
                          const std::vector<std::string> &environment = {});
  ~RunningMonitor();
  RunningMonitor(const RunningMonitor &) = delete;
  RunningMonitor &operator=(const RunningMonitor &) = delete;

  // SIGINT is what Ctrl+C sends.
  void Signal(int signal);
  std::optional<int> ExitStatus();
  std::string Output() const;
  std::string Errors() const;

  // Without the times, and without the first line, which says where it listens. As text only.
  std::vector<std::string> Messages() const;

private:
  std::filesystem::path directory;
  std::unique_ptr<ChildProcess> program;
};

} // namespace Tessoro::Tests
