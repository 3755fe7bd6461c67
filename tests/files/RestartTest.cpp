// A sound that a user makes, saves, and loads after a restart, as the synthesizer gets to know it.
#include "service/builtin/BuiltinMicroQ.hpp"
#include "tests/support/TestRun.hpp"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace Tessoro::Tests {
namespace {

// The double of the ports, with a microQ behind the one that sends.
class MidiToMicroQ : public TestMidi {
public:
  MidiResult midiOutShortMsg(MidiHandle handle, std::uint32_t message) override {
    const std::array<std::uint8_t, 3> bytes{static_cast<std::uint8_t>(message & 0xFF),
                                            static_cast<std::uint8_t>(message >> 8 & 0xFF),
                                            static_cast<std::uint8_t>(message >> 16 & 0xFF)};
    microQ.Receive(bytes);
    return TestMidi::midiOutShortMsg(handle, message);
  }
  MidiResult midiOutLongMsg(MidiHandle handle, MIDIHDR &header, std::uint32_t size) override {
    microQ.Receive({header.lpData, header.dwBufferLength});
    return TestMidi::midiOutLongMsg(handle, header, size);
  }

  BuiltinMicroQ microQ;
};

// One run of the program, with a synthesizer that was switched on for it.
struct Session {
  Session() {
    files.contents["/editor/Tessoro.ini"] =
        "\"Tessoro v1.3.1\"\r\n\"\",\"\"\r\n3,3\r\n0,0\r\n0,0\r\n\"?\"\r\n\"Yes\"\r\n";
    app.Start();
  }

  MidiToMicroQ midi;
  TestScreen screen;
  TestClock clock;
  TestFiles files;
  StandardRandomNumbers random;
  Application app{{.midi = midi,
                   .screen = screen,
                   .clock = clock,
                   .files = files,
                   .random = random,
                   .programPath = "/editor",
                   .decimalSign = '.'}};
};

// Nothing in it is left at what a new program shows, so that a load says all of it.
void MakeSound(Application &app) {
  F_Tessoro &main = app.F_Tessoro;
  main.InitSnd.UserClick();
  main.ComboOSC1shape.UserSelect(2);
  main.ComboOSC2shape.UserSelect(6);
  main.ComboOSC2oct.UserSelect(6);
  main.TextOSC2detune.UserEdit("-7");
  main.TextOSC3pwm.UserEdit("31");
  main.VScrollOSC1vol.UserScroll(101);
  main.VScrollOSC2vol.UserScroll(88);
  main.VScrollOSC3vol.UserScroll(45);
  main.CheckOSC3mute.UserClick();
  main.VScrollNoiseVol.UserScroll(12);
  main.CheckSyncOn.UserClick();
  main.ComboFilter1.UserSelect(3);
  main.TextF1_cutoff.UserEdit("64");
  main.TextF1_envamt.UserEdit("-20");
  main.ComboF2Modulation.UserSelect(10);
  main.ImageParallel.UserClick();
  main.TextEnv1T3.UserEdit("70");
  main.ComboEnvFilter.UserSelect(4);
  main.Menu_General.UserClick();
  app.F_General.TextGlideRate.UserEdit("33");
}

void SaveAs(Application &app, const std::string &name) {
  app.F_Tessoro.Menu_SaveSound.UserClick();
  app.F_FileIO.TextFilename.UserEdit(name);
  app.F_FileIO.C_File.UserClick();
}

void LoadFromList(Application &app, const std::string &name) {
  app.F_Tessoro.Menu_OpenSound.UserClick();
  app.F_FileIO.File1.UserChoose(name);
  app.F_FileIO.File1.UserDblClick();
}

TEST(RestartTest, SoundIsInTheSynthesizerAgain) {
  Session first;
  MakeSound(first.app);
  SaveAs(first.app, "mine");
  const MicroQState before = first.midi.microQ.State();

  Session second;
  second.files.contents["/mine.tss"] = first.files.contents.at("/mine.tss");
  LoadFromList(second.app, "mine.tss");
  const MicroQState after = second.midi.microQ.State();

  // No line of the file holds these.
  const std::set<std::size_t> withoutLine{75,  76,  94,  95,  114, 115, 125, 196,
                                          200, 203, 204, 208, 212, 215, 216, 220,
                                          224, 227, 228, 232, 236, 239, 240};
  // These wait for the general form to be opened.
  const std::set<std::size_t> stored{53, 56, 57, 58, 59, 71, 72};
  constexpr std::size_t firstStep = 344;
  constexpr std::size_t lastStep = 359;
  constexpr int flagOfStep = 8;
  for (std::size_t number = 1; number <= MicroQState::HighestParameter; ++number) {
    SCOPED_TRACE(number);
    const int expected = before.parameters[number];
    if (withoutLine.contains(number) || stored.contains(number))
      EXPECT_EQ(after.parameters[number], -1) << "nobody told it; withoutLine and stored above";
    else if (number >= firstStep && number <= lastStep)
      EXPECT_EQ(after.parameters[number], expected + flagOfStep);
    else
      EXPECT_EQ(after.parameters[number], expected) << "withoutLine above, if no line holds it";
  }
  EXPECT_EQ(second.app.F_Tessoro.Caption(), "Tessoro v1.3.1 - mine.tss");
}

TEST(RestartTest, GeneralValuesFollowWhenTheirFormIsOpened) {
  Session first;
  MakeSound(first.app);
  SaveAs(first.app, "mine");

  Session second;
  second.files.contents["/mine.tss"] = first.files.contents.at("/mine.tss");
  LoadFromList(second.app, "mine.tss");
  second.app.F_Tessoro.Menu_General.UserClick();
  EXPECT_EQ(second.midi.microQ.State().parameters[57], 33);
}

} // namespace
} // namespace Tessoro::Tests
