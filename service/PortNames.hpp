// The names of MIDI ports: which one is meant, and how it is shown.
#pragma once

#include "service/MidiDevices.hpp"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tessoro {

// The client and the ports that this program shows to others.
inline constexpr const char *OwnClientName = "Tessoro";
inline constexpr const char *OwnOutPortName = "out";
inline constexpr const char *OwnInPortName = "in";

// Whether a port, named "client:port", is one of ours or of another run of this program. A server
// that sees a client's name twice adds a number to it.
bool IsOwnPort(std::string_view name);

// The name without the numbers " client:port" that ALSA puts behind it. They change from start to
// start, so what is left is the same port as yesterday.
std::string_view WithoutAddress(std::string_view name);

// The key of one of these ports.
DeviceKey KeyOf(const std::vector<std::string> &names, std::size_t index);

// Where the port of this key stands now: the very one, or else one that is called the same but for
// numbers and was not there as a twin when the key was made.
std::optional<std::size_t> FindPort(const std::vector<std::string> &names, const DeviceKey &key);

// The names for lists, one for each port, in Windows-1252, at most 31 bytes and all different: only
// what tells ports apart is kept where a name is too long.
std::vector<std::string> ShownNames(const std::vector<std::string> &names);

} // namespace Tessoro
