#include "service/MachineMidi.hpp"
#include "service/builtin/BuiltinMicroQ.hpp"
#include "service/rtmidi/JackLibrary.hpp"
#include "service/rtmidi/JackPresence.hpp"
#include "tests/support/FreshDirectory.hpp"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <jack/jack.h>
#include <jack/ringbuffer.h>

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>

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

TEST_F(ServiceJackLibrary, StaysUnopenedWhereNoServerCanBe) {
  if (!TESSORO_JACK_IS_LAZY)
    GTEST_SKIP() << "RtMidi's shared library has it opened at the start";
  if (std::filesystem::exists(PipeWireSystemFolder))
    GTEST_SKIP() << "a PipeWire of the whole machine runs here";
  ExpectInFreshProcess([] {
    for (const char *variable :
         {"PIPEWIRE_REMOTE", "PIPEWIRE_RUNTIME_DIR", "XDG_RUNTIME_DIR", "HOME", "USERPROFILE"})
      unsetenv(variable);
    setenv("JACK_DEFAULT_SERVER", "tessoro-of-nobody", 1);
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
  std::ofstream(FolderOfLibraries() / "libjack.so.0") << "no library";
  ExpectInFreshProcess(EveryCallFails);
}

TEST_F(ServiceJackLibrary, IsTakenForNoneWhereItLacksFunctions) {
  Dl_info ofMath;
  double (*const cosine)(double) = std::cos;
  ASSERT_NE(dladdr(reinterpret_cast<void *>(cosine), &ofMath), 0);
  std::filesystem::create_symlink(ofMath.dli_fname, FolderOfLibraries() / "libjack.so.0");
  ExpectInFreshProcess(EveryCallFails);
}

} // namespace
} // namespace Tessoro
