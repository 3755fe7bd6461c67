#include "face/microq/WatchedMicroQ.hpp"

namespace Tessoro {

WatchedMicroQ::WatchedMicroQ() {
  microQ.AddListener(inbox);
  microQ.AddListener(*this);
}

WatchedMicroQ::~WatchedMicroQ() {
  microQ.RemoveListener(*this);
  microQ.RemoveListener(inbox);
}

// The device waits meanwhile, so the window has to.
void WatchedMicroQ::DeviceOpened() {
  QMetaObject::invokeMethod(this, &WatchedMicroQ::BringUp, Qt::QueuedConnection);
}

void WatchedMicroQ::DeviceClosed() {
  const auto tell = [this] {
    if (window)
      window->ShowStatus(tr("The port is closed"));
  };
  QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

void WatchedMicroQ::BringUp() {
  if (!window)
    window = std::make_unique<MicroQWindow>(microQ, inbox, tr("microQ (built-in)"));
  window->ShowStatus(tr("The port is open"));
  if (!window->isVisible())
    window->OpenBesideOthers();
  window->show();
}

std::shared_ptr<BuiltinMicroQ> MakeMicroQWithWindow() {
  auto watched = std::make_shared<WatchedMicroQ>();
  BuiltinMicroQ *microQ = &watched->MicroQ();
  return {std::move(watched), microQ};
}

} // namespace Tessoro
