#include "tests/unit/ControlFixture.hpp"

namespace Tessoro {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FormTest : public testing::Test {
protected:
  TestRun run;
  TestForm form{run.app};
};

TEST_F(FormTest, LoadingTellsTheScreenAndThenRunsTheHandler) {
  form.onLoad = [this] { EXPECT_THAT(run.screen.forms, ElementsAre("load TestForm")); };
  form.Load();
  EXPECT_TRUE(form.IsLoaded());
  EXPECT_FALSE(form.IsShown());
}

TEST_F(FormTest, ALoadedFormIsNotLoadedAgain) {
  int loads = 0;
  form.onLoad = [&loads] { ++loads; };
  form.Load();
  form.Load();
  form.Show();
  EXPECT_EQ(loads, 1);
}

TEST_F(FormTest, ShowingLoadsFirst) {
  form.Show();
  form.Show();
  EXPECT_THAT(run.screen.forms, ElementsAre("load TestForm", "show TestForm", "show TestForm"));
}

TEST_F(FormTest, AFormThatUnloadsItselfWhileItLoadsIsNotShown) {
  run.app.F_Midi.Load();
  run.screen.forms.clear();
  form.onLoad = [this] { form.Unload(); };
  form.Show();
  EXPECT_THAT(run.screen.forms, ElementsAre("load TestForm", "unload TestForm"));
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(FormTest, UnloadingRunsTheHandlerAndThenTellsTheScreen) {
  form.Show();
  run.Forget();
  form.onUnload = [this] {
    EXPECT_THAT(run.screen.forms, IsEmpty());
    EXPECT_TRUE(form.IsLoaded());
  };
  form.Unload();
  EXPECT_THAT(run.screen.forms, ElementsAre("unload TestForm"));
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(FormTest, AnUnloadInsideItsOwnHandlerDoesNothing) {
  int unloads = 0;
  form.onUnload = [this, &unloads] {
    ++unloads;
    form.Unload();
  };
  form.Show();
  form.Unload();
  EXPECT_EQ(unloads, 1);
}

TEST_F(FormTest, UnloadingWhatIsNotLoadedDoesNothing) {
  form.Unload();
  EXPECT_THAT(run.screen.forms, IsEmpty());
  EXPECT_FALSE(run.app.HasEnded());
}

TEST_F(FormTest, AFormCanGoInAHandlerOfItsOwnControl) {
  form.Show();
  form.Button.onClick = [this] {
    form.Unload();
    form.Box.SetText("still there");
  };
  EXPECT_EQ(form.Button.UserClick(), Reach::Done);
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_EQ(form.Box.Text(), "still there");
}

TEST_F(FormTest, CodeMayWriteAFormThatHasGone) {
  int changes = 0;
  form.Box.onChange = [&changes] { ++changes; };
  form.Box.SetText("1");
  EXPECT_EQ(changes, 1);
}

TEST_F(FormTest, TheUserReachesNothingOfAFormThatIsNotShown) {
  EXPECT_EQ(form.Box.UserType("1"), Reach::Unloaded);
  EXPECT_EQ(form.UserClick(), Reach::Unloaded);
  form.Load();
  EXPECT_EQ(form.Box.UserType("1"), Reach::Hidden);
  EXPECT_EQ(form.UserClose(), Reach::Hidden);
  EXPECT_EQ(form.Menu_Entry.UserClick(), Reach::Hidden);
  EXPECT_EQ(form.Box.Text(), "?");
}

TEST_F(FormTest, KeysAndClicksReachItsHandlers) {
  std::vector<std::string> events;
  form.onClick = [&] { events.emplace_back("click"); };
  form.onKeyDown = [&](int code) { events.push_back("down " + std::to_string(code)); };
  form.onKeyUp = [&](int code) { events.push_back("up " + std::to_string(code)); };
  form.onKeyPress = [&](int code) { events.push_back("press " + std::to_string(code)); };
  form.Show();
  form.UserClick();
  form.UserKeyDown(16);
  form.UserKeyPress(27);
  form.UserKeyUp(16);
  EXPECT_THAT(events, ElementsAre("click", "down 16", "press 27", "up 16"));
}

TEST_F(FormTest, ALoadTakesItsCaptionBack) {
  form.Show();
  form.SetCaption("Another");
  form.SetCaption("Another");
  EXPECT_THAT(run.screen.forms, ElementsAre("load TestForm", "show TestForm", "caption TestForm"));
  form.Unload();
  form.Load();
  EXPECT_EQ(form.Caption(), "A form");
}

TEST_F(FormTest, ControlsAreFoundByTheirNames) {
  EXPECT_EQ(form.FindControl("Box"), &form.Box);
  EXPECT_EQ(form.FindControl("box"), nullptr);
  EXPECT_EQ(run.app.FindForm("TestForm"), &form);
  EXPECT_EQ(run.app.FindForm("NoForm"), nullptr);
}

TEST_F(FormTest, TheProgramEndsWithTheLastLoadedForm) {
  form.Show();
  run.app.F_Midi.Load();
  form.Unload();
  EXPECT_THAT(run.screen.ends, IsEmpty());
  run.app.F_Midi.Unload();
  EXPECT_THAT(run.screen.ends, ElementsAre(ProgramEnd::Closed));
}

TEST_F(FormTest, AnUntrappedFailureEndsTheProgramAtItsEdge) {
  form.Show();
  form.Box.onChange = [] { throw Failure(FailureCode::TypeMismatch); };
  form.Box.UserType("1");
  EXPECT_THAT(run.screen.ends, ElementsAre(ProgramEnd::Failure));
  EXPECT_EQ(run.screen.failure, 13);
}

TEST_F(FormTest, NothingHappensAfterTheEnd) {
  form.Show();
  run.app.Quit();
  form.UserClick();
  form.Box.UserType("1");
  run.app.Quit();
  EXPECT_EQ(form.Box.Text(), "?");
  EXPECT_THAT(run.screen.ends, ElementsAre(ProgramEnd::Quit));
}

TEST_F(FormTest, TheClickThatFailsIsTheLastOne) {
  int clicks = 0;
  form.onClick = [&clicks] {
    ++clicks;
    throw Failure(FailureCode::TypeMismatch);
  };
  form.Show();
  form.UserClick();
  form.UserClick();
  EXPECT_EQ(clicks, 1);
  EXPECT_THAT(run.screen.ends, ElementsAre(ProgramEnd::Failure));
}

TEST_F(FormTest, QuittingRunsNoUnload) {
  int unloads = 0;
  form.onUnload = [&unloads] { ++unloads; };
  form.Show();
  run.app.Quit();
  EXPECT_EQ(unloads, 0);
  EXPECT_TRUE(run.app.HasEnded());
}

TEST_F(FormTest, OnlyTheMainFormOfTheEditorPreviewsKeys) {
  const TestRun other;
  for (const Form *each : other.app.Forms())
    EXPECT_EQ(each->Design().keyPreview, each->Name() == "F_Tessoro") << each->Name();
}

TEST_F(FormTest, TwoRunsLiveSideBySide) {
  TestRun other;
  run.StartWithOpenPorts();
  other.StartWithOpenPorts();
  run.app.F_Tessoro.TextF1_cutoff.SetText("64");
  EXPECT_EQ(run.midi.messages.size(), 1U);
  EXPECT_THAT(other.midi.messages, IsEmpty());
  EXPECT_EQ(other.app.F_Tessoro.TextF1_cutoff.Text(), "?");
}

TEST_F(FormTest, EveryPropertyTakesWhatItGives) {
  for (Control *control : form.Controls())
    for (const PropertyEntry &entry : control->Properties()) {
      const Value value = entry.get();
      if (entry.set)
        entry.set(value);
      EXPECT_EQ(entry.get(), value) << control->Name() << "." << entry.name;
    }
}

} // namespace
} // namespace Tessoro
