#include "tests/unit/ControlFixture.hpp"

namespace Tessoro {
namespace {

using testing::ElementsAre;

class TextBoxTest : public ControlFixture {
protected:
  TextBoxTest() {
    form.Box.onChange = [this] { seen.push_back(form.Box.Text()); };
  }

  std::vector<std::string> seen;
};

TEST_F(TextBoxTest, ADifferentTextRaisesChangeBeforeTheWriteReturns) {
  form.Box.SetText("64");
  EXPECT_THAT(seen, ElementsAre("64"));
  EXPECT_EQ(ChangesOf(form.Box, Property::Text), 1);
}

TEST_F(TextBoxTest, TheSameTextRaisesNothing) {
  form.Box.SetText("?");
  EXPECT_TRUE(seen.empty());
  EXPECT_EQ(ChangesOf(form.Box, Property::Text), 0);
}

TEST_F(TextBoxTest, TextsAreComparedCharacterByCharacter) {
  form.Box.SetText("7");
  form.Box.SetText("07");
  form.Box.SetText("7 ");
  EXPECT_THAT(seen, ElementsAre("7", "07", "7 "));
}

TEST_F(TextBoxTest, AWriteInsideTheHandlerRunsTheHandlerAgainAndThenGoesOn) {
  std::vector<std::string> order;
  form.Box.onChange = [&] {
    order.push_back("in " + form.Box.Text());
    if (form.Box.Text() == "200")
      form.Box.SetText("127");
    order.push_back("out " + form.Box.Text());
  };
  form.Box.SetText("200");
  EXPECT_THAT(order, ElementsAre("in 200", "in 127", "out 127", "out 127"));
}

TEST_F(TextBoxTest, TypingRaisesChangeAtEachKey) {
  form.Box.SetText("");
  seen.clear();
  EXPECT_EQ(form.Box.UserType("127"), Reach::Done);
  EXPECT_THAT(seen, ElementsAre("1", "12", "127"));
}

TEST_F(TextBoxTest, TypingGoesOnBehindWhatAHandlerMadeOfTheText) {
  form.Box.onChange = [this] {
    if (form.Box.Text() == "x")
      form.Box.SetText("0");
  };
  form.Box.SetText("");
  form.Box.UserType("x5");
  EXPECT_EQ(form.Box.Text(), "05");
}

TEST_F(TextBoxTest, TypingStopsWhereAHandlerEndsTheProgram) {
  form.Box.onChange = [this] {
    seen.push_back(form.Box.Text());
    throw Failure(FailureCode::TypeMismatch);
  };
  form.Box.SetEnabled(true);
  form.Box.UserType("ab");
  EXPECT_THAT(seen, ElementsAre("?a"));
  EXPECT_TRUE(run.app.HasEnded());
}

TEST_F(TextBoxTest, TypingStopsWhereAHandlerTakesTheBoxAway) {
  form.Box.onChange = [this] { form.Box.SetEnabled(false); };
  EXPECT_EQ(form.Box.UserType("ab"), Reach::Disabled);
  EXPECT_EQ(form.Box.Text(), "?a");
}

TEST_F(TextBoxTest, ErasingAndPastingAreOneChange) {
  form.Box.UserErase();
  form.Box.UserEdit("a long text");
  EXPECT_THAT(seen, ElementsAre("", "a long text"));
}

TEST_F(TextBoxTest, AShortBoxCutsWhatCodeAndUserGiveIt) {
  form.ShortBox.SetText("123456");
  EXPECT_EQ(form.ShortBox.Text(), "1234");
  form.ShortBox.UserEdit("abcdef");
  EXPECT_EQ(form.ShortBox.Text(), "abcd");
}

TEST_F(TextBoxTest, TellsAFaceHowMuchItTakesAndWhatAScreenReaderSays) {
  EXPECT_EQ(form.ShortBox.MaxLength(), 4U);
  EXPECT_EQ(form.Box.MaxLength(), 0U) << "no limit";
  EXPECT_EQ(form.Box.Says(), "Box of the form");
}

TEST_F(TextBoxTest, ATextThatIsTheSameWhenCutRaisesNothing) {
  form.ShortBox.SetText("1234");
  int changes = 0;
  form.ShortBox.onChange = [&changes] { ++changes; };
  form.ShortBox.UserType("5");
  EXPECT_EQ(changes, 0);
}

TEST_F(TextBoxTest, ADisabledBoxAnswersToCodeButNotToTheUser) {
  int changes = 0;
  form.ClosedBox.onChange = [&changes] { ++changes; };
  EXPECT_EQ(form.ClosedBox.UserType("1"), Reach::Disabled);
  EXPECT_EQ(form.ClosedBox.UserDblClick(), Reach::Disabled);
  EXPECT_EQ(changes, 0);
  form.ClosedBox.SetText("1");
  EXPECT_EQ(changes, 1);
}

TEST_F(TextBoxTest, ABoxWithoutWidthCanNotBeSeen) {
  EXPECT_EQ(form.NoWidthBox.UserType("1"), Reach::Hidden);
  form.NoWidthBox.SetText("1");
  EXPECT_EQ(form.NoWidthBox.Text(), "1");
}

TEST_F(TextBoxTest, ABoxMadeDisabledBlendsIntoTheForm) {
  EXPECT_EQ(form.Box.BackColor(), Colors::Navy);
  EXPECT_EQ(form.ClosedBox.BackColor(), Colors::Amber);
  form.ClosedBox.SetEnabled(true);
  EXPECT_EQ(form.ClosedBox.BackColor(), Colors::Amber);
}

TEST_F(TextBoxTest, ClicksAndKeysReachTheirHandlers) {
  std::vector<std::string> events;
  form.Box.onClick = [&] { events.emplace_back("click"); };
  form.Box.onDblClick = [&] { events.emplace_back("double click"); };
  form.Box.onKeyPress = [&](int code) { events.push_back("key " + std::to_string(code)); };
  form.Box.UserClick();
  form.Box.UserDblClick();
  form.Box.UserKeyPress(13);
  EXPECT_THAT(events, ElementsAre("click", "double click", "key 13"));
}

TEST_F(TextBoxTest, EventsWithoutAHandlerDoNothing) {
  EXPECT_EQ(form.ShortBox.UserClick(), Reach::Done);
  EXPECT_EQ(form.ShortBox.UserDblClick(), Reach::Done);
  EXPECT_EQ(form.ShortBox.UserKeyPress(13), Reach::Done);
  EXPECT_EQ(form.ShortBox.UserType("1"), Reach::Done);
  EXPECT_FALSE(run.app.HasEnded());
}

TEST_F(TextBoxTest, ALoadTakesItBackToItsDesignInSilence) {
  form.Box.SetText("64");
  form.Box.SetEnabled(false);
  form.Unload();
  seen.clear();
  form.Load();
  EXPECT_EQ(form.Box.Text(), "?");
  EXPECT_TRUE(form.Box.Enabled());
  EXPECT_TRUE(seen.empty());
}

} // namespace
} // namespace Tessoro
