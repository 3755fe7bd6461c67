// A session of the driver on a drawn machine, with the rules looked after at each act.
#pragma once

#include "tests/random/HandlerWatch.hpp"
#include "tests/random/Machine.hpp"
#include "tests/random/Rules.hpp"
#include "tests/random/Shrinker.hpp"
#include "tests/support/TestFiles.hpp"

#include <functional>
#include <sstream>

namespace Tessoro::Random {

// A rule besides the ones that always hold.
using ExtraRule = std::function<std::optional<Breach>(const Session &)>;

// The files stand in memory, under names as if in the given folder.
class WatchedSession {
public:
  WatchedSession(const Files &machine, const std::string &folder, ExtraRule extraRule = {});

  // Plays one line of the language. Fails with ScriptError where it isn't understood.
  std::optional<Breach> Play(const std::string &line);

  Session &Editor() { return session; }
  int DeepestNesting() const { return watch.Deepest(); }
  // What the last line has printed.
  const std::vector<std::string> &Trace() const { return act.trace; }

private:
  void TakeTrace();

  TestFiles files;
  std::ostringstream printed;
  Session session;
  HandlerWatch watch;
  Rules rules;
  ExtraRule extra;
  ActSeen act;
};

// The first breach of a whole script. None where a line of it isn't understood.
std::optional<Breach> Replayed(const Files &machine, const std::string &folder,
                               const Script &script, const ExtraRule &extraRule = {});

} // namespace Tessoro::Random
