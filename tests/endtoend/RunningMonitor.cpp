#include "tests/endtoend/RunningMonitor.hpp"

#include "tests/endtoend/Waiting.hpp"

#include <algorithm>
#include <csignal>
#include <fstream>
#include <iterator>
#include <sstream>

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

void RunningMonitor::Interrupt() { kill(std::stoi(Content(directory / "pid")), SIGINT); }

std::optional<int> RunningMonitor::ExitStatus() { return program->ExitStatusWithin(10s); }

std::string RunningMonitor::Output() const { return Content(directory / "out"); }

std::string RunningMonitor::Errors() const { return Content(directory / "err"); }

std::vector<std::string> RunningMonitor::Messages() const {
  constexpr std::size_t timeWidth = 11;
  std::istringstream stream(Output());
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);)
    lines.push_back(line.substr(std::min(line.size(), timeWidth)));
  if (!lines.empty())
    lines.erase(lines.begin());
  return lines;
}

} // namespace Tessoro::Tests
