#include "tests/support/TestRun.hpp"
#include "tests/unit/TestForm.hpp"

#include <gtest/gtest.h>

namespace Tessoro {
namespace {

class TimerTest : public testing::Test {
protected:
  TimerTest() {
    form.Ticker.onTimer = [this] { ++ticks; };
  }

  TestRun run;
  TestForm form{run.app};
  int ticks = 0;
};

TEST_F(TimerTest, BeginsToTickWhenItsFormIsShown) {
  form.Load();
  run.clock.Pass(5000);
  EXPECT_EQ(ticks, 0);
  form.Show();
  run.clock.Pass(499);
  EXPECT_EQ(ticks, 0);
  run.clock.Pass(1);
  EXPECT_EQ(ticks, 1);
  run.clock.Pass(1000);
  EXPECT_EQ(ticks, 3);
}

TEST_F(TimerTest, ShowingTheFormOnceMoreDoesNotBeginAnew) {
  form.Show();
  run.clock.Pass(400);
  form.Show();
  run.clock.Pass(100);
  EXPECT_EQ(ticks, 1);
}

TEST_F(TimerTest, ANewIntervalBeginsANewWait) {
  form.Show();
  run.clock.Pass(400);
  form.Ticker.SetInterval(8000);
  run.clock.Pass(7999);
  EXPECT_EQ(ticks, 0);
  run.clock.Pass(1);
  EXPECT_EQ(ticks, 1);
}

TEST_F(TimerTest, AHandlerCanStopIt) {
  form.Ticker.onTimer = [this] {
    ++ticks;
    form.Ticker.SetEnabled(false);
  };
  form.Show();
  run.clock.Pass(5000);
  EXPECT_EQ(ticks, 1);
}

TEST_F(TimerTest, AnIntervalOfZeroNeverTicks) {
  form.Show();
  form.Ticker.SetInterval(0);
  EXPECT_FALSE(run.clock.IsWaiting(form.Ticker));
}

TEST_F(TimerTest, OneMadeDisabledTicksWhenItIsEnabled) {
  int woken = 0;
  form.Sleeper.onTimer = [&woken] { ++woken; };
  form.Show();
  run.clock.Pass(1000);
  EXPECT_EQ(woken, 0);
  form.Sleeper.SetEnabled(true);
  run.clock.Pass(500);
  EXPECT_EQ(woken, 1);
}

TEST_F(TimerTest, StopsWithItsFormAndBeginsAnewWithIt) {
  form.Show();
  form.Ticker.SetInterval(50);
  run.app.F_Midi.Load(); // so that the program goes on
  form.Unload();
  run.clock.Pass(5000);
  EXPECT_EQ(ticks, 0);
  form.Show();
  run.clock.Pass(500);
  EXPECT_EQ(ticks, 1);
}

TEST_F(TimerTest, ALoadTakesItsIntervalBack) {
  form.Show();
  form.Ticker.SetInterval(50);
  EXPECT_EQ(form.Ticker.Interval(), 50);
  run.app.F_Midi.Load(); // so that the program goes on
  form.Unload();
  form.Load();
  EXPECT_EQ(form.Ticker.Interval(), 500);
}

TEST_F(TimerTest, StartingOneThatRunsDoesNotBeginAnew) {
  form.Show();
  run.clock.Pass(400);
  form.Ticker.SetEnabled(true);
  run.clock.Pass(100);
  EXPECT_EQ(ticks, 1);
}

} // namespace
} // namespace Tessoro
