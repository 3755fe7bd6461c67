#include "face/qt/SideThread.hpp"

#include <sched.h>

#include <gtest/gtest.h>

#include <atomic>

namespace Tessoro {
namespace {

std::atomic<int> done{0};
std::atomic<int> processors{0};

cpu_set_t Allowed() {
  cpu_set_t allowed;
  CPU_ZERO(&allowed);
  sched_getaffinity(0, sizeof allowed, &allowed);
  return allowed;
}

void Work() {
  const cpu_set_t allowed = Allowed();
  processors = CPU_COUNT(&allowed);
  ++done;
}

class SideThreadTest : public testing::Test {
protected:
  SideThreadTest() { done = 0; }
};

TEST_F(SideThreadTest, HasDoneItsWorkWhenItIsJoined) {
  SideThread thread(Work);
  thread.Join();
  EXPECT_EQ(done, 1);
  thread.Join();
  EXPECT_EQ(done, 1);
}

TEST_F(SideThreadTest, IsWaitedForWhereNobodyJoinsIt) {
  { const SideThread thread(Work); }
  EXPECT_EQ(done, 1);
}

TEST_F(SideThreadTest, MayUseAllProcessorsOnceItRuns) {
  const cpu_set_t allowed = Allowed();
  { const SideThread thread(Work); }
  EXPECT_EQ(processors, CPU_COUNT(&allowed));
}

TEST_F(SideThreadTest, WorksWhereThereIsOneProcessor) {
  const cpu_set_t allowed = Allowed();
  cpu_set_t own;
  CPU_ZERO(&own);
  CPU_SET(sched_getcpu(), &own);
  ASSERT_EQ(sched_setaffinity(0, sizeof own, &own), 0);
  { const SideThread thread(Work); }
  EXPECT_EQ(sched_setaffinity(0, sizeof allowed, &allowed), 0);
  EXPECT_EQ(done, 1);
  EXPECT_EQ(processors, 1);
}

} // namespace
} // namespace Tessoro
