// A whole session, played once for every call of the MIDI service in it: that call fails, alone or
// with all that follow it. What the editor then does is worked out on paper.
#include "tests/faults/PaperPorts.hpp"
#include "tests/support/TestRun.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace Tessoro::Tests {
namespace {

constexpr MidiResult FaultCode = 7;

// Start, ports, init, edits, load, save, stop.
constexpr std::string_view Acts[] = {
    "start",
    "tick 500",
    "click F_InfoPopUp",
    "click F_Tessoro.InitSnd",
    "menu Menu_Midisettings",
    "click F_Midi.Command1",
    "paste F_Tessoro.TextF1_cutoff \"64\"",
    "paste F_Tessoro.TextOSC1detune \"99\"",
    "scroll F_Tessoro.VScrollNoiseVol 5",
    "select F_Tessoro.ComboFilter1 3",
    "click F_Tessoro.CheckSyncOn",
    "click F_Tessoro.NoteC3",
    "call OpenCloseMidiThru \"close\"",
    "call OpenCloseMidiThru \"open\"",
    "menu Menu_OpenSound",
    "paste F_FileIO.TextFilename \"sound.tss\"",
    "click F_FileIO.C_File",
    "menu Menu_SaveSound",
    "paste F_FileIO.TextFilename \"copy\"",
    "click F_FileIO.C_File",
    "menu Menu_General",
    "click F_General.Command1",
    "close F_Tessoro",
};

// One session on files in memory.
class SessionOfActs {
public:
  explicit SessionOfActs(PaperPorts::Fault fault) {
    files.contents["/Tessoro.ini"] = SettingsWithPorts("?");
    files.contents["/sound.tss"] = SoundFile("complete.tss");
    session.Play("midi-out \"microQ\"");
    session.Play("midi-in \"Keyboard\"");
    session.Editor().Midi.onCall = std::move(fault);
  }

  Lines Play(std::string_view act) {
    Lines lines = session.Play(act);
    EXPECT_EQ(files.open, 0) << act << " leaves a file open";
    return lines;
  }

  TestFiles files;
  TracedSession session{"", files};
};

// What each act prints where nothing fails, and which operations are called.
struct Faultless {
  Faultless() {
    SessionOfActs session([this](std::string_view operation) {
      calls.emplace_back(operation);
      return MidiResult{0};
    });
    for (const std::string_view act : Acts)
      traces.push_back(session.Play(act));
    contents = session.files.contents;
  }

  std::vector<Lines> traces;
  Lines calls;
  std::map<std::string, std::string> contents;
};

const Faultless &WithoutFaults() {
  static const Faultless session;
  return session;
}

// Fails the call of that number, counted from 0, or it and all behind it.
PaperPorts::Fault FaultAt(std::size_t number, bool forGood) {
  return [number, forGood, count = std::size_t{0}](std::string_view) mutable {
    const std::size_t call = count++;
    return call == number || (forGood && call > number) ? FaultCode : MidiResult{0};
  };
}

void ExpectThatPaperIsRight(std::size_t number, bool forGood) {
  const Faultless &faultless = WithoutFaults();
  SessionOfActs session(FaultAt(number, forGood));
  PaperPorts paper(FaultAt(number, forGood));
  for (std::size_t i = 0; i < std::size(Acts); ++i) {
    const Lines expected = paper.Play(faultless.traces[i]);
    const Lines actual = session.Play(Acts[i]);
    const auto [left, right] =
        std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
    ASSERT_TRUE(left == expected.end() && right == actual.end())
        << "call " << number << ", " << faultless.calls[number] << ", in " << Acts[i]
        << "\nexpected " << (left == expected.end() ? "nothing" : *left) << "\ngot      "
        << (right == actual.end() ? "nothing" : *right);
  }
  // Ports are none of the files' business.
  ASSERT_EQ(session.files.contents, faultless.contents) << "call " << number;
}

TEST(MidiFaults, TheSessionCallsEveryOperationThatCanFail) {
  const Lines &calls = WithoutFaults().calls;
  const std::set<std::string> called(calls.begin(), calls.end());
  EXPECT_EQ(called, (std::set<std::string>{"midiConnect", "midiDisconnect", "midiInClose",
                                           "midiInGetDevCapsA", "midiInOpen", "midiInStart",
                                           "midiInStop", "midiOutClose", "midiOutGetDevCapsA",
                                           "midiOutLongMsg", "midiOutOpen", "midiOutPrepareHeader",
                                           "midiOutShortMsg", "midiOutUnprepareHeader"}));
  EXPECT_GT(calls.size(), 1900U);
  EXPECT_EQ(WithoutFaults().traces.back().back(), "end closed");
}

TEST(MidiFaults, ACallThatFailsAloneIsToldInItsBox) {
  for (std::size_t number = 0; number < WithoutFaults().calls.size(); ++number) {
    ExpectThatPaperIsRight(number, false);
    if (testing::Test::HasFailure())
      return;
  }
}

TEST(MidiFaults, AServiceThatFailsFromAnyCallOnLeavesARunningEditor) {
  for (std::size_t number = 0; number < WithoutFaults().calls.size(); ++number) {
    ExpectThatPaperIsRight(number, true);
    if (testing::Test::HasFailure())
      return;
  }
}

// Knows no text for any code.
class SpeechlessMidi : public TestMidi {
public:
  MidiResult midiOutGetErrorTextA(MidiResult, std::string &, std::uint32_t) override {
    return MidiResultCode::InvalidParameter;
  }
  MidiResult midiInGetErrorTextA(MidiResult, std::string &, std::uint32_t) override {
    return MidiResultCode::InvalidParameter;
  }
};

TEST(MidiFaults, ACodeWithoutATextIsToldInBlanks) {
  TestRun run;
  SpeechlessMidi midi;
  Application app({.midi = midi,
                   .screen = run.screen,
                   .clock = run.clock,
                   .files = run.files,
                   .random = run.random,
                   .programPath = "/editor"});
  for (const char *const label : {"midiOUT_Open", "midiTHRU_Open"}) {
    app.Module1.ShowMidiError(label, FaultCode);
    EXPECT_EQ(run.screen.boxes.back().text,
              "vrn midi out detection:\r\n" + std::string(255, ' ') + "\r\n");
  }
}

} // namespace
} // namespace Tessoro::Tests
