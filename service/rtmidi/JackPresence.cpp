#include "service/rtmidi/JackPresence.hpp"

#include <algorithm>
#include <array>
#include <system_error>

namespace Tessoro {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view VersionOfJack2 = "1.9.";

// True also where the folder can't be read to its end.
template <typename IsWanted> bool MayHold(const fs::path &folder, const IsWanted &isWanted) {
  std::error_code unreadable;
  fs::directory_iterator entry(folder, unreadable);
  while (!unreadable && entry != fs::directory_iterator()) {
    if (isWanted(*entry)) {
      return true;
    }
    entry.increment(unreadable);
  }
  return static_cast<bool>(unreadable);
}

bool IsSocketOfJack2(const fs::directory_entry &entry, const std::string &server) {
  std::error_code gone;
  return entry.path().filename().string().starts_with("jack_" + server + '_') &&
         entry.is_socket(gone);
}

// That of a user, or the one of all users.
bool IsFolderOfJack1(const fs::directory_entry &entry) {
  const std::string name = entry.path().filename().string();
  std::error_code gone;
  return (name.starts_with("jack-") || name == "jack") && entry.is_directory(gone);
}

bool HasUsualSocketOfPipeWire(const fs::path &folder) {
  std::error_code unreadable;
  return fs::status(folder / "pipewire-0", unreadable).type() != fs::file_type::not_found;
}

bool MayHavePipeWire(const Environment &environment, const fs::path &systemFolder) {
  const auto isSet = [&](const char *variable) {
    const char *value = environment(variable);
    return value != nullptr && *value != '\0';
  };
  // A name, a path or a list of them.
  if (isSet("PIPEWIRE_REMOTE")) {
    return true;
  }
  // The first of them that is set is PipeWire's, in some of its releases with less of them.
  constexpr std::array folders{"PIPEWIRE_RUNTIME_DIR", "XDG_RUNTIME_DIR", "HOME", "USERPROFILE"};
  return std::ranges::any_of(folders,
                             [&](const char *variable) {
                               return isSet(variable) &&
                                      HasUsualSocketOfPipeWire(environment(variable));
                             }) ||
         HasUsualSocketOfPipeWire(systemFolder);
}

} // namespace

std::string UsualJackServer(const Environment &environment) {
  const char *named = environment("JACK_DEFAULT_SERVER");
  return named == nullptr ? "default" : named;
}

bool MayNeedJackLibrary(const Environment &environment, const fs::path &socketFolder,
                        const fs::path &pipeWireSystemFolder) {
  const std::string server = UsualJackServer(environment);
  const auto isSign = [&](const fs::directory_entry &entry) {
    return IsSocketOfJack2(entry, server) || IsFolderOfJack1(entry);
  };
  return MayHold(socketFolder, isSign) || MayHavePipeWire(environment, pipeWireSystemFolder);
}

bool MayHaveJackServer(std::string_view libraryVersion, const std::string &server,
                       const fs::path &socketFolder) {
  return !libraryVersion.starts_with(VersionOfJack2) ||
         MayHold(socketFolder,
                 [&](const fs::directory_entry &entry) { return IsSocketOfJack2(entry, server); });
}

} // namespace Tessoro
