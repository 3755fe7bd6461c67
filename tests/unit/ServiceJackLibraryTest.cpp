#include "service/MachineMidi.hpp"
#include "service/builtin/BuiltinMicroQ.hpp"
#include "service/rtmidi/JackLibrary.hpp"
#include "service/rtmidi/JackPresence.hpp"
#include "tests/support/FreshDirectory.hpp"

#include <gtest/gtest.h>
#include <jack/jack.h>
#include <jack/ringbuffer.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace Tessoro {
namespace {

// What a process has loaded stays, so each of these looks at one that has just begun.
class ServiceJackLibrary : public testing::Test {
protected:
  ServiceJackLibrary() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

  void ExpectInFreshProcess(const std::function<bool()> &claim) {
    EXPECT_EXIT(EndWith(claim()), testing::ExitedWithCode(0), "");
    unsetenv("LD_LIBRARY_PATH");
  }

  // The loader looks here for libraries first. A fresh process has it from its start.
  std::filesystem::path FolderOfLibraries() const {
    setenv("LD_LIBRARY_PATH", folder->Path().c_str(), 1);
    return folder->Path();
  }

private:
  [[noreturn]] void EndWith(bool isRight) {
    folder.reset();
    std::quick_exit(isRight ? 0 : 1);
  }

  std::unique_ptr<FreshDirectory> folder = std::make_unique<FreshDirectory>();
};

bool IsLoaded(const std::string &library) {
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);) {
    if (line.find('/' + library) != std::string::npos)
      return true;
  }
  return false;
}

bool EveryCallFails() {
  return !HasJackLibrary() && JackLibraryVersion().empty() &&
         jack_client_open("nobody", JackNoStartServer, nullptr) == nullptr &&
         jack_activate(nullptr) != 0 && jack_get_ports(nullptr, nullptr, nullptr, 0) == nullptr &&
         jack_ringbuffer_create(16) == nullptr;
}

constexpr const char *BoundAtStart = "RtMidi's shared library has it opened at the start";

TEST_F(ServiceJackLibrary, StaysUnopenedWhereNoServerCanBe) {
  if (!TESSORO_JACK_IS_LAZY)
    GTEST_SKIP() << BoundAtStart;
  static constexpr const char *server = "tessoro-of-nobody";
  const auto ofNobody = [](std::string_view variable) {
    return variable == "JACK_DEFAULT_SERVER" ? server : nullptr;
  };
  if (MayNeedJackLibrary(ofNobody, JackSocketFolder, PipeWireSystemFolder))
    GTEST_SKIP() << "this machine shows signs of a server";
  ExpectInFreshProcess([] {
    for (const char *variable :
         {"PIPEWIRE_REMOTE", "PIPEWIRE_RUNTIME_DIR", "XDG_RUNTIME_DIR", "HOME", "USERPROFILE"})
      unsetenv(variable);
    setenv("JACK_DEFAULT_SERVER", server, 1);
    const auto service = MakeMachineMidiService(std::make_shared<BuiltinMicroQ>());
    service->midiOutGetNumDevs();
    service->midiInGetNumDevs();
    return !IsLoaded("libjack.so");
  });
}

TEST_F(ServiceJackLibrary, IsOpenedByTheFirstCall) {
  ExpectInFreshProcess([] {
    jack_ringbuffer_t *ring = jack_ringbuffer_create(16);
    const bool isRing = ring != nullptr && jack_ringbuffer_write(ring, "abc", 3) == 3 &&
                        jack_ringbuffer_read_space(ring) == 3;
    jack_ringbuffer_free(ring);
    return isRing && IsLoaded("libjack.so") && HasJackLibrary() && !JackLibraryVersion().empty();
  });
}

TEST_F(ServiceJackLibrary, FailsInEveryCallWhereItIsNotThere) {
  if (!TESSORO_JACK_IS_LAZY)
    GTEST_SKIP() << BoundAtStart;
  std::ofstream(FolderOfLibraries() / "libjack.so.0") << "no library";
  ExpectInFreshProcess(EveryCallFails);
}

TEST_F(ServiceJackLibrary, IsTakenForNoneWhereItLacksAFunction) {
  if (!TESSORO_JACK_IS_LAZY)
    GTEST_SKIP() << BoundAtStart;
  std::filesystem::create_symlink(TESSORO_POOR_JACK, FolderOfLibraries() / "libjack.so.0");
  ExpectInFreshProcess(EveryCallFails);
}

} // namespace
} // namespace Tessoro
