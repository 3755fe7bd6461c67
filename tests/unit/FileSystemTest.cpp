#include "files/StandardFileSystem.hpp"

#include "files/FieldReader.hpp"
#include "files/FieldWriter.hpp"
#include "surface/Failure.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace Tessoro {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

// 0 if nothing failed.
template <typename Act> int FailureOf(Act act) {
  try {
    act();
  } catch (const Failure &failure) {
    return failure.Number();
  }
  return 0;
}

// A folder of its own for each test.
class StandardFileSystemTest : public testing::Test {
protected:
  void SetUp() override {
    std::string pattern = (fs::temp_directory_path() / "tessoro-files-XXXXXX").string();
    ASSERT_NE(mkdtemp(pattern.data()), nullptr);
    folder = pattern;
  }

  void TearDown() override { fs::remove_all(folder); }

  std::string In(const std::string &name) const { return (folder / name).string(); }

  void Put(const std::string &name, const std::string &content) const {
    std::ofstream(folder / name, std::ios::binary) << content;
  }

  std::string Content(const std::string &name) const {
    std::ifstream file(folder / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  int ReadFailure(const std::string &name) {
    return FailureOf([&] { files.OpenForReading(name); });
  }

  int WriteFailure(const std::string &name) {
    return FailureOf([&] { files.OpenForWriting(name); });
  }

  fs::path folder;
  StandardFileSystem files;
};

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

TEST_F(StandardFileSystemTest, AMissingRightIsAnAccessError) {
  if (geteuid() == 0)
    GTEST_SKIP() << "the superuser has every right";
  Put("locked", "x");
  fs::permissions(folder / "locked", fs::perms::none);
  EXPECT_EQ(ReadFailure(In("locked")), 75);
  EXPECT_EQ(WriteFailure(In("locked")), 75);
  fs::create_directory(folder / "closed");
  fs::permissions(folder / "closed", fs::perms::none);
  EXPECT_EQ(ReadFailure(In("closed/a")), 75);
  EXPECT_EQ(WriteFailure(In("closed/a")), 75);
  EXPECT_EQ(FailureOf([&] { files.Subfolders(In("closed")); }), 75);
  fs::permissions(folder / "closed", fs::perms::owner_all);
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

TEST_F(StandardFileSystemTest, ListsTheFoldersInAFolder) {
  for (const char *name : {"beta", "Alpha", "gamma", "alpha2", ".hidden"})
    fs::create_directory(folder / name);
  fs::create_directory(folder / "beta" / "inner");
  Put("file", "");
  fs::create_directory_symlink(folder / "beta", folder / "delta");
  fs::create_symlink(folder / "none", folder / "broken");
  EXPECT_EQ(files.Subfolders(folder.string()),
            Texts({"Alpha", "alpha2", "beta", "delta", "gamma"}));
  EXPECT_EQ(files.Subfolders(folder.string() + "/"), files.Subfolders(folder.string()));
  EXPECT_EQ(files.Subfolders(In("gamma")), Texts());
}

TEST_F(StandardFileSystemTest, ListsTheFilesOfAPattern) {
  for (const char *name : {"lead.tss", "Bass.tss", "PAD.TSS", ".tss", "a.tss.bak", "b.tssx", "tss",
                           "c.syx", "x1", "x2", "x10"})
    Put(name, "");
  fs::create_directory(folder / "folder.tss");
  const std::string path = folder.string();
  EXPECT_EQ(files.Files(path, "*.tss"), Texts({".tss", "Bass.tss", "lead.tss", "PAD.TSS"}));
  EXPECT_EQ(files.Files(path, "x?"), Texts({"x1", "x2"}));
  EXPECT_EQ(files.Files(path, "x*"), Texts({"x1", "x10", "x2"}));
  EXPECT_EQ(files.Files(path, "*ss*"),
            Texts({".tss", "a.tss.bak", "b.tssx", "Bass.tss", "lead.tss", "PAD.TSS", "tss"}));
  EXPECT_EQ(files.Files(path, "c.syx"), Texts({"c.syx"}));
  EXPECT_EQ(files.Files(path, "*.wav"), Texts());
  EXPECT_EQ(files.Files(path, ""), Texts());
  EXPECT_EQ(files.Files(path, "*").size(), 11U);
}

TEST_F(StandardFileSystemTest, AMissingFolderHasNoList) {
  Put("file", "");
  for (const std::string &name : {std::string(), In("none"), In("file"), In("file/none"),
                                  folder.string() + std::string("\0x", 2)}) {
    EXPECT_EQ(FailureOf([&] { files.Subfolders(name); }), 76) << name;
    EXPECT_EQ(FailureOf([&] { files.Files(name, "*"); }), 76) << name;
  }
}

TEST_F(StandardFileSystemTest, TellsWhetherAFolderExists) {
  Put("file", "");
  EXPECT_TRUE(files.FolderExists(folder.string()));
  EXPECT_TRUE(files.FolderExists(folder.string() + "/"));
  EXPECT_TRUE(files.FolderExists("/"));
  EXPECT_FALSE(files.FolderExists(""));
  EXPECT_FALSE(files.FolderExists(In("none")));
  EXPECT_FALSE(files.FolderExists(In("file")));
  EXPECT_FALSE(files.FolderExists(folder.string() + std::string("\0x", 2)));
}

TEST_F(StandardFileSystemTest, NamesAreTextsOfTheModel) {
  fs::create_directory(folder / "M\xC3\xBCsik");
  Put("M\xC3\xBCsik/B\xC3\xA4r \xE2\x82\xAC.tss", "found");
  EXPECT_EQ(files.Subfolders(folder.string()), Texts({"M\xFCsik"}));
  EXPECT_EQ(files.Files(In("M\xFCsik"), "*.tss"), Texts({"B\xE4r \x80.tss"}));
  EXPECT_TRUE(files.FolderExists(In("M\xFCsik")));
  EXPECT_EQ(files.OpenForReading(In("M\xFCsik/B\xE4r \x80.tss"))->ReadByte(), 'f');

  files.OpenForWriting(In("M\xFCsik/F\xF6n.tss"))->Close();
  EXPECT_TRUE(fs::exists(folder / "M\xC3\xBCsik" / "F\xC3\xB6n.tss"));
}

TEST_F(StandardFileSystemTest, NamesThatTheCodePageLacksStayReachable) {
  const std::string kanji = "\xE9\x9F\xB3";
  const std::string oldBytes = "B\xE4r";
  fs::create_directory(folder / kanji);
  Put(kanji + "/" + oldBytes, "found");
  EXPECT_EQ(files.Subfolders(folder.string()), Texts({kanji}));
  EXPECT_EQ(files.Files(In(kanji), "*"), Texts({oldBytes}));
  EXPECT_EQ(files.OpenForReading(In(kanji + "/" + oldBytes))->ReadByte(), 'f');

  // A new file gets a proper name beside them.
  files.OpenForWriting(In(kanji + "/F\xF6n"))->Close();
  EXPECT_TRUE(fs::exists(folder / kanji / "F\xC3\xB6n"));
}

TEST_F(StandardFileSystemTest, OfTwoNamesThatReadAlikeTheProperOneIsMeant) {
  Put("B\xE4r", "bytes");
  Put("B\xC3\xA4r", "proper");
  EXPECT_EQ(files.OpenForReading(In("B\xE4r"))->ReadByte(), 'p');
}

TEST_F(StandardFileSystemTest, APathIsTranslatedNameByName) {
  EXPECT_EQ(TextFromPath("/home/M\xC3\xBCsik/\xE9\x9F\xB3/B\xC3\xA4r"),
            "/home/M\xFCsik/\xE9\x9F\xB3/B\xE4r");
  EXPECT_EQ(TextFromPath("/"), "/");
  EXPECT_EQ(TextFromPath(""), "");
  EXPECT_EQ(TextFromPath("a/b/"), "a/b/");
  EXPECT_EQ(PathFromText("/home/M\xFCsik/x"), fs::path("/home/M\xC3\xBCsik/x"));
  EXPECT_EQ(PathFromText("/"), fs::path("/"));
  EXPECT_EQ(PathFromText(""), fs::path(""));
}

TEST_F(StandardFileSystemTest, DrivesAreTheRootAndTheRemovableMedia) {
  Put("mounts", "/dev/vda1 / ext4 rw 0 0\n"
                "proc /proc proc rw 0 0\n"
                "/dev/sdb1 /media/anna/USB\\040STICK vfat rw 0 0\n"
                "/dev/sdc1 /run/media/anna/M\xC3\xBCsik ext4 rw 0 0\n"
                "/dev/sdd1 /media/cdrom iso9660 ro 0 0\n"
                "/dev/sdd1 /media/cdrom iso9660 ro 0 0\n"
                "/dev/sde1 /mediathek ext4 rw 0 0\n"
                "/dev/sdf1 /media/a\\134b ext4 rw 0 0\n"
                "\n");
  const StandardFileSystem withMedia(folder / "mounts");
  EXPECT_EQ(withMedia.Drives(), Texts({"/", "/media/a\\b", "/media/anna/USB STICK", "/media/cdrom",
                                       "/run/media/anna/M\xFCsik"}));
  const StandardFileSystem withoutTable(folder / "none");
  EXPECT_EQ(withoutTable.Drives(), Texts({"/"}));
  EXPECT_EQ(files.Drives().front(), "/");
}

// Leaves the working directory as it was.
class WorkingDirectoryTest : public StandardFileSystemTest {
protected:
  void TearDown() override {
    fs::current_path(before);
    StandardFileSystemTest::TearDown();
  }

  const fs::path before = fs::current_path();
};

TEST_F(WorkingDirectoryTest, IsThatOfTheProcess) {
  const fs::path inner = fs::canonical(folder) / "M\xC3\xBCsik";
  fs::create_directory(inner);
  fs::current_path(inner);
  EXPECT_EQ(files.WorkingDirectory(), fs::canonical(folder).string() + "/M\xFCsik");
  files.OpenForWriting("here.tss")->Close();
  EXPECT_TRUE(fs::exists(inner / "here.tss"));
  EXPECT_EQ(files.Files(files.WorkingDirectory(), "*"), Texts({"here.tss"}));
}

TEST_F(WorkingDirectoryTest, MayHaveBeenRemoved) {
  const fs::path inner = folder / "gone";
  fs::create_directory(inner);
  fs::current_path(inner);
  fs::remove(inner);
  EXPECT_EQ(FailureOf([&] { files.WorkingDirectory(); }), 76);
}

TEST_F(StandardFileSystemTest, TheSeparatorIsThatOfThePlatform) {
  EXPECT_EQ(files.Separator(), '/');
}

} // namespace
} // namespace Tessoro
