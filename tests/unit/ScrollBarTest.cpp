#include "tests/unit/ControlFixture.hpp"

namespace Tessoro {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ScrollBarTest : public ControlFixture {
protected:
  ScrollBarTest() {
    form.Bar.onChange = [this] { values.push_back(form.Bar.Value()); };
  }

  std::vector<int> values;
};

TEST_F(ScrollBarTest, BeginsAtZeroOrAtItsMinWhereZeroIsOutside) {
  EXPECT_EQ(form.Bar.Value(), 0);
  EXPECT_EQ(form.Upright.Value(), 0);
  EXPECT_EQ(form.HighBar.Value(), 1);
}

TEST_F(ScrollBarTest, OnlyADifferentNumberRaisesChange) {
  form.Bar.SetValue(5);
  form.Bar.SetValue(5);
  form.Bar.SetValue(-12);
  EXPECT_THAT(values, ElementsAre(5, -12));
  EXPECT_EQ(ChangesOf(form.Bar, Property::Value), 2);
}

TEST_F(ScrollBarTest, ANumberOutsideTheLimitsFailsAndChangesNothing) {
  EXPECT_EQ(FailureOf([this] { form.Bar.SetValue(13); }), 380);
  EXPECT_EQ(FailureOf([this] { form.Bar.SetValue(-13); }), 380);
  EXPECT_EQ(form.Bar.Value(), 0);
  EXPECT_THAT(values, IsEmpty());
}

TEST_F(ScrollBarTest, MinMayBeAboveMax) {
  EXPECT_EQ(form.Upright.Min(), 127);
  EXPECT_EQ(form.Upright.Max(), 0);
  form.Upright.SetValue(127);
  EXPECT_EQ(form.Upright.Value(), 127);
  EXPECT_EQ(FailureOf([this] { form.Upright.SetValue(128); }), 380);
  EXPECT_EQ(FailureOf([this] { form.Upright.SetValue(-1); }), 380);
}

TEST_F(ScrollBarTest, LargeChangeIsOneUnlessGiven) { EXPECT_EQ(form.Bar.LargeChange(), 1); }

TEST_F(ScrollBarTest, TheUserMovesIt) {
  EXPECT_EQ(form.Bar.UserScroll(3), Reach::Done);
  EXPECT_EQ(form.Bar.UserScroll(3), Reach::Done);
  EXPECT_THAT(values, ElementsAre(3));
  form.Bar.SetEnabled(false);
  EXPECT_EQ(form.Bar.UserScroll(4), Reach::Disabled);
  EXPECT_EQ(form.Bar.Value(), 3);
}

TEST_F(ScrollBarTest, ABarAndABoxThatWriteEachOtherComeToRest) {
  form.Bar.onChange = [this] { form.Box.SetText(std::to_string(form.Bar.Value())); };
  int sent = 0;
  form.Box.onChange = [this, &sent] {
    ++sent;
    form.Bar.SetValue(std::stoi(form.Box.Text()));
  };
  form.Bar.UserScroll(7);
  EXPECT_EQ(sent, 1);
  form.Box.SetText("007");
  EXPECT_EQ(sent, 2);
  form.Box.SetText("008");
  EXPECT_EQ(sent, 4);
  EXPECT_EQ(form.Box.Text(), "8");
}

TEST_F(ScrollBarTest, ALoadTakesItBackToItsDesign) {
  form.HighBar.SetValue(4);
  form.Unload();
  form.Load();
  EXPECT_EQ(form.HighBar.Value(), 1);
}

} // namespace
} // namespace Tessoro
