#include "fuzz/SoundFileRun.hpp"

#include "fuzz/FuzzTarget.hpp"
#include "tests/support/TestRun.hpp"

namespace Tessoro {

void OpenSoundFile(const std::string &name, const std::string &content) {
  TestRun run;
  run.StartWithOpenPorts();
  run.files.contents["/" + name] = content;
  run.screen.answers = {MsgBoxButton::Yes};

  F_Tessoro &main = run.app.F_Tessoro;
  F_FileIO &form = run.app.F_FileIO;
  main.Menu_OpenSound.UserClick();
  form.TextFilename.UserEdit(name);
  form.C_File.UserClick();
  MustHold(!run.app.HasEnded(), "a file that is loaded doesn't end the program");
  MustHold(run.files.open == 0, "a load closes its files");
  if (form.IsLoaded())
    return;

  main.Menu_SaveSound.UserClick();
  form.TextFilename.UserEdit("copy");
  form.C_File.UserClick();
  MustHold(!run.app.HasEnded(), "a sound that was loaded can be saved");
  MustHold(run.files.contents.contains("/copy.tss"), "a save leaves a file");
  MustHold(run.files.open == 0, "a save closes its file");
}

} // namespace Tessoro
