#include "face/headless/Session.hpp"

namespace Tessoro {

Session::Session(const std::string &programDirectory, std::ostream &destination)
    : Session(programDirectory, destination, machineFiles) {}

Session::Session(const std::string &programDirectory, std::ostream &destination, FileSystem &files)
    : Trace(destination), Midi(Trace), Screen(Trace), App({.midi = Midi,
                                                           .screen = Screen,
                                                           .clock = Clock,
                                                           .files = files,
                                                           .random = Random,
                                                           .programPath = programDirectory}) {}

bool Session::IsReached(Reach reach) {
  switch (reach) {
  case Reach::Done:
    return true;
  case Reach::Unloaded:
    Trace.Line("cannot unloaded");
    return false;
  case Reach::Hidden:
    Trace.Line("cannot hidden");
    return false;
  case Reach::Disabled:
    Trace.Line("cannot disabled");
    return false;
  }
  return false;
}

} // namespace Tessoro
