// One run of the editor: its state, its forms, and the platform that it runs on.
#pragma once

#include "editors/F_General.hpp"
#include "editors/F_LFO.hpp"
#include "files/F_FileIO.hpp"
#include "midi/F_Midi.hpp"
#include "shell/F_About.hpp"
#include "shell/F_InfoPopUp.hpp"
#include "shell/F_Preferences.hpp"
#include "shell/Platform.hpp"
#include "sound/F_Name.hpp"
#include "sound/Module1.hpp"
#include "surface/F_Tessoro.hpp"
#include "surface/Failure.hpp"
#include "surface/Screen.hpp"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Tessoro {

// Several can live in one process, side by side. Single-threaded, like all of the core.
class Application {
public:
  explicit Application(const Platform &platform);
  Application(const Application &) = delete;
  Application &operator=(const Application &) = delete;

  // The program starts: F_Tessoro loads and is shown.
  void Start();
  // Ends the program at once.
  void Quit();
  bool HasEnded() const { return ended; }

  // Runs one event from outside. A failure that nothing traps ends the program here.
  template <typename Act> void Event(Act &&act) {
    if (ended)
      return;
    try {
      act();
    } catch (const Failure &failure) {
      End(ProgramEnd::Failure, &failure);
    }
  }

  const Platform &System() const { return system; }
  Screen &Display() const { return system.screen; }
  MsgBoxButton MsgBox(const std::string &text, int flags, const std::string &title);

  // "1.3.1".
  std::string VersionText() const;
  // "1.3".
  std::string ShortVersionText() const;

  // The strict conversions, by the locale of this run.
  double StrictNumber(std::string_view text) const;
  std::int16_t StrictInteger(std::string_view text) const;
  void SetDecimalSign(char sign) { system.decimalSign = sign; }

  const std::vector<Form *> &Forms() const { return forms; }
  Form *FindForm(std::string_view name) const;

  // Called by each form as it is made, and as it goes.
  void Add(Form &form);
  void FormHasGone();

private:
  void End(ProgramEnd end, const Failure *failure);

  Platform system;
  std::vector<Form *> forms;
  bool ended = false;

public:
  Tessoro::Module1 Module1;
  Tessoro::F_Tessoro F_Tessoro;
  Tessoro::F_Midi F_Midi;
  Tessoro::F_LFO F_LFO;
  Tessoro::F_General F_General;
  Tessoro::F_Name F_Name;
  Tessoro::F_FileIO F_FileIO;
  Tessoro::F_Preferences F_Preferences;
  Tessoro::F_InfoPopUp F_InfoPopUp;
  Tessoro::F_About F_About;
};

} // namespace Tessoro
