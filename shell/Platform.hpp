// Everything outside the editor that a run of it needs.
#pragma once

#include <string>

namespace Tessoro {

class Clock;
class FileSystem;
class MidiService;
class RandomNumbers;
class Screen;

struct ProgramVersion {
  int major = 1;
  int minor = 3;
  int revision = 1;
};

struct Platform {
  MidiService &midi;
  Screen &screen;
  Clock &clock;
  FileSystem &files;
  RandomNumbers &random;
  // The program's own directory, where the settings file stands; no separator at its end unless it
  // is a root.
  std::string programPath;
  std::string title = "Tessoro";
  ProgramVersion version = {};
  // The locale's.
  char decimalSign = '.';
};

} // namespace Tessoro
