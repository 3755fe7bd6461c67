#include "surface/Controls.hpp"
#include "surface/Form.hpp"
#include "tests/support/TestRun.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace Tessoro {
namespace {

using testing::ElementsAre;

class FileForm : public Form {
public:
  explicit FileForm(Application &app) : Form(app, "FileForm", {}) {}

  DriveListBox Drive1{*this, "Drive1", {0, 0, 900, 300}};
  DirListBox Dir1{*this, "Dir1", {0, 0, 900, 900}};
  FileListBox File1{*this, "File1", {0, 0, 900, 900}, {.pattern = "*.tss"}};
};

class FileListsTest : public testing::Test {
protected:
  FileListsTest() {
    run.files.drives = {"/", "/media/stick"};
    run.files.folders = {{"/", {"home", "media"}}, {"/home", {"ann"}},  {"/home/ann", {"a", "b"}},
                         {"/home/ann/a", {}},      {"/home/ann/b", {}}, {"/media/stick", {}}};
    run.files.contents = {{"/home/ann/bass.tss", ""},
                          {"/home/ann/lead.tss", ""},
                          {"/home/ann/notes.txt", ""},
                          {"/home/ann/a/pad.tss", ""}};
    run.files.workingDirectory = "/home/ann";
    form.Show();
  }

  template <typename Act> static int FailureOf(Act &&act) {
    try {
      act();
    } catch (const Failure &failure) {
      return failure.Number();
    }
    return 0;
  }

  static PropertyEntry Named(Control &control, std::string_view name) {
    const PropertyEntries entries = control.Properties();
    return *std::ranges::find(entries, name, &PropertyEntry::name);
  }
  static std::string Read(Control &control, std::string_view name) {
    return std::get<std::string>(Named(control, name).get());
  }
  static void Write(Control &control, std::string_view name, const std::string &text) {
    Named(control, name).set(text);
  }

  TestRun run;
  FileForm form{run.app};
};

TEST_F(FileListsTest, AllBeginInTheWorkingDirectory) {
  EXPECT_EQ(form.Drive1.Drive(), "/");
  EXPECT_EQ(form.Dir1.Path(), "/home/ann");
  EXPECT_EQ(form.File1.Path(), "/home/ann");
  EXPECT_EQ(form.File1.FileName(), "");
}

TEST_F(FileListsTest, TheDrivesAreThoseOfTheMachine) {
  EXPECT_THAT(form.Drive1.List(), ElementsAre("/", "/media/stick"));
}

TEST_F(FileListsTest, OfDrivesInsideEachOtherTheInnermostCountsWhereverItIsListed) {
  run.files.drives = {"/media/stick", "/"};
  run.files.workingDirectory = "/media/stick";
  FileForm other{run.app};
  other.Show();
  EXPECT_EQ(other.Drive1.Drive(), "/media/stick");
  other.Drive1.SetDrive("/home");
  EXPECT_EQ(other.Drive1.Drive(), "/");
  other.Drive1.SetDrive("/media/stick/sounds");
  EXPECT_EQ(other.Drive1.Drive(), "/media/stick");
}

TEST_F(FileListsTest, DriveAndPathsAreReadAndWrittenByName) {
  Write(form.Drive1, "Drive", "/media/stick/sounds");
  EXPECT_EQ(Read(form.Drive1, "Drive"), "/media/stick");
  Write(form.Dir1, "Path", "/home/ann/a/");
  EXPECT_EQ(Read(form.Dir1, "Path"), "/home/ann/a");
  Write(form.File1, "Path", "/home/ann/a");
  EXPECT_EQ(Read(form.File1, "Path"), "/home/ann/a");
}

TEST_F(FileListsTest, ARelativeFolderIsItsOwnWayDown) {
  run.files.folders["sounds"] = {"old"};
  form.Dir1.SetPath("sounds");
  EXPECT_THAT(form.Dir1.List(), ElementsAre("sounds", "sounds/old"));
  EXPECT_EQ(form.Dir1.AncestorCount(), 1U);
}

TEST_F(FileListsTest, TheRootOfADriveWithALetterKeepsItsSeparator) {
  run.files.separator = '\\';
  run.files.drives = {"C:", "D:"};
  run.files.folders = {{"C:\\", {"Sounds"}}, {"C:\\Sounds", {"Old"}}};
  run.files.workingDirectory = "C:\\Sounds";
  FileForm other{run.app};
  other.Show();
  EXPECT_EQ(other.Drive1.Drive(), "C:");
  EXPECT_THAT(other.Dir1.List(), ElementsAre("C:\\", "C:\\Sounds", "C:\\Sounds\\Old"));
  other.Dir1.SetPath("C:\\");
  EXPECT_EQ(other.Dir1.Path(), "C:\\");
  EXPECT_THAT(other.Dir1.List(), ElementsAre("C:\\", "C:\\Sounds"));
}

TEST_F(FileListsTest, AFolderListShowsTheWayDownAndTheSubfolders) {
  EXPECT_THAT(form.Dir1.List(),
              ElementsAre("/", "/home", "/home/ann", "/home/ann/a", "/home/ann/b"));
  EXPECT_EQ(form.Dir1.AncestorCount(), 3U);
}

TEST_F(FileListsTest, AFileListShowsWhatFitsItsPattern) {
  EXPECT_THAT(form.File1.List(), ElementsAre("bass.tss", "lead.tss"));
}

TEST_F(FileListsTest, AnotherPathRaisesChange) {
  int changes = 0;
  form.Dir1.onChange = [&changes] { ++changes; };
  form.Dir1.SetPath("/home/ann/a");
  form.Dir1.SetPath("/home/ann/a/");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(form.Dir1.Path(), "/home/ann/a");
}

TEST_F(FileListsTest, APathThatIsNoFolderFailsAndChangesNothing) {
  EXPECT_EQ(FailureOf([this] { form.Dir1.SetPath("/nowhere"); }), 76);
  EXPECT_EQ(FailureOf([this] { form.Dir1.SetPath(""); }), 76);
  EXPECT_EQ(FailureOf([this] { form.File1.SetPath("/nowhere"); }), 76);
  EXPECT_EQ(form.Dir1.Path(), "/home/ann");
  EXPECT_EQ(form.File1.Path(), "/home/ann");
}

TEST_F(FileListsTest, AFileListForgetsItsFileWithItsPath) {
  form.File1.UserChoose("lead.tss");
  form.File1.SetPath("/home/ann/a");
  EXPECT_EQ(form.File1.FileName(), "");
  EXPECT_THAT(form.File1.List(), ElementsAre("pad.tss"));
}

TEST_F(FileListsTest, ARefreshForgetsAFileThatHasGone) {
  form.File1.UserChoose("lead.tss");
  form.File1.Refresh();
  EXPECT_EQ(form.File1.FileName(), "lead.tss");
  run.files.contents.erase("/home/ann/lead.tss");
  form.File1.Refresh();
  EXPECT_EQ(form.File1.FileName(), "");
  EXPECT_THAT(form.File1.List(), ElementsAre("bass.tss"));
}

TEST_F(FileListsTest, PickingAFileRaisesClickAlsoOnceMore) {
  int clicks = 0;
  form.File1.onClick = [&clicks] { ++clicks; };
  form.File1.UserChoose("lead.tss");
  form.File1.UserChoose("lead.tss");
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(form.File1.FileName(), "lead.tss");
}

TEST_F(FileListsTest, ADriveTakesAnyPathThatBeginsWithIt) {
  int changes = 0;
  form.Drive1.onChange = [&changes] { ++changes; };
  form.Drive1.SetDrive("/media/stick/sounds");
  EXPECT_EQ(form.Drive1.Drive(), "/media/stick");
  form.Drive1.SetDrive("/home");
  EXPECT_EQ(form.Drive1.Drive(), "/");
  EXPECT_EQ(changes, 2);
}

TEST_F(FileListsTest, TheSameDriveAndTheEmptyTextRaiseNothing) {
  int changes = 0;
  form.Drive1.onChange = [&changes] { ++changes; };
  form.Drive1.SetDrive("/");
  form.Drive1.SetDrive("");
  EXPECT_EQ(changes, 0);
}

TEST_F(FileListsTest, ADriveThatIsNotThereFails) {
  EXPECT_EQ(FailureOf([this] { form.Drive1.SetDrive("c:"); }), 68);
  EXPECT_EQ(form.Drive1.Drive(), "/");
}

TEST_F(FileListsTest, TheUserOpensFoldersAndDrives) {
  form.Dir1.UserChoose("/home");
  EXPECT_EQ(form.Dir1.Path(), "/home");
  form.Drive1.UserChoose("/media/stick");
  EXPECT_EQ(form.Drive1.Drive(), "/media/stick");
  EXPECT_TRUE(form.Drive1.HasDrive("/media/stick"));
  EXPECT_FALSE(form.Drive1.HasDrive("/media"));
}

TEST_F(FileListsTest, ADoubleClickThatNobodyListensToIsTaken) {
  EXPECT_EQ(form.File1.UserDblClick(), Reach::Done);
}

} // namespace
} // namespace Tessoro
