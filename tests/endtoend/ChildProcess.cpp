#include "tests/endtoend/ChildProcess.hpp"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <thread>

namespace Tessoro::Tests {
namespace {

using namespace std::chrono_literals;

[[noreturn]] void Become(const std::vector<std::string> &command,
                         const std::vector<std::string> &environment) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  const int nowhere = open("/dev/null", O_RDWR);
  dup2(nowhere, STDIN_FILENO);
  dup2(nowhere, STDOUT_FILENO);
  dup2(nowhere, STDERR_FILENO);
  for (const std::string &entry : environment)
    setenv(entry.substr(0, entry.find('=')).c_str(), entry.substr(entry.find('=') + 1).c_str(), 1);
  std::vector<char *> arguments;
  arguments.reserve(command.size() + 1);
  for (const std::string &argument : command)
    arguments.push_back(const_cast<char *>(argument.c_str()));
  arguments.push_back(nullptr);
  execvp(arguments.front(), arguments.data());
  _exit(127);
}

} // namespace

ChildProcess::ChildProcess(const std::vector<std::string> &command,
                           const std::vector<std::string> &environment)
    : process(fork()) {
  if (process == 0)
    Become(command, environment);
}

ChildProcess::~ChildProcess() {
  if (process <= 0)
    return;
  kill(process, SIGTERM);
  if (!ExitStatusWithin(3s)) {
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
  }
}

std::optional<int> ChildProcess::ExitStatusWithin(std::chrono::milliseconds patience) {
  if (process <= 0)
    return lastStatus;
  const auto deadline = std::chrono::steady_clock::now() + patience;
  do {
    int status = 0;
    if (waitpid(process, &status, WNOHANG) == process) {
      process = -1;
      return lastStatus = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    std::this_thread::sleep_for(10ms);
  } while (std::chrono::steady_clock::now() < deadline);
  return std::nullopt;
}

std::string OutputOf(const std::string &commandLine) {
  const std::unique_ptr<FILE, int (*)(FILE *)> pipe(popen(commandLine.c_str(), "r"), pclose);
  if (!pipe)
    throw std::runtime_error("no shell: " + commandLine);
  std::string output;
  std::array<char, 256> piece{};
  while (fgets(piece.data(), piece.size(), pipe.get()) != nullptr)
    output += piece.data();
  return output;
}

} // namespace Tessoro::Tests
