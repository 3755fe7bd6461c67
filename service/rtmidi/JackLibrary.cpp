#include "service/rtmidi/JackLibrary.hpp"

#include "service/rtmidi/JackFunctions.hpp"

#include <dlfcn.h>
#include <jack/jack.h>

namespace Tessoro {
namespace {

void *OpenedLibrary() {
  static void *const library = [] {
    void *const opened = dlopen("libjack.so.0", RTLD_NOW | RTLD_LOCAL);
    return opened != nullptr && BindJackFunctions(opened) ? opened : nullptr;
  }();
  return library;
}

} // namespace

bool HasJackLibrary() { return OpenedLibrary() != nullptr; }

std::string_view JackLibraryVersion() {
  if (!HasJackLibrary()) {
    return {};
  }
  auto *const tell = reinterpret_cast<decltype(&jack_get_version_string)>(
      dlsym(OpenedLibrary(), "jack_get_version_string"));
  return tell == nullptr ? std::string_view() : tell();
}

} // namespace Tessoro
