// Many sessions of random users, one behind the other.
#pragma once

#include "tests/random/WatchedSession.hpp"

#include <cstdint>

namespace Tessoro::Random {

// The session in which a rule was broken.
struct BrokenSession {
  std::uint32_t seed;
  Files machine;
  Script script;
  Breach breach;
};

struct RunResult {
  std::size_t acts = 0;
  std::size_t sessions = 0;
  std::size_t refused = 0;
  std::size_t messages = 0;
  int deepestNesting = 0;
  std::optional<BrokenSession> broken;
};

// At least so many acts, unless a rule is broken: each session has a seed of its own, counted up
// from the given one. The folder is the one that they believe to work in.
RunResult RunRandomUsers(std::size_t acts, std::uint32_t seed, const std::string &folder,
                         const ExtraRule &extraRule = {});

// Makes the script as short as it gets with the same rule broken.
BrokenSession Shrunk(BrokenSession broken, const std::string &folder,
                     const ExtraRule &extraRule = {});

// Puts the machine and the script into the folder, where `tessoro-headless` plays it as it was
// played.
void Keep(const BrokenSession &broken, const std::string &folder);

} // namespace Tessoro::Random
