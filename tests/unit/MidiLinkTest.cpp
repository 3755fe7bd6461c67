#include "tests/support/TestRun.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Tessoro {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class MidiLinkTest : public testing::Test {
protected:
  MidiLinkTest() { run.StartWithOpenPorts(); }

  Module1 &Globals() { return run.app.Module1; }
  std::vector<std::string> &Messages() { return run.midi.messages; }
  std::vector<std::string> &Calls() { return run.midi.calls; }

  std::vector<std::string> BoxTexts() const {
    std::vector<std::string> texts;
    for (const TestScreen::Box &box : run.screen.boxes)
      texts.push_back(box.text);
    return texts;
  }

  template <typename Act> static int FailureOf(Act &&act) {
    try {
      act();
    } catch (const Failure &failure) {
      return failure.Number();
    }
    return 0;
  }

  TestRun run;
};

std::string ErrorBox(const std::string &error) {
  return "vrn midi out detection:\r\n" + error + "\r\n";
}

TEST_F(MidiLinkTest, ParameterNumbersSplitIntoThreeBlocks) {
  Globals().SendSoundParam(0, 5);
  Globals().SendSoundParam(127, 0);
  Globals().SendSoundParam(128, 127);
  Globals().SendSoundParam(256, 1);
  Globals().SendSoundParam(257, 1);
  Globals().SendSoundParam(363, 65);
  EXPECT_THAT(Messages(), ElementsAre("F0 3E 10 00 20 00 00 00 05 F7", //
                                      "F0 3E 10 00 20 00 00 7F 00 F7", //
                                      "F0 3E 10 00 20 00 01 00 7F F7", //
                                      "F0 3E 10 00 20 00 01 80 01 F7", //
                                      "F0 3E 10 00 20 00 02 00 01 F7", //
                                      "F0 3E 10 00 20 00 02 6A 41 F7"));
}

TEST_F(MidiLinkTest, ANegativeNumberGoesOutAsZero) {
  Globals().SendSoundParam(-1, 9);
  EXPECT_THAT(Messages(), ElementsAre("F0 3E 10 00 20 00 00 00 09 F7"));
}

TEST_F(MidiLinkTest, ANumberWhoseLowPartIsNoByteFailsAndSendsNothing) {
  Globals().SendSoundParam(512, 0);
  EXPECT_EQ(FailureOf([this] { Globals().SendSoundParam(513, 0); }), 5);
  EXPECT_THAT(Messages(), ElementsAre("F0 3E 10 00 20 00 02 FF 00 F7"));
}

TEST_F(MidiLinkTest, AValueOutOfRangeIsReportedAndGoesOutAsZero) {
  Globals().SendSoundParam(78, 128);
  Globals().SendSoundParam(78, -1);
  EXPECT_THAT(Messages(), Each(ParameterMessage(0, 78, 0)));
  ASSERT_EQ(run.screen.boxes.size(), 2U);
  EXPECT_EQ(run.screen.boxes[0].text, "Wrong SysEx value, please report this error!");
  EXPECT_EQ(run.screen.boxes[0].title, "Error - Application will continue");
  EXPECT_EQ(run.screen.boxes[0].flags, 64);
}

TEST_F(MidiLinkTest, ALongMessageIsPreparedSentAndReleasedAsDone) {
  Globals().SendSoundParam(78, 64);
  EXPECT_THAT(Calls(),
              ElementsAre("midiOutPrepareHeader 34", "midiOutLongMsg F0 3E 10 00 20 00 00 4E 40 F7",
                          "midiOutUnprepareHeader 34 flags 1"));
}

TEST_F(MidiLinkTest, AFailedPrepareSendsNothing) {
  run.midi.results["midiOutPrepareHeader"] = 5;
  Globals().SendSoundParam(78, 64);
  EXPECT_THAT(Calls(), ElementsAre("midiOutPrepareHeader 34"));
  EXPECT_THAT(BoxTexts(), ElementsAre(ErrorBox("OUT error 5")));
}

TEST_F(MidiLinkTest, AFailedSendIsReportedAndTheHeaderReleasedAllTheSame) {
  run.midi.results["midiOutLongMsg"] = 67;
  run.midi.results["midiOutUnprepareHeader"] = 65;
  Globals().SendSoundParam(78, 64);
  EXPECT_EQ(Calls().back(), "midiOutUnprepareHeader 34 flags 0");
  EXPECT_THAT(BoxTexts(), ElementsAre(ErrorBox("OUT error 67"), ErrorBox("OUT error 65")));
}

TEST_F(MidiLinkTest, EachSendMarksTheSoundAsChangedAlsoAFailedOne) {
  run.midi.results["midiOutPrepareHeader"] = 5;
  Globals().SoundChanged = 0;
  Globals().SendSoundParam(78, 64);
  EXPECT_EQ(Globals().SoundChanged, 1);
}

TEST_F(MidiLinkTest, ANoteIsOneWordOnTheChosenChannel) {
  Globals().SendNoteOn(36, 100);
  Globals().MidiChannel = 15;
  Globals().SendNoteOn(36, 0);
  EXPECT_THAT(Messages(), ElementsAre("00642490", "0000249F"));
}

TEST_F(MidiLinkTest, AControllerIsOneWordAndMarksTheTitle) {
  Globals().SendController(52, 1.0);
  EXPECT_THAT(Messages(), ElementsAre("000134B0"));
  EXPECT_EQ(run.app.F_Tessoro.Caption(), "Tessoro v1.3.1 - .tss *");
}

TEST_F(MidiLinkTest, AFractionSpillsIntoTheNextByte) {
  Globals().SendController(29, 65.5);
  EXPECT_THAT(Messages(), ElementsAre("00419DB0"));
}

TEST_F(MidiLinkTest, AnEmptyTextSendsNothingAndLeavesTheTitle) {
  Globals().SendController(52, "");
  EXPECT_THAT(Messages(), IsEmpty());
  EXPECT_EQ(run.app.F_Tessoro.Caption(), "Tessoro freeware v1.3.1");
}

TEST_F(MidiLinkTest, ATextIsTakenAsAWholeNumberOrFails) {
  Globals().SendController(67, "1");
  EXPECT_THAT(Messages(), ElementsAre("000143B0"));
  EXPECT_EQ(FailureOf([this] { Globals().SendController(67, "1x"); }), 13);
}

TEST_F(MidiLinkTest, AWordBeyondThirtyTwoBitsFails) {
  EXPECT_EQ(FailureOf([this] { Globals().SendNoteOn(0, 1e6); }), 6);
  EXPECT_EQ(FailureOf([this] { Globals().SendNoteOn(0, -1e6); }), 6);
  EXPECT_THAT(Messages(), IsEmpty());
}

TEST_F(MidiLinkTest, ResultsOfShortMessagesAreIgnored) {
  run.midi.results["midiOutShortMsg"] = 5;
  Globals().SendNoteOn(36, 100);
  Globals().SendController(52, 1.0);
  Globals().SendNoteOffSweep();
  Globals().SendAllNotesOff();
  EXPECT_THAT(run.screen.boxes, IsEmpty());
}

TEST_F(MidiLinkTest, AControllerThatFailsMarksTheTitleAllTheSame) {
  run.midi.results["midiOutShortMsg"] = 5;
  Globals().SendController(52, 1.0);
  EXPECT_EQ(run.app.F_Tessoro.Caption(), "Tessoro v1.3.1 - .tss *");
}

TEST_F(MidiLinkTest, ThePanicSweepIsSixteenTimesTheNotesFromOneUp) {
  Globals().SendNoteOffSweep();
  ASSERT_EQ(Messages().size(), 2032U);
  EXPECT_EQ(Messages().front(), "00000190");
  EXPECT_EQ(Messages()[126], "00007F90");
  EXPECT_EQ(Messages()[127], "00000190");
  EXPECT_EQ(Messages().back(), "00007F90");
  EXPECT_THAT(Messages(), Each(Not("00000090")));
}

TEST_F(MidiLinkTest, AllNotesOffRunsOverIntoAProgramChange) {
  Globals().SendAllNotesOff();
  ASSERT_EQ(Messages().size(), 16U);
  EXPECT_EQ(Messages().front(), "00007BB1");
  EXPECT_EQ(Messages()[14], "00007BBF");
  EXPECT_EQ(Messages().back(), "00007BC0");
}

TEST_F(MidiLinkTest, OpeningOutTakesTheChosenDeviceAndTestsNothing) {
  Globals().MidiOutPort = 3;
  Globals().OpenCloseMidiOut("open");
  EXPECT_THAT(Calls(), ElementsAre("midiOutOpen 3"));
}

TEST_F(MidiLinkTest, PortsAreOpenedWithoutACallback) {
  Globals().OpenCloseMidiOut("open");
  Globals().OpenCloseMidiThru("open");
  EXPECT_THAT(run.midi.constants, ElementsAre("midiOutOpen 1 0 0", "midiInOpen 0 0 0"));
}

TEST_F(MidiLinkTest, AFailedOpenOfOutShowsItsError) {
  Globals().hMidiOut = 0;
  run.midi.results["midiOutOpen"] = 4;
  Globals().OpenCloseMidiOut("open");
  EXPECT_THAT(BoxTexts(), ElementsAre(ErrorBox("OUT error 4")));
  EXPECT_EQ(Globals().hMidiOut, 0U);
}

TEST_F(MidiLinkTest, AnyTextButOpenCloses) {
  Globals().OpenCloseMidiOut("Open");
  EXPECT_THAT(Calls(), ElementsAre("midiOutClose 41"));
  EXPECT_EQ(Globals().hMidiOut, 0U);
}

TEST_F(MidiLinkTest, AnyTextButOpenClosesThru) {
  for (const char *command : {"Open", "", "open "}) {
    Calls().clear();
    Globals().OpenCloseMidiThru(command);
    EXPECT_THAT(Calls(), ElementsAre("midiInStop 42", "midiDisconnect 42 41", "midiInClose 42"))
        << command;
  }
}

TEST_F(MidiLinkTest, OutCountsAsClosedAlsoWhereTheCloseFails) {
  run.midi.results["midiOutClose"] = 1;
  Globals().OpenCloseMidiOut("close");
  Globals().OpenCloseMidiOut("close");
  EXPECT_THAT(Calls(), ElementsAre("midiOutClose 41"));
  EXPECT_THAT(BoxTexts(), ElementsAre(ErrorBox("OUT error 1")));
}

TEST_F(MidiLinkTest, OpeningThruOpensOutFirstWhereNeeded) {
  Globals().OpenCloseMidiOut("close");
  Calls().clear();
  Globals().OpenCloseMidiThru("open");
  EXPECT_THAT(Calls(),
              ElementsAre("midiOutOpen 0", "midiInOpen 0", "midiConnect 42 41", "midiInStart 42"));
}

TEST_F(MidiLinkTest, OpeningThruStopsWhereOutCanNotBeOpened) {
  Globals().OpenCloseMidiOut("close");
  Calls().clear();
  run.midi.results["midiOutOpen"] = 4;
  Globals().OpenCloseMidiThru("open");
  EXPECT_THAT(Calls(), ElementsAre("midiOutOpen 0"));
  EXPECT_THAT(BoxTexts(), ElementsAre(ErrorBox("OUT error 4")));
}

TEST_F(MidiLinkTest, AFailedOpenOfInGoesNoFurther) {
  run.midi.results["midiInOpen"] = 2;
  Globals().OpenCloseMidiThru("open");
  EXPECT_THAT(Calls(), ElementsAre("midiInOpen 0"));
  EXPECT_THAT(BoxTexts(), ElementsAre(ErrorBox("IN error 2")));
}

TEST_F(MidiLinkTest, AFailedConnectionIsReportedAndInputStartsAllTheSame) {
  run.midi.results["midiConnect"] = 5;
  run.midi.results["midiInStart"] = 5;
  Globals().OpenCloseMidiThru("open");
  EXPECT_THAT(Calls(), ElementsAre("midiInOpen 0", "midiConnect 42 41", "midiInStart 42"));
  EXPECT_THAT(BoxTexts(), ElementsAre(ErrorBox("IN error 5")));
}

TEST_F(MidiLinkTest, ClosingThruStopsDisconnectsAndCloses) {
  Globals().OpenCloseMidiThru("close");
  EXPECT_THAT(Calls(), ElementsAre("midiInStop 42", "midiDisconnect 42 41", "midiInClose 42"));
  EXPECT_EQ(Globals().hMidiIn, 42U);
}

TEST_F(MidiLinkTest, ClosingThruWithoutAnOpenOutDoesNotDisconnect) {
  Globals().OpenCloseMidiOut("close");
  Calls().clear();
  Globals().OpenCloseMidiThru("close");
  EXPECT_THAT(Calls(), ElementsAre("midiInStop 42", "midiInClose 42"));
}

TEST_F(MidiLinkTest, ASecondCloseOfThruRunsOnTheDeadHandle) {
  Globals().OpenCloseMidiThru("close");
  run.midi.results = {{"midiInStop", 5}, {"midiDisconnect", 5}, {"midiInClose", 5}};
  Globals().OpenCloseMidiThru("close");
  EXPECT_THAT(BoxTexts(), ElementsAre(ErrorBox("IN error 5"), ErrorBox("IN error 5")));
}

TEST_F(MidiLinkTest, ClosingThruThatWasNeverOpenedDoesNothing) {
  Globals().hMidiIn = 0;
  Globals().OpenCloseMidiThru("close");
  EXPECT_THAT(Calls(), IsEmpty());
}

TEST_F(MidiLinkTest, ALabelWithOutInAnyCapitalsAsksForAnOutError) {
  for (const char *label : {"midiOutLongMsg", "midiOUT_Close", "OUTCaps", "layOut"})
    Globals().ShowMidiError(label, 7);
  EXPECT_THAT(BoxTexts(), Each(ErrorBox("OUT error 7")));
  run.screen.boxes.clear();
  for (const char *label : {"midiConnect", "midiTHRU_Open", "INCaps", "ou t", ""})
    Globals().ShowMidiError(label, 7);
  EXPECT_THAT(BoxTexts(), Each(ErrorBox("IN error 7")));
  EXPECT_EQ(run.screen.boxes.front().title, "Tessoro");
  EXPECT_EQ(run.screen.boxes.front().flags, 0);
}

TEST_F(MidiLinkTest, AnErrorTextHasRoomForTwoHundredAndFiftyFiveBytes) {
  Globals().ShowMidiError("out", 7);
  Globals().ShowMidiError("in", 7);
  EXPECT_THAT(run.midi.constants, ElementsAre("midiOutGetErrorTextA 255 for 255 blanks",
                                              "midiInGetErrorTextA 255 for 255 blanks"));
}

TEST_F(MidiLinkTest, ARecordOfCapabilitiesIsAskedForWithTheSizeOfItsFields) {
  run.app.F_Midi.Show();
  EXPECT_THAT(run.midi.constants, ElementsAre("midiOutGetDevCapsA 52", "midiOutGetDevCapsA 52",
                                              "midiInGetDevCapsA 52"));
}

TEST(MidiDeviceNames, AreCutToTheRoomOfTheirField) {
  std::array<char, 32> field{};
  PutDeviceName(field, std::string(40, 'x'));
  EXPECT_EQ(std::string(field.data()), std::string(31, 'x'));
  PutDeviceName(field, "short");
  EXPECT_EQ(std::string(field.data()), "short");
  EXPECT_EQ(field[31], '\0');
}

TEST(MidiDeviceNames, TheMapperHasARecordOfItsOwn) {
  const MIDIOUTCAPS record = MapperCapabilities();
  EXPECT_EQ(std::string(record.szPname.data()), "MIDI Mapper");
  EXPECT_EQ(record.wMid, 1);
  EXPECT_EQ(record.wPid, 1);
  EXPECT_EQ(record.vDriverVersion, 1280U);
  EXPECT_EQ(record.wTechnology, 5);
}

} // namespace
} // namespace Tessoro
