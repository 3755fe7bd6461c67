// A JACK server without a sound card, for one test.
#pragma once

#include <sys/types.h>

#include <string>

namespace Tessoro::Tests {

// Runs under a name of its own, which becomes this process's default server, so that neither a
// server of the user nor another test is met. The constructor returns when the server answers, and
// throws if it never does; the destructor ends it.
class JackServer {
public:
  // The length of a cycle, in frames at 48 kHz.
  explicit JackServer(unsigned cycleFrames = 256);
  ~JackServer();
  JackServer(const JackServer &) = delete;
  JackServer &operator=(const JackServer &) = delete;

  // Ends the server without a word to its clients, as a crash does.
  void Kill();

  // Starts it again, under the same name.
  void Start();

  // The name for JACK_DEFAULT_SERVER, for child processes.
  const std::string &Name() const { return name; }

private:
  void WaitUntilItAnswers() const;

  int nameLock;
  std::string name;
  std::string cycle;
  pid_t process = -1;
};

} // namespace Tessoro::Tests
