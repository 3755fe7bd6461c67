// Work beside the making of the first window.
#pragma once

#include <pthread.h>

namespace Tessoro {

// A thread that begins at once on another processor, where there is one. A usual young thread may
// be left on that of its maker, and wait there until the maker has a pause: at a start that is
// after all for which it was wanted.
class SideThread {
public:
  // Where the system grants no thread the work is done here.
  explicit SideThread(void (*work)());
  ~SideThread() { Join(); }
  SideThread(const SideThread &) = delete;
  SideThread &operator=(const SideThread &) = delete;

  // Waits until the work is done.
  void Join();

private:
  pthread_t thread{};
  bool isRunning;
};

} // namespace Tessoro
