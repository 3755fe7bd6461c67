#include "tests/support/TestRun.hpp"

#include <gtest/gtest.h>

namespace Tessoro {
namespace {

class StartInfoTest : public testing::Test {
protected:
  StartInfoTest() { run.StartWithOpenPorts(); }

  TestRun run;
  F_InfoPopUp &info = run.app.F_InfoPopUp;
};

TEST_F(StartInfoTest, ComesUpAfterHalfASecondAndGoesAfterEight) {
  run.clock.Pass(499);
  EXPECT_FALSE(info.IsShown());
  run.clock.Pass(1);
  EXPECT_TRUE(info.IsShown());
  EXPECT_EQ(info.InfoText.Caption(),
            "Please press the [Init sound] button before you start.\n\r\n\r"
            "(This will override the microQ's current edit buffer)\n\r\n\r"
            "Click anywhere to close this window");
  run.clock.Pass(7999);
  EXPECT_TRUE(info.IsShown());
  run.clock.Pass(1);
  EXPECT_FALSE(info.IsLoaded());
  EXPECT_EQ(run.app.Module1.InfoPopUpStage, 2);
  EXPECT_FALSE(run.app.F_Tessoro.Timer1.Enabled());
}

TEST_F(StartInfoTest, StaysAwayForAnythingButYes) {
  run.app.Module1.ShowInfoPopUp = "yes";
  run.clock.Pass(500);
  EXPECT_FALSE(info.IsLoaded());
  EXPECT_EQ(run.app.Module1.InfoPopUpStage, 1);
  run.clock.Pass(500);
  EXPECT_FALSE(run.app.F_Tessoro.Timer1.Enabled());
}

TEST_F(StartInfoTest, ClosedByTheUserStaysClosed) {
  run.clock.Pass(500);
  info.InfoText.UserClick();
  EXPECT_FALSE(info.IsLoaded());
  run.clock.Pass(8000);
  EXPECT_FALSE(info.IsLoaded());
  EXPECT_EQ(run.app.Module1.ShowInfoPopUp, "Yes");
}

TEST_F(StartInfoTest, AClickOnGroundOrLabelClosesAndTicksNothing) {
  run.clock.Pass(500);
  info.Label1.UserClick();
  EXPECT_FALSE(info.IsLoaded());
  EXPECT_EQ(run.app.Module1.ShowInfoPopUp, "Yes");
  info.Show();
  info.UserClick();
  EXPECT_FALSE(info.IsLoaded());
}

TEST_F(StartInfoTest, TheCheckBoxKeepsItAway) {
  run.clock.Pass(500);
  info.Check1.UserClick();
  EXPECT_FALSE(info.IsLoaded());
  EXPECT_EQ(run.app.Module1.ShowInfoPopUp, "No");
}

} // namespace
} // namespace Tessoro
