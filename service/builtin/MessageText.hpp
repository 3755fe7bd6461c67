// What a message says, in words.
#pragma once

#include "service/builtin/MessageInbox.hpp"

#include <chrono>
#include <string>

namespace Tessoro {

// "C3" for 60, as the note keys of the editor are called; "C-2" for 0.
std::string NoteName(int note);

// "Filter 1 cutoff", or "Parameter 14" for one that the editor never sends.
std::string ParameterName(int number);

// "Filter 1 cutoff = 64", "Note C3 on, velocity 100", "Controller 52: OSC 1 level = 127". A value
// that a form shows otherwise has the byte behind it: "OSC 1 semitone = +6 (70)". Channels other
// than the first are named.
std::string MeaningText(const LoggedMessage &message);

// Whether it is whole, but says nothing to a microQ that the editor knows of. Its text says so too.
bool IsUnknown(const LoggedMessage &message);

// "F0 3E 10"; of a long message the beginning and the length.
std::string BytesText(const LoggedMessage &message);

// Seconds: "12.345".
std::string TimeText(std::chrono::steady_clock::duration time);

// All three in one line, in columns.
std::string MessageLine(const LoggedMessage &message);

} // namespace Tessoro
