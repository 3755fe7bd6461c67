// What the program was started with.
#pragma once

#include <istream>
#include <ostream>
#include <span>
#include <string>

namespace Tessoro {

// Plays the script that the arguments name, or the one at the input. Returns the exit status of the
// program.
int RunCommandLine(std::span<const char *const> arguments, std::istream &input,
                   std::ostream &output, std::ostream &errors);

} // namespace Tessoro
