// Whether asking for a JACK server can be worth it.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace Tessoro {

// The value of a variable, or null where it isn't set: std::getenv, or a test's own.
using Environment = std::function<const char *(const char *variable)>;

// The server that the library asks for where a program names none.
std::string UsualJackServer(const Environment &environment);

// Where servers of JACK 2 have their sockets, and those of JACK 1 a folder.
inline constexpr const char *JackSocketFolder = "/dev/shm";

// Where a PipeWire of the whole machine has its socket.
inline constexpr const char *PipeWireSystemFolder = "/run/pipewire";

// Whether JACK's library is worth to be opened: where there is a sign of that server, or of JACK 1,
// or of PipeWire, which may have put a library of its own in the place of JACK's. What can't be
// read may be one.
bool MayNeedJackLibrary(const Environment &environment, const std::filesystem::path &socketFolder,
                        const std::filesystem::path &pipeWireSystemFolder);

// JACK 2 opens a database of its own before it looks for a server: that takes as long as making all
// controls of a window, and memory that stays. So it is asked only where that server's socket is.
// Whatever listens elsewhere, as other makes of the library do, is asked in any case. The version
// is the library's own text.
bool MayHaveJackServer(std::string_view libraryVersion, const std::string &server,
                       const std::filesystem::path &socketFolder);

} // namespace Tessoro
