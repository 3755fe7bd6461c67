// Files that are read and written.
#include "tests/unit/FileSystemFixture.hpp"

#include "files/FieldReader.hpp"
#include "files/FieldWriter.hpp"

#include <memory>
#include <optional>
#include <string_view>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace Tessoro {
namespace {

TEST_F(StandardFileSystemTest, ReadsEveryByteAsItIs) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte)
    all += static_cast<char>(byte);
  Put("dump.syx", all);
  const std::unique_ptr<InputFile> file = files.OpenForReading(In("dump.syx"));
  for (int byte = 0; byte < 256; ++byte)
    EXPECT_EQ(file->ReadByte(), byte);
}

TEST_F(StandardFileSystemTest, ReadingPastTheEndFails) {
  Put("short.syx", "\xF0");
  const std::unique_ptr<InputFile> file = files.OpenForReading(In("short.syx"));
  EXPECT_EQ(file->ReadByte(), 0xF0);
  EXPECT_EQ(file->NextByte(), std::nullopt);
  EXPECT_EQ(FailureOf([&] { file->ReadByte(); }), 62);
  EXPECT_EQ(FailureOf([&] { file->ReadByte(); }), 62);
}

TEST_F(StandardFileSystemTest, ReadsFilesLongerThanItsBuffer) {
  std::string content;
  for (int line = 0; line < 10000; ++line)
    content += std::to_string(line) + "\r\n";
  Put("long.tss", content);
  FieldReader reader(files.OpenForReading(In("long.tss")));
  for (int line = 0; line < 10000; ++line)
    ASSERT_EQ(reader.Read().text, std::to_string(line));
  EXPECT_EQ(FailureOf([&] { reader.Read(); }), 62);
}

TEST_F(StandardFileSystemTest, AFileWithoutANameIsABadName) {
  EXPECT_EQ(ReadFailure(""), 52);
  EXPECT_EQ(WriteFailure(""), 52);
}

TEST_F(StandardFileSystemTest, AZeroByteInANameDoesNotOpenTheFileBeforeIt) {
  Put("a", "x");
  EXPECT_EQ(ReadFailure(In("a") + std::string("\0b", 2)), 52);
  EXPECT_EQ(WriteFailure(In("a") + std::string("\0b", 2)), 52);
  EXPECT_EQ(Content("a"), "x");
}

TEST_F(StandardFileSystemTest, AMissingFileIsNotFound) {
  EXPECT_EQ(ReadFailure(In("none.tss")), 53);
  EXPECT_EQ(ReadFailure(In("*.tss")), 53);
  EXPECT_EQ(ReadFailure("surely-not-in-the-working-directory.tss"), 53);
  fs::create_symlink(folder / "none.tss", folder / "link.tss");
  EXPECT_EQ(ReadFailure(In("link.tss")), 53);
}

TEST_F(StandardFileSystemTest, AMissingFolderOnTheWayIsNoPath) {
  Put("file", "");
  for (const std::string name : {"none/a.tss", "none/deeper/a.tss", "file/a.tss", "none/"}) {
    EXPECT_EQ(ReadFailure(In(name)), 76) << name;
    EXPECT_EQ(WriteFailure(In(name)), 76) << name;
  }
}

TEST_F(StandardFileSystemTest, AFolderInPlaceOfAFileIsRefused) {
  EXPECT_EQ(ReadFailure(folder.string()), 75);
  EXPECT_EQ(WriteFailure(folder.string()), 75);
  EXPECT_EQ(ReadFailure(folder.string() + "/"), 75);
  EXPECT_EQ(WriteFailure(folder.string() + "/"), 75);
  EXPECT_EQ(ReadFailure("/"), 75);
  EXPECT_EQ(ReadFailure("."), 75);
}

TEST_F(StandardFileSystemTest, APipeIsRefusedSoThatNobodyWaitsAtIt) {
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  EXPECT_EQ(ReadFailure(In("pipe")), 75);
  EXPECT_EQ(WriteFailure(In("pipe")), 75);
  fs::create_symlink(folder / "pipe", folder / "link");
  EXPECT_EQ(ReadFailure(In("link")), 75);
}

TEST_F(StandardFileSystemTest, ASocketIsRefusedToo) {
  sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
  In("socket").copy(address.sun_path, sizeof address.sun_path - 1);
  const int listener = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_EQ(bind(listener, reinterpret_cast<const sockaddr *>(&address), sizeof address), 0);
  EXPECT_EQ(ReadFailure(In("socket")), 75);
  EXPECT_EQ(WriteFailure(In("socket")), 75);
  close(listener);
}

TEST_F(StandardFileSystemTest, ADeviceCanBeOpenedButIsNotReadForEver) {
  const std::unique_ptr<InputFile> file = files.OpenForReading("/dev/zero");
  EXPECT_EQ(FailureOf([&] { file->NextByte(); }), 75);
}

TEST_F(StandardFileSystemTest, WhatElseTheSystemRefusesIsAnAccessError) {
  const std::string tooLong(5000, 'x');
  EXPECT_EQ(ReadFailure(In(tooLong)), 75);
  EXPECT_EQ(WriteFailure(In(tooLong)), 75);
  fs::create_symlink(folder / "circle", folder / "circle");
  EXPECT_EQ(ReadFailure(In("circle")), 75);
  EXPECT_EQ(WriteFailure(In("circle")), 75);
  EXPECT_EQ(ReadFailure(In("circle/a")), 75);
  EXPECT_EQ(FailureOf([&] { files.Subfolders(In("circle")); }), 75);
}

TEST_F(StandardFileSystemTest, AReadThatBreaksOffIsAnAccessError) {
  // A file that every process may open, but whose first page can't be read.
  if (!fs::exists("/proc/self/mem"))
    GTEST_SKIP() << "no such file here";
  const std::unique_ptr<InputFile> file = files.OpenForReading("/proc/self/mem");
  EXPECT_EQ(FailureOf([&] { file->NextByte(); }), 75);
}

TEST_F(StandardFileSystemTest, WritesEveryByteAsItIs) {
  const std::unique_ptr<OutputFile> file = files.OpenForWriting(In("out"));
  file->Write(std::string_view("a\r\nb\n\0\xE4", 7));
  file->Close();
  EXPECT_EQ(Content("out"), std::string("a\r\nb\n\0\xE4", 7));
}

TEST_F(StandardFileSystemTest, OpeningForWritingReplacesTheFileAsAWhole) {
  Put("out", "something long that was there before");
  const std::unique_ptr<OutputFile> file = files.OpenForWriting(In("out"));
  EXPECT_EQ(Content("out"), "");
  file->Write("new");
  file->Close();
  EXPECT_EQ(Content("out"), "new");
}

TEST_F(StandardFileSystemTest, CloseLetsGoOfTheFile) {
  const std::unique_ptr<OutputFile> file = files.OpenForWriting(In("out"));
  file->Write("1");
  file->Close();
  EXPECT_EQ(FailureOf([&] { file->Close(); }), 0);
  EXPECT_EQ(FailureOf([&] { file->Write("2"); }), 52);
  EXPECT_EQ(Content("out"), "1");
}

TEST_F(StandardFileSystemTest, AFileThatGoesAwayUnclosedKeepsWhatWasWritten) {
  files.OpenForWriting(In("out"))->Write("half a sound");
  EXPECT_EQ(Content("out"), "half a sound");
}

// Takes the opening and refuses every byte.
constexpr const char *fullDevice = "/dev/full";

TEST_F(StandardFileSystemTest, AFullDiskShowsAtTheLatestWhenTheFileIsClosed) {
  if (!fs::exists(fullDevice))
    GTEST_SKIP() << "no such device here";
  const std::unique_ptr<OutputFile> few = files.OpenForWriting(fullDevice);
  few->Write("a few bytes, which fit into a buffer");
  EXPECT_EQ(FailureOf([&] { few->Close(); }), 75);
  EXPECT_EQ(FailureOf([&] { few->Close(); }), 0) << "it is closed all the same";

  const std::unique_ptr<OutputFile> many = files.OpenForWriting(fullDevice);
  EXPECT_EQ(FailureOf([&] { many->Write(std::string(1000000, 'x')); }), 75);
  EXPECT_EQ(FailureOf([&] { many->Close(); }), 75);
}

TEST_F(StandardFileSystemTest, AFullDiskIsNoMatterToAFileThatGoesAway) {
  if (!fs::exists(fullDevice))
    GTEST_SKIP() << "no such device here";
  std::unique_ptr<OutputFile> file = files.OpenForWriting(fullDevice);
  file->Write("lost");
  EXPECT_NO_THROW(file.reset());
}

TEST_F(StandardFileSystemTest, ASettingsFileComesBackAsItWasWritten) {
  FieldWriter writer(files.OpenForWriting(In("Tessoro.ini")));
  writer.Nothing().Text("").EndLine();
  writer.Number(3).Number(-1).EndLine();
  writer.Text("/home/b\xE4r").EndLine();
  writer.Close();
  EXPECT_EQ(Content("Tessoro.ini"), ",\"\"\r\n3,-1\r\n\"/home/b\xE4r\"\r\n");

  FieldReader reader(files.OpenForReading(In("Tessoro.ini")));
  EXPECT_FALSE(reader.Read().quoted);
  EXPECT_TRUE(reader.Read().quoted);
  EXPECT_EQ(reader.Read().text, "3");
  EXPECT_EQ(reader.Read().text, "-1");
  EXPECT_EQ(reader.Read().text, "/home/b\xE4r");
  EXPECT_EQ(FailureOf([&] { reader.Read(); }), 62);
}

} // namespace
} // namespace Tessoro
