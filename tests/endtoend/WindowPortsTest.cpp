// Devices that are plugged in and out while the port form is closed, and while it is open.
#include "tests/endtoend/MachinePorts.hpp"
#include "tests/endtoend/PluggedEditorTest.hpp"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

namespace Tessoro::Tests {
namespace {

using testing::ElementsAre;

constexpr const char *MidiError = "Tessoro"; // the title of its box

class WindowPortsTest : public PluggedEditorTest {
protected:
  void SetUp() override { StartPlugged(); }

  void UnplugSynth() {
    synth.reset();
    LetTheNewsPass();
  }

  void TypeCutoff(const std::string &digit) const {
    editor->MainForm().Type(editor->Design().F_Tessoro.TextF1_cutoff, digit);
  }

  void PlayC1() const { editor->MainForm().Click(editor->Design().F_Tessoro.NoteC1); }

  ShownForm OpenPortForm() const {
    editor->OpenPortFormByMenu();
    return editor->PortForm();
  }

  void ClickClose(const ShownForm &portForm) const {
    portForm.Click(editor->Design().F_Midi.Command1);
  }

  // After they could not be opened when the form was there before.
  void OpenPortsAgain() const {
    editor->OpenPortFormByMenu();
    editor->AnswerBox(MidiError); // of the IN port, which is closed already
    const ShownForm portForm = editor->PortForm();
    ClickClose(portForm);
    portForm.WaitUntilGone();
  }
};

TEST_F(WindowPortsTest, ASynthesizerThatGoesIsToldAtTheNextChangeAndHearsAgainWhenItIsBack) {
  UnplugSynth();
  int changes = 0;
  WaitFor("the box", [&] {
    TypeCutoff(++changes % 2 == 0 ? "6" : "7");
    return editor->ShowsBox(MidiError);
  });
  editor->AnswerBox(MidiError);

  synth = std::make_unique<Synth>("synth");
  EXPECT_TRUE(Eventually([&] {
    PlayC1();
    return synth->Count() > 0;
  }));
  EXPECT_FALSE(editor->ShowsBox(MidiError));
}

TEST_F(WindowPortsTest, ASynthesizerThatCameSinceTheStartIsInTheList) {
  Synth late("late");
  LetTheNewsPass();
  const ShownForm portForm = OpenPortForm();
  portForm.Step(editor->Design().F_Midi.AuswahlMIDIPort, NumberOfOut("late:in") - PlaceOfSynth());
  ClickClose(portForm);
  portForm.WaitUntilGone();
  PlayC1();
  EXPECT_TRUE(Eventually([&] { return late.Count() == 2; }));
  EXPECT_EQ(synth->Count(), 0U);
}

TEST_F(WindowPortsTest, TheListMeansWhatItShowsThoughAnotherHasGone) {
  Synth other("other");
  LetTheNewsPass();
  const int steps = NumberOfOut("other:in") - PlaceOfSynth();
  const ShownForm portForm = OpenPortForm();
  UnplugSynth();
  portForm.Step(editor->Design().F_Midi.AuswahlMIDIPort, steps);
  ClickClose(portForm);
  portForm.WaitUntilGone();
  PlayC1();
  EXPECT_TRUE(Eventually([&] { return other.Count() == 2; }));
}

TEST_F(WindowPortsTest, ASynthesizerThatGoesUnderTheOpenFormIsToldTwiceAndCanBeChosenAgain) {
  const ShownForm portForm = OpenPortForm();
  UnplugSynth();
  ClickClose(portForm);
  editor->AnswerBox(MidiError); // of the OUT port
  editor->AnswerBox(MidiError); // of the connection, which tries it again
  portForm.WaitUntilGone();
  TypeCutoff("6");
  editor->AnswerBox(MidiError);

  synth = std::make_unique<Synth>("synth");
  LetTheNewsPass();
  OpenPortsAgain();
  TypeCutoff("7");
  EXPECT_THAT(Hear(1), ElementsAre(Parameter(78, 7)));
}

TEST_F(WindowPortsTest, AKeyboardThatGoesUnderTheOpenFormIsToldOnceAndTheRestWorks) {
  const ShownForm portForm = OpenPortForm();
  keyboard.reset();
  LetTheNewsPass();
  ClickClose(portForm);
  editor->AnswerBox(MidiError);
  portForm.WaitUntilGone();
  TypeCutoff("6");
  EXPECT_THAT(Hear(1), ElementsAre(Parameter(78, 6)));

  keyboard = std::make_unique<Keyboard>("keyboard");
  LetTheNewsPass();
  OpenPortsAgain();
  keyboard->Play(Note(60, 100));
  EXPECT_THAT(Hear(1), ElementsAre(Note(60, 100)));
}

// They have the settings in common, and the one that is closed last leaves its own.
TEST_F(WindowPortsTest, TwoEditorsOnOneDisplayAndInOneFolderSendToTheirOwnPorts) {
  Synth second("second");
  LetTheNewsPass();
  WindowedEditor other(display, place);
  other.MainForm();
  const int steps = NumberOfOut("second:in") - PlaceOfSynth();
  other.OpenPortFormByMenu();
  const ShownForm portForm = other.PortForm();
  portForm.Step(other.Design().F_Midi.AuswahlMIDIPort, steps);
  ClickClose(portForm);
  portForm.WaitUntilGone();
  const auto type = [](const WindowedEditor &which, const std::string &digit) {
    which.MainForm().Type(which.Design().F_Tessoro.TextF1_cutoff, digit);
  };
  type(*editor, "6");
  type(other, "7");
  editor->MainForm().Type(editor->Design().F_Tessoro.TextF1_reso, "8");
  EXPECT_THAT(Hear(2), ElementsAre(Parameter(78, 6), Parameter(80, 8)));
  EXPECT_TRUE(Eventually([&] { return second.Count() > 0; }));
  EXPECT_THAT(second.Messages(), ElementsAre(Parameter(78, 7)));

  std::string settings = SettingsWithPorts(NumberOfOut("second:in"), PlaceOfKeyboard());
  const std::string notYetUsed = "\"\",\"\"";
  settings.replace(settings.find(notYetUsed), notYetUsed.size(),
                   "\"Tessoro freeware version\",\"1.3\"");
  editor->CloseMainWindow();
  EXPECT_EQ(editor->ExitStatus(), 0);
  type(other, "9");
  EXPECT_TRUE(Eventually([&] { return second.Count() > 1; }));
  other.CloseMainWindow();
  EXPECT_EQ(other.ExitStatus(), 0);
  std::ifstream file(place.Settings(), std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), settings);
}

} // namespace
} // namespace Tessoro::Tests
