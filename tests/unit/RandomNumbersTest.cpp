#include "sound/RandomNumbers.hpp"
#include "surface/Failure.hpp"
#include "surface/RandomRange.hpp"
#include "tests/support/TestRun.hpp"

#include <gtest/gtest.h>

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace Tessoro {
namespace {

TEST(RandomNumbersTest, StayFromZeroToBelowOneAndDiffer) {
  StandardRandomNumbers random;
  std::set<float> drawn;
  constexpr int draws = 10000;
  for (int i = 0; i < draws; ++i) {
    const float number = random.Next();
    ASSERT_GE(number, 0.0F);
    ASSERT_LT(number, 1.0F);
    drawn.insert(number);
  }
  EXPECT_GT(drawn.size(), 9900U);
}

TEST(RandomNumbersTest, AreTheSameInEachRun) {
  StandardRandomNumbers first;
  StandardRandomNumbers second;
  for (int i = 0; i < 100; ++i)
    EXPECT_EQ(first.Next(), second.Next());
}

TEST(RandomNumbersTest, ShuffleOfAFreshStartIsAlwaysTheSame) {
  std::vector<std::vector<std::string>> runs;
  for (int i = 0; i < 2; ++i) {
    TestRun run;
    run.StartWithOpenPorts();
    for (int shuffle = 0; shuffle < 3; ++shuffle)
      run.app.F_Tessoro.C_OSC_shuffle_Click();
    runs.push_back(run.midi.messages);
  }
  EXPECT_FALSE(runs[0].empty());
  EXPECT_EQ(runs[0], runs[1]);
}

TEST(RandomNumbersTest, DrawReachesEveryNumberAndTheEndsHalfAsOften) {
  StandardRandomNumbers random;
  std::map<int, int> counts;
  constexpr int draws = 100000;
  for (int i = 0; i < draws; ++i) {
    std::int16_t high = 5;
    ++counts[RandomInRange(random, -5, high)];
  }
  EXPECT_EQ(counts.begin()->first, -5);
  EXPECT_EQ(counts.rbegin()->first, 5);
  EXPECT_EQ(counts.size(), 11U);
  EXPECT_NEAR(counts[-5], draws / 20.0, draws / 100.0);
  EXPECT_NEAR(counts[5], draws / 20.0, draws / 100.0);
  EXPECT_NEAR(counts[0], draws / 10.0, draws / 100.0);
}

TEST(RandomNumbersTest, RangeBeyondSixteenBitsFails) {
  StandardRandomNumbers random;
  std::int16_t high = 32767;
  try {
    RandomInRange(random, -1, high);
    FAIL() << "no failure";
  } catch (const Failure &failure) {
    EXPECT_EQ(failure.Number(), 6);
  }
}

} // namespace
} // namespace Tessoro
