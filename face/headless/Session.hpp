// One run of the editor without a screen, and what a script has said so far.
#pragma once

#include "face/headless/HeadlessClock.hpp"
#include "face/headless/HeadlessScreen.hpp"
#include "face/headless/MidiDouble.hpp"
#include "face/headless/QueuedRandomNumbers.hpp"
#include "face/headless/Trace.hpp"
#include "files/StandardFileSystem.hpp"
#include "shell/Application.hpp"

#include <ostream>
#include <string>

namespace Tessoro {

class MouseControl;

// Several can live in one process, side by side.
class Session {
  StandardFileSystem machineFiles;

public:
  // The directory is where the settings file stands, as a text of the model.
  Session(const std::string &programDirectory, std::ostream &destination);
  // On other files than the machine's.
  Session(const std::string &programDirectory, std::ostream &destination, FileSystem &files);

  // True if a user can act there now; if not, the trace says why.
  bool IsReached(Reach reach);

  Tessoro::Trace Trace;
  MidiDouble Midi;
  HeadlessScreen Screen;
  HeadlessClock Clock;
  QueuedRandomNumbers Random;
  Application App;

  bool Started = false;
  // Where the mouse button was pressed and not yet let go, or null.
  MouseControl *Pressed = nullptr;
};

} // namespace Tessoro
