#include "tests/unit/ControlFixture.hpp"

namespace Tessoro {
namespace {

class MenuTest : public ControlFixture {
protected:
  MenuTest() {
    form.Menu_Entry.onClick = [this] { ++clicks; };
    form.Menu_Closed.onClick = [this] { ++clicks; };
  }

  int clicks = 0;
};

TEST_F(MenuTest, AClickReachesTheEntry) {
  EXPECT_EQ(form.Menu_Entry.UserClick(), Reach::Done);
  EXPECT_EQ(clicks, 1);
}

TEST_F(MenuTest, ADisabledEntryDoesNothingUntilCodeEnablesIt) {
  EXPECT_EQ(form.Menu_Closed.UserClick(), Reach::Disabled);
  EXPECT_EQ(clicks, 0);
  form.Menu_Closed.SetEnabled(true);
  EXPECT_EQ(form.Menu_Closed.UserClick(), Reach::Done);
  EXPECT_EQ(clicks, 1);
}

TEST_F(MenuTest, AHiddenEntryIsOutOfReach) {
  form.Menu_Entry.SetVisible(false);
  form.Menu_Entry.SetEnabled(false);
  EXPECT_EQ(form.Menu_Entry.UserClick(), Reach::Hidden);
}

TEST_F(MenuTest, AnEntryIsOutOfReachWithItsTitle) {
  form.Menu_Top.SetEnabled(false);
  EXPECT_EQ(form.Menu_Entry.UserClick(), Reach::Disabled);
  form.Menu_Top.SetVisible(false);
  EXPECT_EQ(form.Menu_Entry.UserClick(), Reach::Hidden);
}

TEST_F(MenuTest, AShortcutFindsItsEntry) {
  EXPECT_EQ(FindShortcut(form, "Ctrl+E"), &form.Menu_Entry);
  EXPECT_EQ(FindShortcut(form, "F9"), &form.Menu_Closed);
  EXPECT_EQ(FindShortcut(form, "Ctrl+F"), nullptr);
}

TEST_F(MenuTest, ALineOfDashIsASeparator) {
  EXPECT_TRUE(form.Menu_Line.IsSeparator());
  EXPECT_FALSE(form.Menu_Entry.IsSeparator());
  EXPECT_EQ(form.Menu_Entry.Parent(), &form.Menu_Top);
}

} // namespace
} // namespace Tessoro
