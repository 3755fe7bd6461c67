#include "tests/support/TestRun.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Tessoro {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BoxFamiliesTest : public testing::Test {
protected:
  BoxFamiliesTest() { run.StartWithOpenPorts(); }

  // What is sent when code writes the texts one after the other.
  std::vector<std::string> SentBy(TextBox &box, std::initializer_list<const char *> texts) {
    run.midi.messages.clear();
    for (const char *text : texts)
      box.SetText(text);
    return run.midi.messages;
  }

  static std::string Cutoff(int value) { return ParameterMessage(0, 78, value); }
  static std::string Pan(int value) { return ParameterMessage(0, 93, value); }

  TestRun run;
  F_Tessoro &form = run.app.F_Tessoro;
};

TEST_F(BoxFamiliesTest, AnEmptiedBoxStaysEmptyAndSendsNothing) {
  EXPECT_THAT(SentBy(form.TextF1_cutoff, {"", "5"}), ElementsAre(Cutoff(5)));
  EXPECT_THAT(SentBy(form.TextF1_pan, {"", "5"}), ElementsAre(Pan(69)));
}

TEST_F(BoxFamiliesTest, ALoneMinusBeginsANumberInABipolarBoxOnly) {
  EXPECT_THAT(SentBy(form.TextF1_pan, {"-", "-3"}), ElementsAre(Pan(61)));
  EXPECT_THAT(SentBy(form.TextF1_cutoff, {"-"}), ElementsAre(Cutoff(0), Cutoff(0)));
  EXPECT_EQ(form.TextF1_cutoff.Text(), "0");
}

TEST_F(BoxFamiliesTest, LettersAloneBecomeZeroAndGoOutTwice) {
  EXPECT_THAT(SentBy(form.TextF1_cutoff, {"abc"}), ElementsAre(Cutoff(0), Cutoff(0)));
  EXPECT_THAT(SentBy(form.TextF1_pan, {"abc"}), ElementsAre(Pan(64), Pan(64)));
}

TEST_F(BoxFamiliesTest, AZeroInItsPlainFormGoesOutOnce) {
  EXPECT_THAT(SentBy(form.TextF1_cutoff, {"0"}), ElementsAre(Cutoff(0)));
  EXPECT_THAT(SentBy(form.TextF1_pan, {"0"}), ElementsAre(Pan(64)));
}

TEST_F(BoxFamiliesTest, FractionsRoundToTheEvenNumberAndStayInTheBox) {
  EXPECT_THAT(SentBy(form.TextF1_cutoff, {"12.5", "13.5"}), ElementsAre(Cutoff(12), Cutoff(14)));
  EXPECT_THAT(SentBy(form.TextF1_pan, {"1.5", "2.5"}), ElementsAre(Pan(66), Pan(66)));
  EXPECT_EQ(form.TextF1_pan.Text(), "2.5");
}

TEST_F(BoxFamiliesTest, WritingWhatTheBoxShowsSendsNothing) {
  SentBy(form.TextF1_cutoff, {"64"});
  EXPECT_THAT(SentBy(form.TextF1_cutoff, {"64"}), IsEmpty());
}

TEST_F(BoxFamiliesTest, ANumberInAnotherFormStaysUnlessABarRewritesIt) {
  EXPECT_THAT(SentBy(form.TextF1_cutoff, {"007"}), ElementsAre(Cutoff(7)));
  EXPECT_EQ(form.TextF1_cutoff.Text(), "007");
  EXPECT_EQ(SentBy(form.TextOSC1semi, {"007"}).size(), 2U);
  EXPECT_EQ(form.TextOSC1semi.Text(), "7");
}

TEST_F(BoxFamiliesTest, TypingSendsEachHalfTypedNumber) {
  form.TextF1_cutoff.UserErase();
  form.TextF1_cutoff.UserType("200");
  EXPECT_THAT(run.midi.messages, ElementsAre(Cutoff(2), Cutoff(20), Cutoff(127), Cutoff(127)));
}

TEST_F(BoxFamiliesTest, LettersBehindDigitsEndTheProgram) {
  form.TextF1_cutoff.UserEdit("12a");
  EXPECT_THAT(run.screen.ends, ElementsAre(ProgramEnd::Failure));
  EXPECT_EQ(run.screen.failure, 13);
}

TEST_F(BoxFamiliesTest, ABarMovedByTheUserSendsOnce) {
  form.HScrollOSC1semi.UserScroll(3);
  EXPECT_EQ(form.TextOSC1semi.Text(), "3");
  EXPECT_THAT(run.midi.messages, ElementsAre(ParameterMessage(0, 2, 67)));
}

TEST_F(BoxFamiliesTest, AnAmplifierBoxMovesItsBarBeforeItSends) {
  form.VScrollAmpVolume.onChange = [this] { EXPECT_THAT(run.midi.messages, IsEmpty()); };
  EXPECT_EQ(SentBy(form.TextAmpVolume, {"90"}).size(), 1U);
  EXPECT_EQ(form.VScrollAmpVolume.Value(), 90);
}

TEST_F(BoxFamiliesTest, ABipolarBoxSendsBeforeItMovesItsBar) {
  form.HScrollOSC1semi.onChange = [this] { EXPECT_EQ(run.midi.messages.size(), 1U); };
  SentBy(form.TextOSC1semi, {"4"});
  EXPECT_EQ(form.HScrollOSC1semi.Value(), 4);
}

TEST_F(BoxFamiliesTest, AControllerBoxSendsItsFractionUnrounded) {
  EXPECT_THAT(SentBy(form.TextOSC1detune, {"1"}), ElementsAre("00411DB0"));
  // The bar then takes the rounded number and writes it back, which sends once more.
  EXPECT_THAT(SentBy(form.TextOSC1detune, {"2.5"}), ElementsAre("00429DB0", "00421DB0"));
  EXPECT_EQ(form.TextOSC1detune.Text(), "2");
}

TEST_F(BoxFamiliesTest, ADoubleClickOnDetuneSendsOnceMore) {
  form.TextOSC1detune.UserDblClick();
  EXPECT_THAT(run.midi.messages, ElementsAre("00401DB0", "00401DB0"));
  run.midi.messages.clear();
  form.TextOSC1detune.UserDblClick();
  EXPECT_THAT(run.midi.messages, ElementsAre("00401DB0"));
}

TEST(BoxFamiliesByLocale, ADecimalCommaIsReadInStrictPlacesOnly) {
  TestRun run(',');
  run.StartWithOpenPorts();
  run.app.F_Tessoro.TextF1_cutoff.SetText("12,5");
  EXPECT_THAT(run.midi.messages, ElementsAre(ParameterMessage(0, 78, 12)));
  run.app.F_Tessoro.TextF1_cutoff.UserEdit("12.5");
  EXPECT_EQ(run.screen.failure, 13);
}

} // namespace
} // namespace Tessoro
