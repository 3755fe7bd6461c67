// How a program with windows begins.
#pragma once

#include "face/qt/BusConnecting.hpp"
#include "face/qt/FontReading.hpp"

#include <QApplication>

#include <optional>

namespace Tessoro {

// GLib's event loop, the toolkit's usual one, makes a system call for each event that is posted,
// some 600 until the first frame; the toolkit's own makes one for all that wait. Whoever sets
// QT_NO_GLIB to nothing keeps GLib's. Writes the environment: to be called before there is any
// thread.
void ChooseEventLoop();

// The QApplication of the process, with what is done beside its making and that of the first
// window.
class Launch {
public:
  // What main() got; the toolkit takes out what is meant for it.
  Launch(int &argc, char *argv[]);

private:
  struct EventLoop {
    EventLoop() { ChooseEventLoop(); }
  };
  EventLoop eventLoop;
  FontReading fonts;
  QApplication application;
  std::optional<BusConnecting> bus;
};

} // namespace Tessoro
