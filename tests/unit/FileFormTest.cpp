// F_FileIO on drives and failures that no machine of a test has.
#include "tests/support/TestRun.hpp"

#include <gtest/gtest.h>

namespace Tessoro {
namespace {

class FileFormTest : public testing::Test {
protected:
  FileFormTest() {
    run.files.drives = {"/", "/media/stick"};
    run.files.folders = {{"/", {}}, {"/media/stick", {}}};
    run.StartWithOpenPorts();
  }

  void Open() {
    run.app.F_Tessoro.Menu_OpenSound.UserClick();
    form.TextFilename.UserEdit("bell.tss");
    run.Forget();
  }

  TestRun run;
  F_FileIO &form = run.app.F_FileIO;
};

TEST_F(FileFormTest, AnotherDriveIsAnotherFolder) {
  Open();
  form.Drive1.UserChoose("/media/stick");
  EXPECT_EQ(form.Dir1.Path(), "/media/stick");
  EXPECT_EQ(form.LabelPath.Caption(), "/media/stick/bell.tss");
  EXPECT_EQ(run.app.Module1.SoundFolder, "/media/stick");
  EXPECT_TRUE(run.screen.boxes.empty());
}

TEST_F(FileFormTest, ADriveThatHasGoneIsToldAndTheFolderStays) {
  Open();
  run.files.folders.erase("/media/stick");
  form.Drive1.UserChoose("/media/stick");
  ASSERT_EQ(run.screen.boxes.size(), 1U);
  EXPECT_EQ(run.screen.boxes[0].text, "Path not found");
  EXPECT_EQ(run.screen.boxes[0].title, "Invalid selection /media/stick");
  EXPECT_EQ(run.screen.boxes[0].flags, MsgBoxFlags::Critical);
  EXPECT_EQ(form.Dir1.Path(), "/");
  EXPECT_EQ(form.LabelPath.Caption(), "/bell.tss");
  EXPECT_FALSE(run.app.HasEnded());
}

TEST_F(FileFormTest, OnlyEnterActsInTheNameBox) {
  Open();
  form.TextFilename.UserKeyPress('a');
  EXPECT_TRUE(run.screen.boxes.empty());
  form.TextFilename.UserKeyPress(13);
  EXPECT_EQ(run.screen.boxes.size(), 1U) << "there is no such sound";
}

TEST_F(FileFormTest, AMismatchIsBlamedOnTheFileOnlyWhereItIsRead) {
  run.app.F_Tessoro.InitSnd.UserClick();
  run.app.F_Tessoro.Menu_SaveSound.UserClick();
  form.TextFilename.UserEdit("bell");
  run.Forget();
  run.files.writingFailsWith = FailureCode::TypeMismatch;
  form.C_File.UserClick();
  ASSERT_EQ(run.screen.boxes.size(), 1U);
  EXPECT_EQ(run.screen.boxes[0].text, " 13: Type mismatch");
  EXPECT_EQ(run.screen.boxes[0].title, "Error writing/reading file: /bell.tss");
}

TEST_F(FileFormTest, ATimerThatTicksOnceMoreDoesNothing) {
  run.app.Module1.InfoPopUpStage = 2;
  run.app.F_Tessoro.Timer1.Tick();
  EXPECT_EQ(run.app.Module1.InfoPopUpStage, 2);
  EXPECT_TRUE(run.screen.forms.empty());
}

TEST_F(FileFormTest, AShadowBeyondItsFamilyFails) {
  try {
    run.app.Module1.LfoSpeed[4];
    ADD_FAILURE() << "there are three";
  } catch (const Failure &failure) {
    EXPECT_EQ(failure.Number(), FailureCode::SubscriptOutOfRange);
  }
}

} // namespace
} // namespace Tessoro
