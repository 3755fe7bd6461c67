// Whether asking for a JACK server can be worth it.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace Tessoro {

// The server that the library asks for where a program names none.
std::string UsualJackServer();

// Where servers of JACK 2 have their sockets.
inline constexpr const char *JackSocketFolder = "/dev/shm";

// JACK 2 opens a database of its own before it looks for a server: that takes as long as making all
// controls of a window, and memory that stays. So it is asked only where that server's socket is.
// Whatever listens elsewhere, as other makes of the library do, is asked in any case. The version
// is the library's own text.
bool MayHaveJackServer(std::string_view libraryVersion, const std::string &server,
                       const std::filesystem::path &socketFolder);

} // namespace Tessoro
