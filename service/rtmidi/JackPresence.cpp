#include "service/rtmidi/JackPresence.hpp"

#include <cstdlib>
#include <string>
#include <system_error>

namespace Tessoro {
namespace {

constexpr std::string_view VersionOfJack2 = "1.9.";

} // namespace

std::string UsualJackServer() {
  const char *named = std::getenv("JACK_DEFAULT_SERVER");
  return named == nullptr ? "default" : named;
}

bool MayHaveJackServer(std::string_view libraryVersion, const std::string &server,
                       const std::filesystem::path &socketFolder) {
  if (!libraryVersion.starts_with(VersionOfJack2)) {
    return true;
  }
  const std::string beginOfName = "jack_" + server + '_';
  std::error_code unreadable;
  std::filesystem::directory_iterator entry(socketFolder, unreadable);
  while (!unreadable && entry != std::filesystem::directory_iterator()) {
    std::error_code gone;
    if (entry->path().filename().string().starts_with(beginOfName) && entry->is_socket(gone)) {
      return true;
    }
    entry.increment(unreadable);
  }
  return static_cast<bool>(unreadable);
}

} // namespace Tessoro
