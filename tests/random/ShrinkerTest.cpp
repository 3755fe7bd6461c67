// That what random users find becomes a short script, shown with rules that do get broken.
#include "face/headless/CommandLine.hpp"
#include "tests/random/Run.hpp"
#include "tests/support/FreshDirectory.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace Tessoro::Random {
namespace {

Script Lines(std::size_t count) {
  Script script;
  for (std::size_t i = 0; i < count; ++i)
    script.push_back(std::to_string(i));
  return script;
}

bool Has(const Script &script, const std::string &line) {
  return std::ranges::find(script, line) != script.end();
}

TEST(Shrinker, FindsTheOneLineThatFails) {
  for (const std::size_t place : {0U, 1U, 49U, 98U, 99U})
    EXPECT_EQ(
        Shrunk(Lines(100), [&](const Script &part) { return Has(part, std::to_string(place)); }),
        Script{std::to_string(place)});
}

TEST(Shrinker, KeepsLinesThatFailOnlyTogetherAndInOrder) {
  const auto fails = [](const Script &part) {
    return Has(part, "3") && Has(part, "50") && Has(part, "97");
  };
  EXPECT_EQ(Shrunk(Lines(100), fails), (Script{"3", "50", "97"}));
}

TEST(Shrinker, LeavesOutWhatOnlyALaterLineNeeded) {
  // Line 80 is understood behind line 20 alone, and one of them doesn't go without the other.
  const auto fails = [](const Script &part) {
    return Has(part, "5") && (Has(part, "20") || !Has(part, "80"));
  };
  EXPECT_EQ(Shrunk(Lines(100), fails), Script{"5"});
}

TEST(Shrinker, AsksNotTooOften) {
  int asked = 0;
  Shrunk(Lines(1000), [&asked](const Script &part) {
    ++asked;
    return Has(part, "123") && Has(part, "877");
  });
  EXPECT_LT(asked, 200);
}

// A rule that the editor breaks: both cutoffs high, with a window open.
std::optional<Breach> PlantedRule(const Session &session) {
  const F_Tessoro &form = session.App.F_Tessoro;
  const auto isHigh = [](const TextBox &box) { return box.Text() == "127"; };
  if (isHigh(form.TextF1_cutoff) && isHigh(form.TextF2_drive) &&
      session.App.F_Preferences.IsShown())
    return Breach{"planted", "as it was meant"};
  return std::nullopt;
}

TEST(RandomUsers, FindAPlantedFaultAndTellItInAFewLines) {
  const RunResult result = RunRandomUsers(400000, 1, "/random", PlantedRule);
  ASSERT_TRUE(result.broken);
  EXPECT_EQ(result.broken->breach.rule, "planted");
  const BrokenSession broken = Shrunk(*result.broken, "/random", PlantedRule);
  EXPECT_LE(broken.script.size(), 10U) << testing::PrintToString(broken.script);
  EXPECT_TRUE(Replayed(broken.machine, "/random", broken.script, PlantedRule));
  for (std::size_t i = 0; i < broken.script.size(); ++i) {
    Script part = broken.script;
    part.erase(part.begin() + static_cast<std::ptrdiff_t>(i));
    EXPECT_FALSE(Replayed(broken.machine, "/random", part, PlantedRule)) << broken.script[i];
  }
}

TEST(RandomUsers, LeaveAScriptThatTheDriverPlaysAsItWasPlayed) {
  const FreshDirectory directory;
  const std::string folder = directory.Path().string();
  const RunResult result = RunRandomUsers(400000, 1, folder, PlantedRule);
  ASSERT_TRUE(result.broken);
  Keep(*result.broken, folder);

  std::string played;
  WatchedSession session(result.broken->machine, folder, {});
  for (const std::string &line : result.broken->script) {
    session.Play(line);
    for (const std::string &printed : session.Trace())
      played += printed + "\n";
  }
  std::istringstream none;
  std::ostringstream trace;
  std::ostringstream errors;
  const char *const arguments[] = {"--directory", folder.c_str(), "session.script"};
  EXPECT_EQ(RunCommandLine(arguments, none, trace, errors), 0) << errors.str();
  EXPECT_TRUE(trace.str() == played) << trace.str();
}

TEST(RandomUsers, PlayTheSameFromTheSameSeed) {
  const RunResult one = RunRandomUsers(2000, 7, "/random");
  const RunResult other = RunRandomUsers(2000, 7, "/random");
  EXPECT_EQ(one.messages, other.messages);
  EXPECT_EQ(one.sessions, other.sessions);
  EXPECT_NE(one.messages, RunRandomUsers(2000, 8, "/random").messages);
}

} // namespace
} // namespace Tessoro::Random
