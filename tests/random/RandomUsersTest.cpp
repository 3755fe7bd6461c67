// Random users, and what must hold whatever they do. TESSORO_RANDOM_ACTS says how many acts they
// play, TESSORO_RANDOM_SEED where they begin.
#include "tests/random/Run.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>

namespace Tessoro::Random {
namespace {

constexpr std::size_t FewActs = 30000;

std::size_t NumberOf(const char *variable, std::size_t otherwise) {
  const char *const text = std::getenv(variable);
  return text == nullptr || *text == '\0' ? otherwise : std::stoul(text);
}

TEST(RandomUsers, BreakNoRule) {
  const std::size_t acts = NumberOf("TESSORO_RANDOM_ACTS", FewActs);
  const auto seed = static_cast<std::uint32_t>(NumberOf("TESSORO_RANDOM_SEED", 1));
  const std::string folder = (std::filesystem::current_path() / "random-session").string();
  const auto begin = std::chrono::steady_clock::now();
  const RunResult result = RunRandomUsers(acts, seed, folder);
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
  std::cout << "seed " << seed << ": " << result.acts << " acts in " << result.sessions
            << " sessions, " << result.refused << " refused, " << result.messages
            << " messages, handlers nested " << result.deepestNesting << " deep, " << took.count()
            << " s\n";
  if (!result.broken)
    return;
  const BrokenSession broken = Shrunk(*result.broken, folder);
  Keep(broken, folder);
  std::string script;
  for (const std::string &line : broken.script)
    script += line + "\n";
  ADD_FAILURE() << broken.breach.rule << ": " << broken.breach.how << "\nseed " << broken.seed
                << ", " << result.broken->script.size() << " acts, of which these are enough (cd "
                << folder << " && tessoro-headless session.script):\n"
                << script;
}

} // namespace
} // namespace Tessoro::Random
