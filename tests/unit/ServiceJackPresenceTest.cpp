#include "service/rtmidi/JackPresence.hpp"
#include "tests/support/FreshDirectory.hpp"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <string>

namespace Tessoro {
namespace {

constexpr const char *Jack2 = "1.9.21";

void MakeSocket(const std::filesystem::path &path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.string().copy(static_cast<char *>(address.sun_path), sizeof address.sun_path - 1);
  const int server = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(bind(server, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
  close(server);
}

// A machine's places for signs, all of them empty.
class ServiceJackLibraryNeed : public testing::Test {
protected:
  ServiceJackLibraryNeed() {
    for (const char *name : {"shm", "system", "runtime", "home"})
      std::filesystem::create_directory(name);
  }

  bool Answer() const {
    const auto environment = [this](const char *variable) -> const char * {
      const auto found = variables.find(variable);
      return found == variables.end() ? nullptr : found->second.c_str();
    };
    return MayNeedJackLibrary(environment, sockets, "system");
  }

  FreshDirectory folder;
  std::string sockets = "shm";
  std::map<std::string, std::string> variables{{"XDG_RUNTIME_DIR", "runtime"}, {"HOME", "home"}};
};

TEST_F(ServiceJackLibraryNeed, IsNoneWhereNothingStands) { EXPECT_FALSE(Answer()); }

TEST_F(ServiceJackLibraryNeed, IsNoneForWhatServersLeaveBehind) {
  std::filesystem::create_directory("shm/jack_db-1000");
  std::ofstream("shm/jack-shm-registry") << "old";
  std::ofstream("shm/jack_sem.1000_default_system") << "old";
  std::ofstream("shm/jack_default_1000_0") << "no socket";
  EXPECT_FALSE(Answer());
}

TEST_F(ServiceJackLibraryNeed, ComesWithTheSocketOfTheServerThatIsAskedFor) {
  MakeSocket("shm/jack_studio_1000_0");
  EXPECT_FALSE(Answer());
  variables["JACK_DEFAULT_SERVER"] = "studio";
  EXPECT_TRUE(Answer());
}

TEST_F(ServiceJackLibraryNeed, ComesWithTheFolderOfJack1) {
  for (const char *name : {"shm/jack-1000", "shm/jack"}) {
    std::filesystem::create_directory(name);
    EXPECT_TRUE(Answer()) << name;
    std::filesystem::remove(name);
  }
}

TEST_F(ServiceJackLibraryNeed, ComesWhereServersCantBeLookedFor) {
  sockets = "missing";
  EXPECT_TRUE(Answer());
}

TEST_F(ServiceJackLibraryNeed, ComesWithASocketOfPipeWire) {
  variables["PIPEWIRE_RUNTIME_DIR"] = folder.Path() / "own";
  std::filesystem::create_directory("own");
  for (const char *name : {"own", "runtime", "home", "system"}) {
    const std::filesystem::path socket = std::filesystem::path(name) / "pipewire-0";
    MakeSocket(socket);
    EXPECT_TRUE(Answer()) << name;
    std::filesystem::remove(socket);
  }
  EXPECT_FALSE(Answer());
}

TEST_F(ServiceJackLibraryNeed, ComesWhereAPipeWireIsAskedForByName) {
  variables["PIPEWIRE_REMOTE"] = "";
  EXPECT_FALSE(Answer());
  variables["PIPEWIRE_REMOTE"] = "studio";
  EXPECT_TRUE(Answer());
}

TEST(ServiceJackPresence, AServersSocketIsASign) {
  const FreshDirectory folder;
  MakeSocket(folder.Path() / "jack_default_1000_0");
  EXPECT_TRUE(MayHaveJackServer(Jack2, "default", folder.Path()));
}

TEST(ServiceJackPresence, WhatElseStandsThereIsNone) {
  const FreshDirectory folder;
  std::filesystem::create_directory(folder.Path() / "jack_db-1000");
  std::ofstream(folder.Path() / "jack-shm-registry") << "old";
  std::ofstream(folder.Path() / "jack_sem.1000_default_system") << "old";
  MakeSocket(folder.Path() / "another");
  MakeSocket(folder.Path() / "jack_studio_1000_0");
  EXPECT_FALSE(MayHaveJackServer(Jack2, "default", folder.Path()));
}

TEST(ServiceJackPresence, AFolderThatCantBeReadProvesNothing) {
  const FreshDirectory folder;
  EXPECT_TRUE(MayHaveJackServer(Jack2, "default", folder.Path() / "missing"));
}

TEST(ServiceJackPresence, OtherMakesAreAskedInAnyCase) {
  const FreshDirectory folder;
  for (const char *version : {"3.0.0.0 (using PipeWire 0.3.65)", "0.126.0", ""})
    EXPECT_TRUE(MayHaveJackServer(version, "default", folder.Path())) << version;
}

} // namespace
} // namespace Tessoro
