// The gate through which acts of the user and ticks of the clock come to the editor.
#pragma once

#include <QObject>

namespace Tessoro {

// Closed while a message box holds up a handler: the box runs an event loop, and what that loop
// brings must not start another handler.
class Gate : public QObject {
  Q_OBJECT

public:
  bool IsOpen() const { return isOpen; }
  template <typename Act> void Pass(Act &&act) const {
    if (isOpen)
      act();
  }

  void Close() {
    isOpen = false;
    emit Closed();
  }
  void Open() {
    isOpen = true;
    emit Opened();
  }

signals:
  void Closed();
  // The handler that was held up goes on behind this; connect queued to act when it has ended.
  void Opened();

private:
  bool isOpen = true;
};

} // namespace Tessoro
