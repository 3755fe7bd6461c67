#include "tests/endtoend/JackServer.hpp"

#include <fcntl.h>
#include <jack/jack.h>
#include <sys/file.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <thread>

namespace Tessoro::Tests {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto PatienceForStart = 20s;
constexpr auto PatienceForEnd = 5s;

void Ignore(const char * /*message*/) {}

std::string NameOf(int number) { return "tessoro-test-" + std::to_string(number); }

// JACK has room for eight servers and keeps the place of one that was killed until a server of the
// same name comes, so names are used again. The lock says that the name is taken; it goes with the
// process that holds it.
int LockFreeName(int &number) {
  for (number = 1;; ++number) {
    const auto path = std::filesystem::temp_directory_path() / (NameOf(number) + ".lock");
    const int lock = open(path.c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0666);
    if (lock < 0)
      throw std::runtime_error("no lock file for the name of a JACK server");
    if (flock(lock, LOCK_EX | LOCK_NB) == 0)
      return lock;
    close(lock);
  }
}

bool Answers() {
  jack_client_t *client = jack_client_open("probe", JackNoStartServer, nullptr);
  if (client == nullptr) {
    return false;
  }
  jack_client_close(client);
  return true;
}

[[noreturn]] void BecomeServer(const std::string &name, const std::string &cycle) {
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  const int nowhere = open("/dev/null", O_RDWR);
  dup2(nowhere, STDIN_FILENO);
  dup2(nowhere, STDOUT_FILENO);
  dup2(nowhere, STDERR_FILENO);
  // Synchronous, and patient with clients: on a busy machine no cycle is lost.
  execlp("jackd", "jackd", "-r", "-S", "-t", "5000", "-n", name.c_str(), "-d", "dummy", "-r",
         "48000", "-p", cycle.c_str(), nullptr);
  _exit(127);
}

bool HasEndedWithin(pid_t process, Clock::duration patience) {
  const auto deadline = Clock::now() + patience;
  while (Clock::now() < deadline) {
    if (waitpid(process, nullptr, WNOHANG) == process) {
      return true;
    }
    std::this_thread::sleep_for(10ms);
  }
  return false;
}

} // namespace

JackServer::JackServer(unsigned cycleFrames) : cycle(std::to_string(cycleFrames)) {
  int number = 0;
  nameLock = LockFreeName(number);
  name = NameOf(number);
  jack_set_error_function(Ignore);
  jack_set_info_function(Ignore);
  setenv("JACK_DEFAULT_SERVER", name.c_str(), 1);
  Start();
}

JackServer::~JackServer() {
  if (process > 0) {
    kill(process, SIGTERM);
    if (!HasEndedWithin(process, PatienceForEnd)) {
      Kill();
    }
  }
  unsetenv("JACK_DEFAULT_SERVER");
  close(nameLock);
}

void JackServer::Kill() {
  kill(process, SIGKILL);
  waitpid(process, nullptr, 0);
  process = -1;
}

void JackServer::Start() {
  process = fork();
  if (process == 0) {
    BecomeServer(name, cycle);
  }
  WaitUntilItAnswers();
}

void JackServer::WaitUntilItAnswers() const {
  const auto deadline = Clock::now() + PatienceForStart;
  while (!Answers()) {
    if (Clock::now() > deadline) {
      throw std::runtime_error("jackd does not answer");
    }
    std::this_thread::sleep_for(50ms);
  }
}

} // namespace Tessoro::Tests
