#include "service/rtmidi/JackPresence.hpp"
#include "tests/support/FreshDirectory.hpp"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
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
