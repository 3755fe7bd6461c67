// The connection from an IN device to an OUT device.
#pragma once

#include "service/MidiDevices.hpp"

#include <mutex>

namespace Tessoro {

// Messages pass while the IN device is started and an OUT device is connected, on the thread of the
// IN device. Nothing passes any more once `Stop` or `Disconnect` has returned.
class ThruRoute {
public:
  void Pass(MidiBytes message) {
    const std::lock_guard lock(mutex);
    if (isStarted && target != nullptr) {
      target->SendThru(message);
    }
  }

  void Start() {
    const std::lock_guard lock(mutex);
    isStarted = true;
  }

  void Stop() {
    const std::lock_guard lock(mutex);
    isStarted = false;
  }

  void Connect(OutputEnd &end) {
    const std::lock_guard lock(mutex);
    target = &end;
  }

  void Disconnect() {
    const std::lock_guard lock(mutex);
    target = nullptr;
  }

  bool IsConnected() const { return target != nullptr; }
  bool IsConnectedTo(const OutputEnd &end) const { return target == &end; }

private:
  std::mutex mutex;
  bool isStarted = false;
  // Written by the service's thread only, and so read there without the lock.
  OutputEnd *target = nullptr;
};

} // namespace Tessoro
