// The editor in windows.
#include "face/qt/Launch.hpp"
#include "face/qt/MidiOfBuild.hpp"
#include "face/qt/Program.hpp"

#include <cstdio>
#include <string_view>

namespace {

constexpr const char *Help =
    "Usage: tessoro [--help] [--version]\n"
    "\n"
    "Edits the sound in the edit buffer of a Waldorf microQ over MIDI.\n"
    "The settings are kept in Tessoro.ini beside the program, or in the\n"
    "user's own folder for settings where it is installed for all or that\n"
    "can't be written.\n";

// Answered before anything needs a display.
bool AnswersAlone(std::string_view argument) {
  if (argument == "--help" || argument == "-h") {
    std::fputs(Help, stdout);
    return true;
  }
  if (argument == "--version") {
    const Tessoro::ProgramVersion version;
    std::printf("Tessoro %d.%d.%d\n", version.major, version.minor, version.revision);
    return true;
  }
  return false;
}

} // namespace

int main(int argc, char *argv[]) {
  for (int i = 1; i < argc; ++i)
    if (AnswersAlone(argv[i]))
      return 0;
  const Tessoro::Launch launch(argc, argv);
  Tessoro::DressApplication();
  const auto midi = Tessoro::MakeMidiService();
  return Tessoro::Program(*midi, Tessoro::ProgramPath()).Run();
}
