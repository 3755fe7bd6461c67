#include "face/qt/SideThread.hpp"

#include <sched.h>

#include <memory>

namespace Tessoro {

namespace {

struct Task {
  void (*work)();
  cpu_set_t allowed;
};

// Only its first processor is prescribed.
void *Do(void *given) {
  const std::unique_ptr<Task> task(static_cast<Task *>(given));
  pthread_setaffinity_np(pthread_self(), sizeof task->allowed, &task->allowed);
  task->work();
  return nullptr;
}

// The processors that this process may use, without the one that it runs on; none where that is
// all.
cpu_set_t Others(cpu_set_t allowed) {
  if (const int own = sched_getcpu(); own >= 0)
    CPU_CLR(own, &allowed);
  return allowed;
}

} // namespace

SideThread::SideThread(void (*work)()) {
  auto task = std::make_unique<Task>();
  task->work = work;
  CPU_ZERO(&task->allowed);
  sched_getaffinity(0, sizeof task->allowed, &task->allowed);
  const cpu_set_t others = Others(task->allowed);

  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setaffinity_np(&attributes, sizeof others, &others);
  Task *const given = task.release(); // who does it deletes it
  const auto begin = [&](const pthread_attr_t *how) {
    return pthread_create(&thread, how, Do, given) == 0;
  };
  isRunning = begin(&attributes) || begin(nullptr); // where there is one processor, or no choice
  pthread_attr_destroy(&attributes);
  if (!isRunning)
    Do(given);
}

void SideThread::Join() {
  if (isRunning)
    pthread_join(thread, nullptr);
  isRunning = false;
}

} // namespace Tessoro
