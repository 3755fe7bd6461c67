// What is known of the current sound beside its parameters.
#pragma once

#include <string>

namespace Tessoro {

struct SoundBookkeeping {
  // 16 characters.
  std::string SoundName;
  // 4 characters.
  std::string SoundCategory;
  // Without its extension; shown in the main form's title.
  std::string SoundFileName;
  // Where the open and save form starts; "?" is none known yet.
  std::string SoundFolder;
};

} // namespace Tessoro
