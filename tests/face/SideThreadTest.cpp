#include "face/qt/SideThread.hpp"

#include <sched.h>

#include <gtest/gtest.h>

#include <atomic>

namespace Tessoro {
namespace {

std::atomic<int> done{0};
std::atomic<int> processors{0};
std::atomic<int> processor{0};
std::atomic<pthread_t> worker{};

cpu_set_t Allowed() {
  cpu_set_t allowed;
  CPU_ZERO(&allowed);
  sched_getaffinity(0, sizeof allowed, &allowed);
  return allowed;
}

void Work() {
  processor = sched_getcpu();
  worker = pthread_self();
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

// Whoever watches may have been moved meanwhile, and what runs beside it may take the other one.
TEST_F(SideThreadTest, BeginsOnAnotherProcessor) {
  const cpu_set_t allowed = Allowed();
  if (CPU_COUNT(&allowed) < 2)
    GTEST_SKIP() << "one processor";
  int tries = 0;
  int elsewhere = 0;
  while (tries < 20) {
    const int own = sched_getcpu();
    { const SideThread thread(Work); }
    ++tries;
    elsewhere += processor != own ? 1 : 0;
  }
  EXPECT_GT(elsewhere, tries / 2);
}

TEST_F(SideThreadTest, IsAThreadOfItsOwnWhereThereIsOneProcessor) {
  const cpu_set_t allowed = Allowed();
  cpu_set_t own;
  CPU_ZERO(&own);
  CPU_SET(sched_getcpu(), &own);
  ASSERT_EQ(sched_setaffinity(0, sizeof own, &own), 0);
  { const SideThread thread(Work); }
  EXPECT_EQ(sched_setaffinity(0, sizeof allowed, &allowed), 0);
  EXPECT_EQ(done, 1);
  EXPECT_EQ(processors, 1);
  EXPECT_FALSE(pthread_equal(worker, pthread_self()));
}

} // namespace
} // namespace Tessoro
