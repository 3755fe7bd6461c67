// One run of the editor on doubles of everything outside it.
#pragma once

#include "shell/Application.hpp"
#include "sound/RandomNumbers.hpp"
#include "tests/support/TestClock.hpp"
#include "tests/support/TestFiles.hpp"
#include "tests/support/TestMidi.hpp"
#include "tests/support/TestScreen.hpp"

namespace Tessoro {

struct TestRun {
  explicit TestRun(char decimalSign = '.')
      : app({.midi = midi,
             .screen = screen,
             .clock = clock,
             .files = files,
             .random = random,
             .programPath = "/editor",
             .decimalSign = decimalSign}) {}

  // Starts with the ports of a settings file open, and forgets what was noted so far.
  void StartWithOpenPorts() {
    files.contents["/editor/Tessoro.ini"] =
        "\"Tessoro v1.3.1\"\r\n\"\",\"\"\r\n3,3\r\n0,0\r\n0,0\r\n\"?\"\r\n\"Yes\"\r\n";
    app.Start();
    Forget();
  }

  void Forget() {
    midi.calls.clear();
    midi.messages.clear();
    midi.constants.clear();
    screen.forms.clear();
    screen.boxes.clear();
    screen.changes.clear();
  }

  TestMidi midi;
  TestScreen screen;
  TestClock clock;
  TestFiles files;
  StandardRandomNumbers random;
  Application app;
};

// The message of one parameter change to the edit buffer, as TestMidi notes it.
std::string ParameterMessage(int high, int low, int value);

} // namespace Tessoro
