#include "face/monitor/EndSignals.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>
#include <utility>

namespace Tessoro {
namespace {

constexpr std::array<int, 3> Signals = {SIGINT, SIGTERM, SIGHUP};

// A handler of signals has no other way to find it.
std::array<int, 2> pipeEnds = {-1, -1};

void Note(int /*signal*/) {
  const int errorBefore = errno;
  const char something = 0;
  // A full pipe says it as well.
  [[maybe_unused]] const ssize_t written = write(pipeEnds[1], &something, 1);
  errno = errorBefore;
}

} // namespace

EndSignals::EndSignals() {
  if (pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0)
    throw std::system_error(errno, std::generic_category(), "pipe2");
  struct sigaction action = {};
  action.sa_handler = Note;
  action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
  for (const int signal : Signals)
    sigaction(signal, &action, nullptr);
}

EndSignals::~EndSignals() {
  for (const int signal : Signals)
    std::signal(signal, SIG_DFL);
  for (int &end : pipeEnds)
    close(std::exchange(end, -1));
}

int EndSignals::Descriptor() const { return pipeEnds[0]; }

} // namespace Tessoro
