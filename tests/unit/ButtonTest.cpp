#include "tests/unit/ControlFixture.hpp"

namespace Tessoro {
namespace {

using testing::ElementsAre;

class CheckBoxTest : public ControlFixture {
protected:
  CheckBoxTest() {
    form.Check.onClick = [this] { values.push_back(form.Check.Value()); };
  }

  std::vector<int> values;
};

TEST_F(CheckBoxTest, OnlyADifferentValueRaisesClick) {
  form.Check.SetValue(0);
  form.Check.SetValue(1);
  form.Check.SetValue(1);
  EXPECT_THAT(values, ElementsAre(1));
}

TEST_F(CheckBoxTest, AnyOtherValueFailsAndChangesNothing) {
  EXPECT_EQ(FailureOf([this] { form.Check.SetValue(2); }), 380);
  EXPECT_EQ(FailureOf([this] { form.Check.SetValue(-1); }), 380);
  EXPECT_EQ(form.Check.Value(), 0);
  EXPECT_TRUE(values.empty());
}

TEST_F(CheckBoxTest, AUserTogglesIt) {
  form.Check.UserClick();
  form.Check.UserClick();
  EXPECT_THAT(values, ElementsAre(1, 0));
}

TEST_F(CheckBoxTest, ColoursAndCaptionRaiseNoClick) {
  form.Check.SetBackColor(Colors::LitGreen);
  form.Check.SetForeColor(Colors::Grey);
  form.Check.SetCaption("Muted");
  EXPECT_EQ(form.Check.BackColor(), 49152U);
  EXPECT_EQ(form.Check.ForeColor(), 12632256U);
  EXPECT_EQ(form.Check.Caption(), "Muted");
  EXPECT_TRUE(values.empty());
  EXPECT_EQ(ChangesOf(form.Check, Property::BackColor), 1);
  EXPECT_EQ(ChangesOf(form.Check, Property::ForeColor), 1);
  EXPECT_EQ(ChangesOf(form.Check, Property::Caption), 1);
}

TEST_F(CheckBoxTest, ALoadTakesItBackToItsDesign) {
  form.Check.SetValue(1);
  form.Check.SetBackColor(Colors::Red);
  form.Check.SetForeColor(Colors::Grey);
  form.Check.SetCaption("Muted");
  form.Unload();
  values.clear();
  form.Load();
  EXPECT_EQ(form.Check.Value(), 0);
  EXPECT_EQ(form.Check.BackColor(), Colors::DimGreen);
  EXPECT_EQ(form.Check.ForeColor(), Colors::Black);
  EXPECT_EQ(form.Check.Caption(), "Sync");
  EXPECT_TRUE(values.empty());
}

using CommandButtonTest = ControlFixture;

TEST_F(CommandButtonTest, AClickReachesItsHandlerUnlessItIsDisabled) {
  int clicks = 0;
  form.Button.onClick = [&clicks] { ++clicks; };
  EXPECT_EQ(form.Button.UserClick(), Reach::Done);
  form.Button.SetEnabled(false);
  EXPECT_EQ(form.Button.UserClick(), Reach::Disabled);
  EXPECT_EQ(clicks, 1);
}

TEST_F(CommandButtonTest, ALoadTakesItsCaptionBack) {
  form.Button.SetCaption("&Open");
  EXPECT_EQ(ChangesOf(form.Button, Property::Caption), 1);
  form.Button.SetCaption("&Open");
  EXPECT_EQ(ChangesOf(form.Button, Property::Caption), 1);
  form.Unload();
  form.Load();
  EXPECT_EQ(form.Button.Caption(), "&Press");
}

TEST_F(CheckBoxTest, AColourHas24Bits) {
  for (PropertyEntry &entry : form.Check.Properties()) {
    if (entry.name != "BackColor" && entry.name != "ForeColor")
      continue;
    entry.set(16777215.0);
    EXPECT_EQ(entry.get(), Value(16777215.0)) << entry.name;
    EXPECT_EQ(FailureOf([&] { entry.set(16777216.0); }), 380) << entry.name;
    EXPECT_EQ(FailureOf([&] { entry.set(-1.0); }), 380) << entry.name;
  }
}

TEST_F(CommandButtonTest, ControlsThatNobodyListensToTakeEachAct) {
  TestForm silent(run.app);
  silent.Show();
  EXPECT_EQ(silent.Button.UserClick(), Reach::Done);
  EXPECT_EQ(silent.Check.UserClick(), Reach::Done);
  EXPECT_EQ(silent.Ground.UserClick(), Reach::Done);
  silent.Ticker.Tick();
  EXPECT_EQ(silent.Check.Value(), 1);
  EXPECT_FALSE(run.app.HasEnded());
}

} // namespace
} // namespace Tessoro
