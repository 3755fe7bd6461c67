// Plays scripts: one command a line.
#pragma once

#include <istream>
#include <ostream>
#include <string_view>

namespace Tessoro {

class Session;

namespace ExitStatus {
inline constexpr int Played = 0;
inline constexpr int NotUnderstood = 2;
} // namespace ExitStatus

// Fails with ScriptError for a line that isn't of the language.
void PlayLine(Session &session, std::string_view line);

// Plays until the script or the editor ends, and flushes the trace after each line. A line that
// isn't understood ends it, with one line among the errors.
int PlayScript(Session &session, std::istream &script, std::ostream &errors);

} // namespace Tessoro
