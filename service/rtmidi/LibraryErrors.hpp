// What the MIDI library complains of.
#pragma once

#include <RtMidi.h>

#include <atomic>
#include <string>

namespace Tessoro {

// Without a listener the library writes its complaints to the terminal and throws the graver ones;
// with one it does neither, so this is the only place to hear of them.
class LibraryErrors {
public:
  void ListenTo(RtMidi &port) { port.setErrorCallback(&LibraryErrors::Note, this); }

  // Whether there was one since this was last asked.
  bool TakeAny() { return hadAny.exchange(false); }

private:
  static void Note(RtMidiError::Type type, const std::string & /*text*/, void *self) {
    if (type != RtMidiError::DEBUG_WARNING) {
      static_cast<LibraryErrors *>(self)->hadAny = true;
    }
  }

  std::atomic<bool> hadAny{false};
};

} // namespace Tessoro
