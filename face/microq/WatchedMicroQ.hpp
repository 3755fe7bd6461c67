// A built-in microQ together with the window that shows it.
#pragma once

#include "face/microq/MicroQWindow.hpp"
#include "service/builtin/BuiltinMicroQ.hpp"

#include <QObject>

#include <memory>

namespace Tessoro {

// The window comes up each time the device is opened, and is made only then. It takes no part in
// when the program ends. Lives on the thread of the windows; the microQ may be used from any.
class WatchedMicroQ : public QObject, private MicroQListener {
  Q_OBJECT

public:
  WatchedMicroQ();
  ~WatchedMicroQ() override;
  WatchedMicroQ(const WatchedMicroQ &) = delete;
  WatchedMicroQ &operator=(const WatchedMicroQ &) = delete;

  BuiltinMicroQ &MicroQ() { return microQ; }
  // Null until the device was opened for the first time.
  MicroQWindow *Window() const { return window.get(); }

private:
  void DeviceOpened() override;
  void DeviceClosed() override;
  void MessageArrived(const ReceivedMessage & /*message*/) override {} // the inbox has it
  void BringUp();

  BuiltinMicroQ microQ;
  MessageInbox inbox{MessageModel::MostLines};
  std::unique_ptr<MicroQWindow> window;
};

// The microQ of a fresh WatchedMicroQ, which lives as long as anybody has this.
std::shared_ptr<BuiltinMicroQ> MakeMicroQWithWindow();

} // namespace Tessoro
