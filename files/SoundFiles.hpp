// The formats of a sound outside the program: version 1.5 is written and read, the rest only read.
//
// Every reader applies each field as it comes, so that the order of the file is the order on the
// wire, and traps no failure: what was read before one stays applied.
#pragma once

#include <string>

namespace Tessoro {

class Application;

// Replaces the file as a whole.
void WriteSound(Application &app, const std::string &path);

// Fails with 62 for a file that is too short, with 13, 6 or 380 for a field that doesn't fit.
void ReadSoundV15(Application &app, const std::string &path);
// Words where version 1.5 has indices. Begins with an init of what the main form doesn't show.
void ReadSoundV02(Application &app, const std::string &path);
// A sound dump of the synthesizer. Tells in boxes what it can't import.
void ImportSyxSound(Application &app, const std::string &path);

} // namespace Tessoro
