// JACK's library, opened where somebody needs it.
#pragma once

#include <string_view>

namespace Tessoro {

// Whether it is there, with all of its functions that are called here. The first question opens it,
// and it is never closed. To bind it takes time and memory that a start without a server can spare.
// The functions are called by their own names: the first call opens it too, and where it isn't
// there each call fails. From any thread.
bool HasJackLibrary();

// What it says of its version. Nothing where it isn't there, or doesn't say, as that of JACK 1.
std::string_view JackLibraryVersion();

} // namespace Tessoro
