// What the machine lists, and its names as texts of the model.
#include "tests/unit/FileSystemFixture.hpp"

namespace Tessoro {
namespace {

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
                "/dev/sdg1 /media/b\\189 ext4 rw 0 0\n"
                "/dev/sdh1 /media/c\\04 ext4 rw 0 0\n"
                "\n");
  const StandardFileSystem withMedia(folder / "mounts");
  EXPECT_EQ(withMedia.Drives(),
            Texts({"/", "/media/a\\b", "/media/anna/USB STICK", "/media/b\\189", "/media/c\\04",
                   "/media/cdrom", "/run/media/anna/M\xFCsik"}));
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
