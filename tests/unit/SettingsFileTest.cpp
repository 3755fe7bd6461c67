#include "shell/SettingsFile.hpp"
#include "tests/support/TestRun.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Tessoro {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string SettingsName = "/editor/Tessoro.ini";

// A settings file, line by line.
struct Lines {
  std::string version = "\"Tessoro v1.3.1\"";
  std::string label = "\"Tessoro freeware version\",\"1.3\"";
  std::string speeds = "2,4";
  std::string in = "1,2";
  std::string out = "0,5";
  std::string folder = "\"/home/ann/sounds\"";
  std::string info = "\"No\"";

  std::vector<std::string> All() const { return {version, label, speeds, in, out, folder, info}; }

  // The first lines of it.
  std::string Text(std::size_t count = 7) const {
    std::string text;
    for (const std::string &line : All()) {
      if (count-- == 0)
        break;
      text += line + "\r\n";
    }
    return text;
  }
};

class SettingsFileTest : public testing::Test {
protected:
  void StartWith(const std::string &content) {
    run.files.contents[SettingsName] = content;
    run.app.Start();
  }

  Module1 &Globals() { return run.app.Module1; }

  std::vector<std::string> BoxTexts() const {
    std::vector<std::string> texts;
    for (const TestScreen::Box &box : run.screen.boxes)
      texts.push_back(box.title + " | " + box.text);
    return texts;
  }

  TestRun run;
};

TEST_F(SettingsFileTest, SevenLinesReachTheGlobals) {
  StartWith(Lines().Text());
  EXPECT_EQ(Globals().KnobFineChange, 2);
  EXPECT_EQ(Globals().KnobStandardChange, 4);
  EXPECT_EQ(Globals().MidiInPort, 1);
  EXPECT_EQ(Globals().MidiInChannel, 2);
  EXPECT_EQ(Globals().MidiOutPort, 0);
  EXPECT_EQ(Globals().MidiChannel, 5);
  EXPECT_EQ(Globals().SoundFolder, "/home/ann/sounds");
  EXPECT_EQ(Globals().ShowInfoPopUp, "No");
  EXPECT_EQ(Globals().IniProgramLabel, Value("Tessoro freeware version"));
  EXPECT_EQ(Globals().IniProgramVersion, "1.3");
  EXPECT_EQ(Globals().ErrorPhase, "general");
  EXPECT_THAT(run.screen.boxes, IsEmpty());
}

TEST_F(SettingsFileTest, IsClosedBeforePortsOpen) {
  run.midi.onCall = [this] { EXPECT_EQ(run.files.open, 0); };
  StartWith(Lines().Text());
  EXPECT_THAT(run.midi.calls,
              ElementsAre("midiOutOpen 0", "midiInOpen 1", "midiConnect 42 41", "midiInStart 42"));
}

TEST_F(SettingsFileTest, TheFileOfAnotherVersionIsReadAlike) {
  StartWith(Lines{.version = "\"Something v9\"", .label = "\"x\",\"9.9\""}.Text());
  EXPECT_THAT(run.screen.boxes, IsEmpty());
  EXPECT_EQ(Globals().IniProgramLabel, Value("Tessoro freeware version"));
}

TEST_F(SettingsFileTest, FieldsMayStandWithoutQuotesAndTheLastLineWithoutEnd) {
  StartWith("Tessoro\r\n,\"\"\n 3 , 4\r\n1,2\r\n0,5\r\n?\r\nYes");
  EXPECT_THAT(run.screen.boxes, IsEmpty());
  EXPECT_EQ(Globals().KnobStandardChange, 4);
  EXPECT_EQ(Globals().SoundFolder, "?");
  EXPECT_EQ(Globals().ShowInfoPopUp, "Yes");
}

struct SpeedCase {
  const char *fields;
  int fine;
  int standard;
};

TEST_F(SettingsFileTest, SpeedsOutsideOneToFiveBecomeThreeInSilence) {
  for (const SpeedCase &speeds :
       {SpeedCase{"0,0", 3, 3}, SpeedCase{"1,1", 1, 1}, SpeedCase{"5,5", 5, 5},
        SpeedCase{"6,6", 3, 3}, SpeedCase{"9,-9", 3, 3}, SpeedCase{"2.5,3.5", 2, 4}}) {
    TestRun other;
    other.files.contents[SettingsName] = Lines{.speeds = speeds.fields}.Text();
    other.app.Start();
    EXPECT_EQ(other.app.Module1.KnobFineChange, speeds.fine) << speeds.fields;
    EXPECT_EQ(other.app.Module1.KnobStandardChange, speeds.standard) << speeds.fields;
    EXPECT_THAT(other.screen.boxes, IsEmpty()) << speeds.fields;
  }
}

TEST_F(SettingsFileTest, AnInvalidInPortIsToldAndOpensNothing) {
  for (const char *in : {"-1,0", "100,0", "-5,0"}) {
    TestRun other;
    other.files.contents[SettingsName] = Lines{.in = in, .out = "-1,0"}.Text();
    other.app.Start();
    ASSERT_EQ(other.screen.boxes.size(), 1U) << in;
    EXPECT_EQ(other.screen.boxes[0].text, "INI file corrupt. Invalid MIDI IN port - please select "
                                          "a MIDI port manually.");
    EXPECT_EQ(other.screen.boxes[0].title, "No MIDI port set");
    EXPECT_EQ(other.screen.boxes[0].flags, 48);
    EXPECT_THAT(other.midi.calls, IsEmpty()) << in;
  }
}

TEST_F(SettingsFileTest, AnInvalidOutPortIsToldAndOpensNothing) {
  for (const char *out : {"-1,0", "100,0"}) {
    TestRun other;
    other.files.contents[SettingsName] = Lines{.in = "99,0", .out = out}.Text();
    other.app.Start();
    ASSERT_EQ(other.screen.boxes.size(), 1U) << out;
    EXPECT_EQ(other.screen.boxes[0].text, "INI file corrupt! Invalid MIDI OUT port - please select "
                                          "a MIDI port manually.");
    EXPECT_THAT(other.midi.calls, IsEmpty()) << out;
  }
}

TEST_F(SettingsFileTest, TheChannelOfOutIsNotChecked) {
  StartWith(Lines{.out = "0,400"}.Text());
  EXPECT_EQ(Globals().MidiChannel, 400);
  EXPECT_THAT(run.screen.boxes, IsEmpty());
}

TEST_F(SettingsFileTest, CutAtAnyLineItIsToldAndTheWindowOpens) {
  for (std::size_t lines = 0; lines < 7; ++lines) {
    TestRun other;
    other.files.contents[SettingsName] = Lines().Text(lines);
    other.app.Start();
    ASSERT_EQ(other.screen.boxes.size(), 1U) << lines;
    EXPECT_EQ(other.screen.boxes[0].title, "Error loading INI");
    EXPECT_EQ(other.screen.boxes[0].text, " 62: Input past end of file");
    EXPECT_EQ(other.screen.boxes[0].flags, 16);
    EXPECT_TRUE(other.app.F_Tessoro.IsShown()) << lines;
    EXPECT_TRUE(other.clock.IsWaiting(other.app.F_Tessoro.Timer1)) << lines;
    EXPECT_THAT(other.midi.calls, IsEmpty()) << lines;
    EXPECT_EQ(other.files.open, 0) << lines;
    EXPECT_EQ(other.app.Module1.ErrorPhase, "loading INI") << lines;
  }
}

TEST_F(SettingsFileTest, CutAtAnyByteTheWindowOpens) {
  const std::string whole = Lines().Text();
  for (std::size_t length = 0; length < whole.size(); ++length) {
    TestRun other;
    other.files.contents[SettingsName] = whole.substr(0, length);
    other.app.Start();
    EXPECT_TRUE(other.app.F_Tessoro.IsShown()) << length;
    EXPECT_FALSE(other.app.HasEnded()) << length;
    EXPECT_EQ(other.files.open, 0) << length;
  }
}

TEST_F(SettingsFileTest, WhatWasReadBeforeTheFailureStaysInForce) {
  StartWith(Lines().Text(6));
  EXPECT_EQ(Globals().KnobFineChange, 2);
  EXPECT_EQ(Globals().MidiOutPort, 0);
  EXPECT_EQ(Globals().SoundFolder, "/home/ann/sounds");
  EXPECT_EQ(Globals().ShowInfoPopUp, "Yes");
  EXPECT_EQ(Globals().SoundName, "");
}

TEST_F(SettingsFileTest, AnEmptyLabelStaysUnsetWhereTheFileEndsBehindIt) {
  StartWith(Lines{.label = ",\"1.3\""}.Text(2));
  EXPECT_EQ(Globals().IniProgramLabel, Value());
  EXPECT_EQ(Globals().IniProgramVersion, "1.3");
  TestRun other;
  other.files.contents[SettingsName] = Lines{.label = "\"\",\"1.3\""}.Text(2);
  other.app.Start();
  EXPECT_EQ(other.app.Module1.IniProgramLabel, Value(""));
}

TEST_F(SettingsFileTest, ANumberFieldThatHoldsSomethingElseIsTold) {
  for (const Lines &lines : {Lines{.speeds = "x,3"}, Lines{.speeds = "3,"}, Lines{.in = "1a,0"},
                             Lines{.out = "0,\"five\""}}) {
    TestRun other;
    other.files.contents[SettingsName] = lines.Text();
    other.app.Start();
    ASSERT_EQ(other.screen.boxes.size(), 1U) << lines.Text();
    EXPECT_EQ(other.screen.boxes[0].text, " 13: Type mismatch");
    EXPECT_EQ(other.screen.boxes[0].title, "Error loading INI");
    EXPECT_TRUE(other.app.F_Tessoro.IsShown());
  }
}

TEST_F(SettingsFileTest, ANumberBeyondSixteenBitsIsAnOverflowInAFieldOfSixteenBits) {
  for (const Lines &lines : {Lines{.speeds = "3,40000"}, Lines{.speeds = "3,1E10"},
                             Lines{.in = "0,40000"}, Lines{.in = "0,-1E30"}}) {
    TestRun other;
    other.files.contents[SettingsName] = lines.Text();
    other.app.Start();
    ASSERT_EQ(other.screen.boxes.size(), 1U) << lines.Text();
    EXPECT_EQ(other.screen.boxes[0].text, " 6: Overflow");
  }
}

TEST_F(SettingsFileTest, APortIsOutOfItsRangeHoweverLargeItIs) {
  for (const char *port : {"10000000000", "-1E10", "1E30", "-1E30"}) {
    for (const bool isIn : {true, false}) {
      const std::string line = std::string(port) + ",0";
      TestRun other;
      other.files.contents[SettingsName] =
          (isIn ? Lines{.in = line} : Lines{.in = "0,0", .out = line}).Text();
      other.app.Start();
      ASSERT_EQ(other.screen.boxes.size(), 1U) << port;
      EXPECT_EQ(
          other.screen.boxes[0].text,
          isIn ? "INI file corrupt. Invalid MIDI IN port - please select a MIDI port manually."
               : "INI file corrupt! Invalid MIDI OUT port - please select a MIDI port manually.");
      EXPECT_THAT(other.midi.calls, IsEmpty()) << port;
      // The start goes on to its end.
      EXPECT_EQ(other.app.Module1.IniProgramVersion, "1.3");
      EXPECT_EQ(other.app.Module1.ErrorPhase, "general");
      EXPECT_EQ(other.app.Module1.SoundName, std::string(16, '?'));
    }
  }
}

TEST_F(SettingsFileTest, AFineSpeedAndAChannelMayBeOfAnySize) {
  StartWith(Lines{.speeds = "1E10,4", .out = "0,1E10"}.Text());
  EXPECT_THAT(run.screen.boxes, IsEmpty());
  EXPECT_EQ(Globals().KnobFineChange, 3);
  EXPECT_GT(Globals().MidiChannel, 99);
  EXPECT_EQ(Globals().hMidiOut, TestMidi::OutHandle);
}

TEST_F(SettingsFileTest, WhatTheSystemRefusesIsTold) {
  run.files.readingFailsWith = FailureCode::PathFileAccessError;
  run.app.Start();
  EXPECT_THAT(BoxTexts(), ElementsAre("Error loading INI |  75: Path/File access error"));
  EXPECT_TRUE(run.app.F_Tessoro.IsShown());
  EXPECT_FALSE(run.app.F_Midi.IsLoaded());
}

TEST_F(SettingsFileTest, WithoutAFileThePortsAreAskedFor) {
  run.app.Start();
  EXPECT_TRUE(run.app.F_Midi.IsShown());
  EXPECT_TRUE(run.app.F_Tessoro.IsShown());
  EXPECT_EQ(Globals().SoundFolder, "?");
  EXPECT_EQ(Globals().ErrorPhase, "general");
  EXPECT_EQ(Globals().SoundName, std::string(16, '?'));
  EXPECT_EQ(Globals().SoundCategory, "????");
  EXPECT_THAT(run.screen.boxes, IsEmpty());
}

TEST_F(SettingsFileTest, AFirstRunLeavesTwoFieldsUnset) {
  run.app.Start();
  run.app.F_Tessoro.UserClose();
  EXPECT_EQ(run.files.contents[SettingsName], "\"Tessoro v1.3.1\"\r\n"
                                              ",\"\"\r\n"
                                              "3,3\r\n"
                                              "-1,0\r\n"
                                              "-1,0\r\n"
                                              "\"?\"\r\n"
                                              "\"Yes\"\r\n");
}

TEST_F(SettingsFileTest, ALaterRunWritesWhatTheGlobalsHold) {
  StartWith(Lines().Text());
  Globals().KnobFineChange = 5;
  Globals().MidiOutPort = 3;
  run.app.F_Tessoro.UserClose();
  EXPECT_EQ(run.files.contents[SettingsName], (Lines{.speeds = "5,4", .out = "3,5"}.Text()));
  EXPECT_THAT(run.screen.ends, ElementsAre(ProgramEnd::Closed));
  EXPECT_EQ(run.files.open, 0);
}

TEST_F(SettingsFileTest, ClosingTheWindowClosesOutAlone) {
  StartWith(Lines().Text());
  run.midi.calls.clear();
  run.app.F_Tessoro.UserClose();
  EXPECT_THAT(run.midi.calls, ElementsAre("midiOutClose 41"));
}

TEST_F(SettingsFileTest, AFolderThatCanNotBeWrittenIsToldAndTheWindowGoes) {
  StartWith(Lines().Text());
  run.files.writingFailsWith = FailureCode::PathFileAccessError;
  run.app.F_Tessoro.UserClose();
  EXPECT_THAT(BoxTexts(), ElementsAre("Error writing INI file. |  75: Path/File access error"));
  EXPECT_FALSE(run.app.F_Tessoro.IsLoaded());
  EXPECT_THAT(run.screen.ends, ElementsAre(ProgramEnd::Closed));
}

TEST_F(SettingsFileTest, OutIsClosedBeforeTheFileIsWritten) {
  StartWith(Lines().Text());
  run.midi.results["midiOutClose"] = 5;
  run.files.writingFailsWith = FailureCode::PathFileAccessError;
  run.app.F_Tessoro.UserClose();
  EXPECT_THAT(BoxTexts(), ElementsAre("Tessoro | vrn midi out detection:\r\nOUT error 5\r\n",
                                      "Error writing INI file. |  75: Path/File access error"));
}

TEST_F(SettingsFileTest, QuittingByTheMenuWritesNothingAndClosesNothing) {
  StartWith(Lines().Text());
  Globals().MidiOutPort = 3;
  run.midi.calls.clear();
  run.app.F_Tessoro.Menu_Quit.UserClick();
  EXPECT_EQ(run.files.contents[SettingsName], Lines().Text());
  EXPECT_THAT(run.midi.calls, IsEmpty());
  EXPECT_THAT(run.screen.ends, ElementsAre(ProgramEnd::Quit));
}

TEST_F(SettingsFileTest, IsWrittenByTheUnloadAloneWhateverTheFormIsAsked) {
  StartWith(Lines().Text());
  Globals().KnobFineChange = 5;
  run.app.F_Tessoro.WriteINI();
  EXPECT_EQ(run.files.contents[SettingsName], Lines().Text());
}

TEST_F(SettingsFileTest, StandsBesideTheProgram) {
  EXPECT_EQ(SettingsPath(run.app), "/editor/Tessoro.ini");
}

TEST_F(SettingsFileTest, TheSeparatorStandsTwiceBesideAProgramInARoot) {
  Platform platform = run.app.System();
  platform.programPath = "/";
  EXPECT_EQ(SettingsPath(Application(platform)), "//Tessoro.ini");
}

} // namespace
} // namespace Tessoro
