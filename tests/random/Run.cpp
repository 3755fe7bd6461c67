#include "tests/random/Run.hpp"

#include "tests/random/RandomUser.hpp"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace Tessoro::Random {

namespace {

constexpr std::size_t LongestSession = 1000;

// One session, whose figures are added to the result.
void RunSession(RunResult &result, std::size_t acts, std::uint32_t seed, const std::string &folder,
                const ExtraRule &extraRule) {
  Generator random(seed);
  const Files machine = DrawFiles(random);
  WatchedSession session(machine, folder, extraRule);
  RandomUser user(session.Editor(), random, machine);
  Script script;
  while (script.size() < acts && !session.Editor().App.HasEnded()) {
    script.push_back(user.NextLine());
    const std::optional<Breach> breach = session.Play(script.back());
    const std::vector<std::string> &trace = session.Trace();
    if (!trace.empty() && trace.front().starts_with("cannot "))
      ++result.refused;
    result.messages +=
        static_cast<std::size_t>(std::ranges::count_if(trace, [](const std::string &line) {
          return line.starts_with("midiOutLongMsg") || line.starts_with("midiOutShortMsg");
        }));
    if (breach) {
      result.broken = BrokenSession{seed, machine, script, *breach};
      break;
    }
  }
  result.acts += script.size();
  ++result.sessions;
  result.deepestNesting = std::max(result.deepestNesting, session.DeepestNesting());
}

} // namespace

RunResult RunRandomUsers(std::size_t acts, std::uint32_t seed, const std::string &folder,
                         const ExtraRule &extraRule) {
  RunResult result;
  while (result.acts < acts && !result.broken)
    RunSession(result, std::min(LongestSession, acts - result.acts), seed++, folder, extraRule);
  return result;
}

BrokenSession Shrunk(BrokenSession broken, const std::string &folder, const ExtraRule &extraRule) {
  broken.script = Shrunk(broken.script, [&](const Script &part) {
    const std::optional<Breach> breach = Replayed(broken.machine, folder, part, extraRule);
    return breach && breach->rule == broken.breach.rule;
  });
  broken.breach = *Replayed(broken.machine, folder, broken.script, extraRule);
  return broken;
}

void Keep(const BrokenSession &broken, const std::string &folder) {
  std::filesystem::create_directories(folder);
  for (const auto &[name, content] : broken.machine)
    std::ofstream(std::filesystem::path(folder) / name, std::ios::binary) << content;
  std::ofstream script(folder + "/session.script");
  script << "# Seed " << broken.seed << ", " << broken.breach.rule << ": " << broken.breach.how
         << '\n';
  for (const std::string &line : broken.script)
    script << line << '\n';
}

} // namespace Tessoro::Random
