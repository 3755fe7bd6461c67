// A platform that takes everything and costs next to nothing, so that what is measured is the
// editor.
#pragma once

#include "files/StandardFileSystem.hpp"
#include "midi/MidiService.hpp"
#include "shell/Application.hpp"
#include "sound/RandomNumbers.hpp"
#include "surface/Screen.hpp"

namespace Tessoro {

class QuietScreen : public Screen {
public:
  void FormLoading(Form & /*form*/) override {}
  void FormShown(Form & /*form*/) override {}
  void FormUnloaded(Form & /*form*/) override {}
  void CaptionChanged(Form & /*form*/) override {}
  void PropertyChanged(Control & /*control*/, Property /*property*/) override {}
  void KeepOnTop(Form & /*form*/) override {}
  // A box is a failed send, and no measurement goes on behind one.
  MsgBoxButton MsgBox(const std::string &text, int flags, const std::string &title) override;
  void SetMousePointer(MousePointer /*pointer*/) override {}
  void ProgramEnded(ProgramEnd /*end*/, const Failure * /*failure*/) override {}
};

class QuietClock : public Clock {
public:
  void StartTimer(Timer & /*timer*/, int /*milliseconds*/) override {}
  void StopTimer(Timer & /*timer*/) override {}
};

struct QuietRun {
  explicit QuietRun(MidiService &midi)
      : app({.midi = midi,
             .screen = screen,
             .clock = clock,
             .files = files,
             .random = random,
             .programPath = "."}) {}

  QuietScreen screen;
  QuietClock clock;
  StandardFileSystem files;
  StandardRandomNumbers random;
  Application app;
};

} // namespace Tessoro
