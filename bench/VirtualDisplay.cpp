#include "bench/VirtualDisplay.hpp"

#include <array>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Tessoro {

namespace {

[[noreturn]] void BecomeServer(int numberPipe) {
  const int nowhere = open("/dev/null", O_WRONLY);
  dup2(nowhere, STDERR_FILENO);
  // The server picks a number that is free, and tells it when it is ready. It does not begin anew
  // whenever a window has gone.
  execlp("Xvfb", "Xvfb", "-noreset", "-displayfd", std::to_string(numberPipe).c_str(), "-screen",
         "0", "1280x1024x24", "-nolisten", "tcp", nullptr);
  _exit(EXIT_FAILURE);
}

std::string ReadLine(int pipeEnd) {
  std::string line;
  char next = 0;
  while (read(pipeEnd, &next, 1) == 1 && next != '\n')
    line += next;
  return line;
}

} // namespace

VirtualDisplay::VirtualDisplay() {
  std::array<int, 2> pipeEnds{};
  if (pipe(pipeEnds.data()) != 0)
    throw std::runtime_error("no pipe");
  server = fork();
  if (server == 0)
    BecomeServer(pipeEnds[1]);
  close(pipeEnds[1]);
  const std::string number = ReadLine(pipeEnds[0]);
  close(pipeEnds[0]);
  if (number.empty()) {
    waitpid(server, nullptr, 0);
    throw std::runtime_error("Xvfb does not start");
  }
  setenv("DISPLAY", (":" + number).c_str(), 1);
}

VirtualDisplay::~VirtualDisplay() {
  kill(server, SIGTERM);
  waitpid(server, nullptr, 0);
}

} // namespace Tessoro
