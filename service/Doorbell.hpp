// How a thread that rests is woken.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>

namespace Tessoro {

// Who the resting thread gets up for.
enum class RestKind : std::uint8_t {
  ForAnyone,    // for every ring
  ForUrgentOnly // for `Ring` alone
};

// One thread rests, any may ring. `RingIfAwaited` is for the one who rings all the time: while
// nobody waits for it, it costs no more than a look.
class Doorbell {
public:
  using Clock = std::chrono::steady_clock;

  Doorbell();

  // Until the time, or a ring. A ring while nobody rests ends the next rest at once. What
  // `RingIfAwaited` is called behind has to be looked for once more in `hasCause`, which ends the
  // rest before it begins.
  template <typename HasCause>
  void RestUntil(Clock::time_point time, RestKind kind, const HasCause &hasCause) {
    std::unique_lock lock(mutex);
    if (kind == RestKind::ForAnyone) {
      AnnounceRest();
    }
    if (kind == RestKind::ForUrgentOnly || !hasCause()) {
      condition.wait_until(lock, time, [this] { return isRung; });
    }
    isAwaited.store(0, std::memory_order_relaxed);
    isRung = false;
  }

  void Ring();

  void RingIfAwaited() {
    if (LookWhetherAwaited() && isAwaited.exchange(0) != 0) {
      Ring();
    }
  }

private:
  void AnnounceRest();

  // What the caller did before is seen by a thread that announced its rest and looks for a cause,
  // or else the announcement is seen here. Where the system lets the resting thread see to that,
  // the caller is spared the cost of a full barrier.
  bool LookWhetherAwaited() {
    std::atomic_signal_fence(std::memory_order_seq_cst);
    return (canRestingThreadFence ? isAwaited.load(std::memory_order_relaxed)
                                  : isAwaited.fetch_or(0, std::memory_order_seq_cst)) != 0;
  }

  const bool canRestingThreadFence;
  std::atomic<std::uint32_t> isAwaited{0}; // 0 or 1
  std::mutex mutex;
  std::condition_variable condition;
  bool isRung = false;
};

} // namespace Tessoro
