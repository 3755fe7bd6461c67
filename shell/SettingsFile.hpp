// The one file that keeps anything between two runs: ports, channels, knob speeds, folder, info.
#pragma once

#include "files/FieldReader.hpp"
#include "files/FieldWriter.hpp"

#include <string>

namespace Tessoro {

class Application;
class Module1;

// Beside the program.
std::string SettingsPath(const Application &app);

// Takes the seven lines over into the globals, field by field: what was read before a failure stays
// in force. Fails with 62 for a file that is too short, with 13 for a number field that holds
// something else, with 6 for a standard speed or an IN channel beyond 16 bits.
void ReadSettings(FieldReader &settings, Application &app);

void WriteSettings(FieldWriter &settings, const Application &app);

} // namespace Tessoro
