// The MIDI service on the real ALSA sequencer, with software instruments and the kernel's virtual
// cards at the other end.
#include "service/MachineMidi.hpp"
#include "service/rtmidi/VirtualInPort.hpp"
#include "tests/alsa/SoundCard.hpp"
#include "tests/endtoend/JackInstruments.hpp"
#include "tests/endtoend/ServiceCalls.hpp"
#include "tests/support/TestRun.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <mutex>
#include <sstream>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace Tessoro::Tests {
namespace {

using testing::Contains;
using testing::Not;

constexpr const char *Through = "Midi Through Port-0";
// As much of "Virtual Raw MIDI 0-0:VirMIDI 0-0" as a list shows.
constexpr const char *Card = "Virtual Raw MIDI 0-0:VirMIDI 0-";
constexpr uid_t Nobody = 65534;

// The bytes behind what the double of the service notes of a message.
Bytes BytesOf(const std::string &noted) {
  std::istringstream words(noted);
  std::vector<unsigned long> numbers;
  for (std::string word; words >> word;)
    numbers.push_back(std::stoul(word, nullptr, 16));
  if (numbers.size() == 1) {
    const unsigned long word = numbers[0];
    return {static_cast<std::uint8_t>(word), static_cast<std::uint8_t>(word >> 8),
            static_cast<std::uint8_t>(word >> 16)};
  }
  return {numbers.begin(), numbers.end()};
}

// The messages of the first init of a run.
std::vector<Bytes> MessagesOfInit() {
  TestRun run;
  run.StartWithOpenPorts();
  run.app.F_Tessoro.InitPanelParams();
  std::vector<Bytes> messages;
  for (const std::string &noted : run.midi.messages)
    messages.push_back(BytesOf(noted));
  return messages;
}

// A run of the editor whose OUT port is this one.
struct EditorRun {
  EditorRun(MidiService &midi, const std::string &outName)
      : app({.midi = midi,
             .screen = screen,
             .clock = clock,
             .files = files,
             .random = random,
             .programPath = "/editor"}) {
    app.Module1.MidiChannel = 0;
    app.Module1.MidiOutPort = IndexOf(OutNames(midi), outName);
    app.Module1.OpenCloseMidiOut("open");
  }

  TestScreen screen;
  TestClock clock;
  TestFiles files;
  StandardRandomNumbers random;
  Application app;
};

class ServiceAlsaTest : public testing::Test {
protected:
  static void SetUpTestSuite() {
    ASSERT_TRUE(LoadModule("snd-seq"));
    ASSERT_TRUE(LoadModule("snd-seq-dummy"));
    ASSERT_TRUE(LoadModule("snd-virmidi"));
  }

  std::unique_ptr<MidiService> service = MakeMachineMidiService(std::make_shared<BuiltinMicroQ>());
};

TEST_F(ServiceAlsaTest, PortsOfProgramsAndCardsAreListedByName) {
  const Synth synth("synth", RtMidi::LINUX_ALSA);
  const Keyboard keyboard("keyboard", RtMidi::LINUX_ALSA);
  const std::vector<std::string> outs = OutNames(*service);
  EXPECT_THAT(outs, Contains(Through));
  EXPECT_THAT(outs, Contains(Card));
  EXPECT_THAT(outs, Contains("synth:in"));
  EXPECT_THAT(outs, Not(Contains("keyboard:out")));
  EXPECT_THAT(outs, Contains("microQ (built-in)"));
  const std::vector<std::string> ins = InNames(*service);
  EXPECT_THAT(ins, Contains(Through));
  EXPECT_THAT(ins, Contains(Card));
  EXPECT_THAT(ins, Contains("keyboard:out"));
  EXPECT_THAT(ins, Not(Contains("synth:in")));
  EXPECT_THAT(ins, Contains("Silence (built-in)"));
}

TEST_F(ServiceAlsaTest, OwnPortsAreNotListed) {
  const Synth synth("synth", RtMidi::LINUX_ALSA);
  const Keyboard keyboard("keyboard", RtMidi::LINUX_ALSA);
  const std::vector<std::string> outs = OutNames(*service);
  const std::vector<std::string> ins = InNames(*service);
  OpenThru(*service, "keyboard:out", OpenOut(*service, "synth:in"));
  EXPECT_EQ(OutNames(*service), outs);
  EXPECT_EQ(InNames(*service), ins);
}

TEST_F(ServiceAlsaTest, AnInitArrivesWholeAndInOrderAtAProgram) {
  Synth synth("synth", RtMidi::LINUX_ALSA);
  EditorRun editor(*service, "synth:in");
  editor.app.F_Tessoro.InitPanelParams();
  EXPECT_THAT(editor.screen.boxes, testing::IsEmpty());
  const std::vector<Bytes> wanted = MessagesOfInit();
  ASSERT_GT(wanted.size(), 310U);
  EXPECT_TRUE(Eventually([&] { return synth.Count() == wanted.size(); }));
  EXPECT_EQ(synth.Messages(), wanted);
  editor.app.Module1.OpenCloseMidiOut("close");
}

TEST_F(ServiceAlsaTest, AnInitLeavesTheWireOfACardByteForByte) {
  Wire wire;
  EditorRun editor(*service, Card);
  editor.app.F_Tessoro.InitPanelParams();
  Bytes wanted;
  for (const Bytes &message : MessagesOfInit())
    wanted.insert(wanted.end(), message.begin(), message.end());
  EXPECT_EQ(wire.Take(wanted.size()), wanted);
  editor.app.Module1.OpenCloseMidiOut("close");
}

TEST_F(ServiceAlsaTest, WhatIsPlayedPassesThroughWhole) {
  Synth synth("synth", RtMidi::LINUX_ALSA);
  Keyboard keyboard("keyboard", RtMidi::LINUX_ALSA);
  OpenThru(*service, "keyboard:out", OpenOut(*service, "synth:in"));
  const std::vector<Bytes> played{{0x90, 60, 100},  {0x80, 60, 0},      {0xB0, 1, 64}, {0xC0, 5},
                                  {0xE0, 0x12, 60}, {0xF0, 1, 2, 0xF7}, {0xF8},        {0xFE}};
  for (const Bytes &message : played)
    keyboard.Play(message);
  EXPECT_TRUE(Eventually([&] { return synth.Count() == played.size(); }));
  EXPECT_EQ(synth.Messages(), played);
}

TEST_F(ServiceAlsaTest, ALongMessagePassesThroughWhole) {
  Synth synth("synth", RtMidi::LINUX_ALSA);
  Keyboard keyboard("keyboard", RtMidi::LINUX_ALSA);
  OpenThru(*service, "keyboard:out", OpenOut(*service, "synth:in"));
  Bytes dump(393, 0x55); // as long as a sound dump of the microQ
  dump.front() = 0xF0;
  dump.back() = 0xF7;
  keyboard.Play(dump);
  EXPECT_TRUE(Eventually([&] { return synth.Count() == 1; }));
  EXPECT_EQ(synth.Messages(), std::vector<Bytes>{dump});
}

TEST_F(ServiceAlsaTest, ThePortOfTheMonitorIsListedAndHears) {
  std::mutex mutex;
  std::vector<Bytes> heard;
  const auto port =
      OpenVirtualInPort(MidiSystem::Alsa, "microQ", "microQ (monitor)", [&](MidiBytes message) {
        const std::lock_guard lock(mutex);
        heard.emplace_back(message.begin(), message.end());
      });
  ASSERT_NE(port, nullptr);
  ASSERT_EQ(SendLong(*service, OpenOut(*service, "microQ (monitor)"), Change(78, 64)), 0U);
  EXPECT_TRUE(Eventually([&] {
    const std::lock_guard lock(mutex);
    return heard == std::vector<Bytes>{Change(78, 64)};
  }));
}

TEST_F(ServiceAlsaTest, ACardThatIsPulledMakesSendsFailUntilItIsBack) {
  const MidiHandle out = OpenOut(*service, Card);
  ASSERT_EQ(SendLong(*service, out, Change(1, 1)), 0U);

  PullCard();
  ASSERT_TRUE(Eventually([&] { return SendLong(*service, out, Change(2, 2)) != 0; }));
  EXPECT_EQ(SendLong(*service, out, Change(3, 3)), MidiResultCode::NoDevice);
  EXPECT_THAT(OutNames(*service), Not(Contains(Card)));

  PutCardIn();
  ASSERT_TRUE(Eventually([&] { return SendLong(*service, out, Change(4, 4)) == 0; }));
  Wire wire;
  ASSERT_EQ(SendLong(*service, out, Change(5, 5)), 0U);
  EXPECT_TRUE(wire.Brings(Change(5, 5)));
  EXPECT_EQ(service->midiOutClose(out), 0U);
}

TEST_F(ServiceAlsaTest, AnUnloadedModuleTakesItsPortsAlong) {
  ASSERT_TRUE(UnloadModule("snd-seq-dummy"));
  EXPECT_THAT(OutNames(*service), Not(Contains(Through)));
  EXPECT_THAT(InNames(*service), Not(Contains(Through)));
  ASSERT_TRUE(LoadModule("snd-seq-dummy"));
  EXPECT_THAT(OutNames(*service), Contains(Through));
}

// The rights are those of the program's user, so it is tried in a process of its own.
TEST_F(ServiceAlsaTest, WithoutTheRightToTheSequencerItsPortsAreQuietlyAway) {
  std::array<int, 2> complaints{};
  ASSERT_EQ(pipe(complaints.data()), 0);
  const pid_t process = fork();
  if (process == 0) {
    dup2(complaints[1], STDERR_FILENO);
    close(complaints[1]);
    const bool isNobody = setgid(Nobody) == 0 && setuid(Nobody) == 0;
    const auto ofNobody = MakeMachineMidiService(std::make_shared<BuiltinMicroQ>());
    const auto lack = [](const std::vector<std::string> &names) {
      return !names.empty() && std::ranges::count(names, Through) == 0 &&
             std::ranges::count(names, Card) == 0;
    };
    const bool isRight = isNobody && lack(OutNames(*ofNobody)) && lack(InNames(*ofNobody));
    _exit(isRight ? 0 : 1);
  }
  close(complaints[1]);
  std::array<char, 200> text{};
  EXPECT_EQ(read(complaints[0], text.data(), text.size() - 1), 0) << text.data();
  close(complaints[0]);
  int status = -1;
  waitpid(process, &status, 0);
  EXPECT_EQ(status, 0);
}

} // namespace
} // namespace Tessoro::Tests
