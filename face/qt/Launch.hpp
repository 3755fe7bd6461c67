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

// The toolkit opens what speaks to an X server while the fonts are read beside it, and each page
// that the loader fills in must then be told to the other thread's processor: a millisecond in all.
// Opened before there is a thread, it is there when the toolkit asks. False where the environment
// doesn't speak for an X server, or the toolkit has it under another name: it is opened later then.
bool OpenDisplayLibrary();

// The QApplication of the process, with what is done beside its making and that of the first
// window.
class Launch {
public:
  // What main() got; the toolkit takes out what is meant for it.
  Launch(int &argc, char *argv[]);

private:
  struct BeforeThreads {
    BeforeThreads();
  };
  BeforeThreads beforeThreads;
  FontReading fonts;
  QApplication application;
  std::optional<BusConnecting> bus;
};

} // namespace Tessoro
