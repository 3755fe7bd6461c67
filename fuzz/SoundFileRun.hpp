// A user who opens a file that came from anywhere.
#pragma once

#include <string>

namespace Tessoro {

// Loads the content under that name, and saves the sound that has come of it. Whatever the file
// holds, the user is left with a running editor and no file is left open.
void OpenSoundFile(const std::string &name, const std::string &content);

} // namespace Tessoro
