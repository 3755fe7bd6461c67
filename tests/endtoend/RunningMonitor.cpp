#include "tests/endtoend/RunningMonitor.hpp"

#include "tests/endtoend/MessageLines.hpp"
#include "tests/endtoend/Waiting.hpp"

#include <csignal>
#include <fstream>
#include <iterator>

namespace Tessoro::Tests {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

std::string Content(const fs::path &file) {
  std::ifstream stream(file);
  return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

RunningMonitor::RunningMonitor(const std::string &arguments,
                               const std::vector<std::string> &environment)
    : directory(NewTestDirectory()) {
  const std::string command = "cd '" + directory.string() +
                              "' && echo $$ >pid && exec '" TESSORO_MONITOR "' " + arguments +
                              " >out 2>err";
  program =
      std::make_unique<ChildProcess>(std::vector<std::string>{"sh", "-c", command}, environment);
}

RunningMonitor::~RunningMonitor() {
  program.reset();
  std::error_code ignored;
  fs::remove_all(directory, ignored);
}

void RunningMonitor::Signal(int signal) { kill(std::stoi(Content(directory / "pid")), signal); }

std::optional<int> RunningMonitor::ExitStatus() { return program->ExitStatusWithin(10s); }

std::string RunningMonitor::Output() const { return Content(directory / "out"); }

std::string RunningMonitor::Errors() const { return Content(directory / "err"); }

std::vector<std::string> RunningMonitor::Messages() const {
  std::vector<std::string> lines = LinesWithoutTimes(Output());
  if (!lines.empty())
    lines.erase(lines.begin());
  return lines;
}

} // namespace Tessoro::Tests
