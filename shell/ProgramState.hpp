// The globals of the program's run.
#pragma once

#include "surface/Property.hpp"

#include <cstdint>
#include <string>

namespace Tessoro {

struct ProgramState {
  // Tells a trapped failure in which phase it arose.
  std::string ErrorPhase;
  // Stage of the start-up info: 0, 1, 2.
  std::int16_t InfoPopUpStage = 0;
  // "Yes" or "No".
  std::string ShowInfoPopUp;
  // Unset until a settings file has been read.
  Value IniProgramLabel;
  std::string IniProgramVersion;
  // "Open" or "Save".
  std::string FileFormMode;
  // The field of a sound file that was read last.
  std::string FileField;
};

} // namespace Tessoro
