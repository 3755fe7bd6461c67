#include "service/Doorbell.hpp"

#include <linux/membarrier.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Tessoro {
namespace {

bool Membarrier(int command) { return syscall(SYS_membarrier, command, 0, 0) == 0; }

} // namespace

Doorbell::Doorbell()
    : canRestingThreadFence(Membarrier(MEMBARRIER_CMD_REGISTER_PRIVATE_EXPEDITED)) {}

void Doorbell::Ring() {
  {
    const std::lock_guard lock(mutex);
    isRung = true;
  }
  condition.notify_one();
}

void Doorbell::AnnounceRest() {
  isAwaited.store(1, std::memory_order_seq_cst);
  if (canRestingThreadFence) {
    Membarrier(MEMBARRIER_CMD_PRIVATE_EXPEDITED);
  }
}

} // namespace Tessoro
