// Ctrl+C and its like, as something that an event loop can wait for.
#pragma once

namespace Tessoro {

// One in a process. The second signal ends the process in the system's own way.
class EndSignals {
public:
  EndSignals();
  ~EndSignals();
  EndSignals(const EndSignals &) = delete;
  EndSignals &operator=(const EndSignals &) = delete;

  // Can be read from when a signal has come.
  int Descriptor() const;
};

} // namespace Tessoro
