// A display of this process's own, for windows that nobody looks at.
#pragma once

#include <sys/types.h>

namespace Tessoro {

// DISPLAY names it while it lives. The constructor throws where Xvfb can't be started.
class VirtualDisplay {
public:
  VirtualDisplay();
  ~VirtualDisplay();
  VirtualDisplay(const VirtualDisplay &) = delete;
  VirtualDisplay &operator=(const VirtualDisplay &) = delete;

private:
  pid_t server;
};

} // namespace Tessoro
