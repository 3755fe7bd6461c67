// What a real file system has in store: names that are too long, folders and pipes in the place of
// files, devices that take nothing or never end. Each ends in a box, and the editor goes on.
#include "surface/Failure.hpp"
#include "tests/faults/TracedSession.hpp"
#include "tests/support/FreshDirectory.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

#include <sys/stat.h>

namespace Tessoro::Tests {
namespace {

namespace fs = std::filesystem;

const std::string LongName(10000, 'x');

class RealFiles : public testing::Test {
protected:
  RealFiles() {
    session.Play("midi-out \"microQ\"");
    session.Play("midi-in \"Keyboard\"");
  }

  void Start(std::string_view folder = "?") {
    std::ofstream("Tessoro.ini", std::ios::binary) << SettingsWithPorts(folder);
    EXPECT_EQ(BoxesOf("start"), Lines());
  }

  Lines BoxesOf(const std::string &line) {
    Lines boxes;
    std::ranges::copy_if(session.Play(line), std::back_inserter(boxes), IsBox);
    return boxes;
  }

  Lines Load(const std::string &name) {
    session.Play("menu Menu_OpenSound");
    session.Play("paste F_FileIO.TextFilename " + QuotedText(name));
    Lines boxes = BoxesOf("click F_FileIO.C_File");
    session.Play("close F_FileIO");
    return boxes;
  }

  // The name goes without its extension.
  Lines Save(const std::string &name) {
    session.Play("click F_Tessoro.InitSnd");
    session.Play("menu Menu_SaveSound");
    session.Play("paste F_FileIO.TextFilename " + QuotedText(name));
    Lines boxes = BoxesOf("click F_FileIO.C_File");
    session.Play("close F_FileIO");
    return boxes;
  }

  static std::string FailureBox(std::string_view title, int number) {
    return BoxLine(16, title, " " + std::to_string(number) + ": " + Failure(number).Text());
  }

  std::string RefusedBox(const std::string &name) const {
    return FailureBox("Error writing/reading file: " + (directory.Path() / name).string(), 75);
  }

  // What the user does next arrives, and the settings can be written.
  void ExpectThatItGoesOn() {
    EXPECT_EQ(session.Play("paste F_Tessoro.TextF1_cutoff \"64\""),
              Lines{"midiOutLongMsg F0 3E 10 00 20 00 00 4E 40 F7"});
    EXPECT_EQ(session.Play("close F_Tessoro"),
              (Lines{"midiOutClose", "unload F_Tessoro", "end closed"}));
  }

  const std::string askedToOverwrite =
      "MsgBox 36 \"Confirm file overwrite\" \"File already exists! Are you sure you want to "
      "override it?\" -> Yes";

  const FreshDirectory directory;
  TracedSession session{directory.Path().string()};
};

TEST_F(RealFiles, ANameThatIsTooLong) {
  Start();
  EXPECT_EQ(Load(LongName), Lines{RefusedBox(LongName)});
  EXPECT_EQ(Save(LongName), Lines{RefusedBox(LongName + ".tss")});
  ExpectThatItGoesOn();
}

TEST_F(RealFiles, AFolderOfTheSettingsWhoseNameIsTooLong) {
  Start("/" + LongName);
  EXPECT_EQ(BoxesOf("menu Menu_OpenSound"), Lines{FailureBox("Error writing/reading file: ", 76)});
  session.Play("close F_FileIO");
  ExpectThatItGoesOn();
}

TEST_F(RealFiles, ADriveOfTheSettingsThatIsNoDrive) {
  Start(LongName);
  EXPECT_EQ(BoxesOf("menu Menu_OpenSound"),
            Lines{BoxLine(48, "Device Error",
                          "The selected drive could not be found. (Maybe you removed the "
                          "disk?)\n\rInsert the disk or select a different drive.")});
  session.Play("close F_FileIO");
  ExpectThatItGoesOn();
}

TEST_F(RealFiles, AFolderInThePlaceOfASound) {
  Start();
  fs::create_directory("bass.tss");
  EXPECT_EQ(Load("bass.tss"), Lines{RefusedBox("bass.tss")});
  EXPECT_EQ(Save("bass"), Lines{RefusedBox("bass.tss")});
  EXPECT_TRUE(fs::is_directory("bass.tss"));
  ExpectThatItGoesOn();
}

TEST_F(RealFiles, APipeInThePlaceOfASoundKeepsNobodyWaiting) {
  Start();
  ASSERT_EQ(mkfifo("bass.tss", 0600), 0);
  ASSERT_EQ(mkfifo("dump.syx", 0600), 0);
  EXPECT_EQ(Load("bass.tss"), Lines{RefusedBox("bass.tss")});
  EXPECT_EQ(Load("dump.syx"), Lines{RefusedBox("dump.syx")});
  EXPECT_EQ(Save("bass"), Lines{RefusedBox("bass.tss")});
  ExpectThatItGoesOn();
}

TEST_F(RealFiles, ALinkThatLeadsToItself) {
  Start();
  fs::create_symlink("bass.tss", "bass.tss");
  EXPECT_EQ(Load("bass.tss"), Lines{RefusedBox("bass.tss")});
  EXPECT_EQ(Save("bass"), Lines{RefusedBox("bass.tss")});
  ExpectThatItGoesOn();
}

TEST_F(RealFiles, ADeviceThatTakesNothing) {
  Start();
  fs::create_symlink("/dev/full", "bass.tss");
  EXPECT_EQ(Save("bass"), (Lines{askedToOverwrite, RefusedBox("bass.tss")}));
  ExpectThatItGoesOn();
}

TEST_F(RealFiles, DevicesAreNotReadForEver) {
  Start();
  for (const char *const device : {"full", "zero", "null"}) {
    fs::create_symlink(std::string("/dev/") + device, std::string(device) + ".tss");
    EXPECT_EQ(Load(std::string(device) + ".tss"), Lines{RefusedBox(std::string(device) + ".tss")});
  }
  ExpectThatItGoesOn();
}

TEST_F(RealFiles, AFolderThatGoesBehindTheForm) {
  Start();
  fs::create_directory("sounds");
  session.Play("menu Menu_OpenSound");
  session.Play("choose F_FileIO.Dir1 " + QuotedText((directory.Path() / "sounds").string()));
  session.Play("paste F_FileIO.TextFilename \"bass.tss\"");
  fs::remove("sounds");
  EXPECT_EQ(
      BoxesOf("click F_FileIO.C_File"),
      Lines{FailureBox(
          "Error writing/reading file: " + (directory.Path() / "sounds/bass.tss").string(), 76)});
  session.Play("close F_FileIO");
  ExpectThatItGoesOn();
}

TEST_F(RealFiles, TheProgramsOwnFolderGoesMeanwhile) {
  Start();
  fs::remove_all(directory.Path());
  session.Play("menu Menu_OpenSound");
  session.Play("close F_FileIO");
  EXPECT_EQ(session.Play("close F_Tessoro"),
            (Lines{"midiOutClose", FailureBox("Error writing INI file.", 76), "unload F_Tessoro",
                   "end closed"}));
}

// What stands in the place of the settings file, as the test is called.
class InPlaceOfTheSettings : public RealFiles, public testing::WithParamInterface<const char *> {
protected:
  void Put(const std::string &kind) {
    if (kind == "folder")
      fs::create_directory("Tessoro.ini");
    else if (kind == "pipe")
      ASSERT_EQ(mkfifo("Tessoro.ini", 0600), 0);
    else if (kind == "circle")
      fs::create_symlink("Tessoro.ini", "Tessoro.ini");
    else
      fs::create_symlink("/dev/full", "Tessoro.ini");
  }
};

TEST_P(InPlaceOfTheSettings, IsToldAtTheStartAndAtTheStop) {
  Put(GetParam());
  EXPECT_EQ(session.Play("start"),
            (Lines{"load F_Tessoro", FailureBox("Error loading INI", 75), "show F_Tessoro"}));
  EXPECT_EQ(session.Play("close F_Tessoro"),
            (Lines{FailureBox("Error writing INI file.", 75), "unload F_Tessoro", "end closed"}));
  EXPECT_FALSE(fs::is_regular_file(fs::symlink_status("Tessoro.ini")));
}

INSTANTIATE_TEST_SUITE_P(RealFiles, InPlaceOfTheSettings,
                         testing::Values("folder", "pipe", "circle", "full"),
                         [](const auto &kind) { return std::string(kind.param); });

} // namespace
} // namespace Tessoro::Tests
