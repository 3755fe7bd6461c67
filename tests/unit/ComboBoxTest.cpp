#include "tests/unit/ControlFixture.hpp"

namespace Tessoro {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ComboBoxTest : public ControlFixture {
protected:
  ComboBoxTest() {
    form.Combo.onChange = [this] { Note("change"); };
    form.Combo.onClick = [this] { Note("click"); };
  }

  void Note(const std::string &event) {
    events.push_back(event + " " + std::to_string(form.Combo.ListIndex()) + " " +
                     form.Combo.Text());
  }

  std::vector<std::string> events;
};

TEST_F(ComboBoxTest, BeginsWithAQuestionMarkThatIsNoItem) {
  EXPECT_EQ(form.Combo.Text(), "?");
  EXPECT_EQ(form.Combo.ListIndex(), -1);
  EXPECT_THAT(form.Combo.List(), ElementsAre("apple", "pear", "plum"));
}

TEST_F(ComboBoxTest, WritingTheIndexMakesTheTextFollowAndRaisesClickAlone) {
  form.Combo.SetListIndex(1);
  EXPECT_THAT(events, ElementsAre("click 1 pear"));
}

TEST_F(ComboBoxTest, WritingTheIndexItHasRaisesNothing) {
  form.Combo.SetListIndex(1);
  events.clear();
  form.Combo.SetListIndex(1);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(ComboBoxTest, WritingTheTextMakesTheIndexFollowAndRaisesChangeAlone) {
  form.Combo.SetText("plum");
  form.Combo.SetText("cherry");
  EXPECT_THAT(events, ElementsAre("change 2 plum", "change -1 cherry"));
}

TEST_F(ComboBoxTest, WritingTheTextItHasRaisesNothing) {
  form.Combo.SetText("?");
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(ComboBoxTest, ItemsAreFoundByExactCaseAndBlanks) {
  form.Combo.SetText("Plum");
  EXPECT_EQ(form.Combo.ListIndex(), -1);
  form.Combo.SetText("plum ");
  EXPECT_EQ(form.Combo.ListIndex(), -1);
}

TEST_F(ComboBoxTest, AnIndexOfMinusOneEmptiesTheText) {
  form.Combo.SetListIndex(2);
  events.clear();
  form.Combo.SetListIndex(-1);
  EXPECT_THAT(events, ElementsAre("click -1 "));
}

TEST_F(ComboBoxTest, MinusOneEmptiesATextThatIsNoItemInSilence) {
  form.Combo.SetListIndex(-1);
  EXPECT_EQ(form.Combo.Text(), "");
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(ComboBoxTest, AnIndexOutsideTheListFailsAndChangesNothing) {
  EXPECT_EQ(FailureOf([this] { form.Combo.SetListIndex(3); }), 380);
  EXPECT_EQ(FailureOf([this] { form.Combo.SetListIndex(-2); }), 380);
  EXPECT_EQ(form.Combo.Text(), "?");
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(ComboBoxTest, AUserPickingTheSelectedItemRaisesClickAllTheSame) {
  form.Combo.UserSelect(0);
  form.Combo.UserSelect(0);
  EXPECT_THAT(events, ElementsAre("click 0 apple", "click 0 apple"));
}

TEST_F(ComboBoxTest, TypingRaisesChangeAtEachKeyAndFindsItems) {
  form.Combo.UserErase();
  form.Combo.UserType("pear");
  EXPECT_THAT(events, ElementsAre("change -1 ", "change -1 p", "change -1 pe", "change -1 pea",
                                  "change 1 pear"));
}

TEST_F(ComboBoxTest, AddedItemsCanBeSelected) {
  form.Combo.AddItem("fig");
  EXPECT_EQ(ChangesOf(form.Combo, Property::Items), 1);
  EXPECT_TRUE(form.Combo.HasItem(3));
  EXPECT_FALSE(form.Combo.HasItem(4));
  form.Combo.SetListIndex(3);
  EXPECT_THAT(events, ElementsAre("click 3 fig"));
}

TEST_F(ComboBoxTest, AddingAnItemNeitherSelectsItNorRaisesAnything) {
  form.Combo.SetText("fig");
  events.clear();
  form.Combo.AddItem("fig");
  EXPECT_EQ(form.Combo.ListIndex(), -1);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(ComboBoxTest, ALoadTakesAwayTheAddedItemsAndTheSelection) {
  form.Combo.AddItem("fig");
  form.Combo.SetListIndex(3);
  form.Unload();
  events.clear();
  form.Load();
  EXPECT_THAT(form.Combo.List(), ElementsAre("apple", "pear", "plum"));
  EXPECT_EQ(form.Combo.Text(), "?");
  EXPECT_EQ(form.Combo.ListIndex(), -1);
  EXPECT_THAT(events, IsEmpty());
}

TEST_F(ComboBoxTest, OneDeclaredDisabledBlendsIntoTheForm) {
  EXPECT_EQ(form.Combo.BackColor(), Colors::Navy);
  EXPECT_EQ(form.ClosedCombo.BackColor(), Colors::Amber);
  form.ClosedCombo.SetEnabled(true);
  EXPECT_EQ(form.ClosedCombo.BackColor(), Colors::Amber);
}

TEST_F(ComboBoxTest, ADisabledListTakesNoKey) {
  EXPECT_EQ(form.ClosedCombo.UserType("ab"), Reach::Disabled);
  EXPECT_EQ(form.ClosedCombo.Text(), "?");
}

TEST_F(ComboBoxTest, TypingStopsWhereTheListGoesOutOfReach) {
  form.Combo.SetText("");
  form.Combo.onChange = [this] { form.Combo.SetEnabled(form.Combo.Text().size() < 2); };
  EXPECT_EQ(form.Combo.UserType("abcd"), Reach::Disabled);
  EXPECT_EQ(form.Combo.Text(), "ab");
}

TEST_F(ComboBoxTest, TypingStopsWhereTheProgramEnds) {
  form.Combo.SetText("");
  form.Combo.onChange = [] { throw Failure(FailureCode::TypeMismatch); };
  form.Combo.UserType("abc");
  EXPECT_TRUE(run.app.HasEnded());
  EXPECT_EQ(form.Combo.Text(), "a");
}

} // namespace
} // namespace Tessoro
