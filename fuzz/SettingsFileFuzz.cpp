// A start with any settings file, and the end that writes it anew.
#include "fuzz/FuzzTarget.hpp"
#include "tests/support/TestRun.hpp"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  using namespace Tessoro;
  TestRun run;
  std::string &settings = run.files.contents["/editor/Tessoro.ini"];
  settings = Text(data, size);
  run.app.Start();
  MustHold(!run.app.HasEnded(), "the program starts whatever its settings");
  MustHold(run.app.F_Tessoro.IsShown(), "the main window comes up");
  const Module1 &globals = run.app.Module1;
  // A file that is refused may have left what it began with.
  if (run.screen.boxes.empty()) {
    MustHold(globals.KnobFineChange >= 1 && globals.KnobFineChange <= 5,
             "the fine speed is usable");
    MustHold(globals.KnobStandardChange >= 1 && globals.KnobStandardChange < 6,
             "the standard speed is usable");
  }
  MustHold(run.files.open == 0, "the settings are closed");

  settings.clear();
  run.app.F_Tessoro.UserClose();
  MustHold(!settings.empty(), "the settings are written");
  return 0;
}
