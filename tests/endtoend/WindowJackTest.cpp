// From a key on the keyboard to the bytes at a synthesizer: the program, its window and a JACK
// server are all real.
#include "service/PacedWire.hpp"
#include "tests/endtoend/PluggedEditorTest.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <thread>

namespace Tessoro::Tests {
namespace {

class WindowJackTest : public PluggedEditorTest {
protected:
  void SetUp() override {
    StartPlugged();
    editor->MainForm().Type(editor->Design().F_Tessoro.TextF1_cutoff, "BackSpace");
  }
};

TEST_F(WindowJackTest, ANumberTypedIntoTheCutoffBoxLeavesTheMachine) {
  display.PressKeys("6 4");
  EXPECT_THAT(Hear(2), testing::ElementsAre(Parameter(78, 6), Parameter(78, 64)));
}

TEST_F(WindowJackTest, AThousandNotesPassWholeAndInOrderWhileTheBoxIsTypedInto) {
  constexpr int notes = 1000;
  constexpr int rounds = 40;
  const Bytes ofOneRound{1, 12, 1}; // "1", "12", and "1" again on the way back
  std::string keys;
  for (int i = 0; i < rounds; ++i)
    keys += "1 2 BackSpace BackSpace ";

  std::thread player([this] {
    for (int i = 0; i < notes; ++i) {
      keyboard->Play(
          {0x90, static_cast<std::uint8_t>(i % 128), static_cast<std::uint8_t>(i / 128)});
      std::this_thread::sleep_for(2ms);
    }
  });
  display.PressKeys(keys);
  player.join();

  const std::size_t all = notes + rounds * ofOneRound.size();
  ASSERT_TRUE(Eventually([&] { return synth->Count() >= all; }, 30s))
      << synth->Count() << " of " << all;
  int nextNote = 0;
  std::size_t nextChange = 0;
  bool hasChangesBetweenNotes = false;
  for (const Bytes &each : synth->Messages()) {
    if (each.front() == 0xF0) {
      ASSERT_EQ(each, Parameter(78, ofOneRound[nextChange++ % ofOneRound.size()]));
      hasChangesBetweenNotes = hasChangesBetweenNotes || (nextNote > 0 && nextNote < notes);
      continue;
    }
    ASSERT_EQ(each, (Bytes{0x90, static_cast<std::uint8_t>(nextNote % 128),
                           static_cast<std::uint8_t>(nextNote / 128)}));
    ++nextNote;
  }
  EXPECT_EQ(nextNote, notes);
  EXPECT_EQ(nextChange, rounds * ofOneRound.size());
  EXPECT_TRUE(hasChangesBetweenNotes);
}

// A player who goes back to the init sound again and again: more than the cable carries.
TEST_F(WindowJackTest, TwoThousandChangesArriveWholeInOrderAndAtTheSpeedOfTheCable) {
  constexpr int inits = 7;
  constexpr int notes = 25;
  TestRun twin;
  twin.StartWithOpenPorts();
  const F_Tessoro &design = editor->Design().F_Tessoro;
  for (int i = 0; i < inits; ++i) {
    editor->MainForm().Click(design.InitSnd);
    if (i > 0)
      editor->AnswerBox("Confirm init");
    twin.app.F_Tessoro.InitPanelParams();
  }
  std::vector<Clock::time_point> played;
  for (int i = 0; i < notes; ++i) {
    std::this_thread::sleep_for(100ms);
    played.push_back(Clock::now());
    keyboard->Play({0x90, static_cast<std::uint8_t>(i), 100});
  }
  const std::vector<std::string> &sent = twin.midi.messages;
  ASSERT_GT(sent.size(), 2000U);
  ASSERT_TRUE(Eventually([&] { return synth->Count() >= sent.size() + notes; }));

  std::vector<std::string> changes;
  std::vector<Clock::duration> delays;
  std::size_t bytes = 0;
  const std::vector<Arrival> arrivals = synth->Arrivals();
  for (const Arrival &each : arrivals) {
    bytes += each.bytes.size();
    if (each.bytes.front() != 0x90) {
      changes.push_back(NotedMessage(each.bytes));
      continue;
    }
    ASSERT_EQ(each.bytes, (Bytes{0x90, static_cast<std::uint8_t>(delays.size()), 100}));
    delays.push_back(each.time - played[delays.size()]);
  }
  EXPECT_EQ(changes, sent);
  EXPECT_GT(arrivals.back().bytes.size(), 3U) << "the notes went behind all changes";

  const std::chrono::duration<double> took = arrivals.back().time - arrivals.front().time;
  EXPECT_GT(static_cast<double>(bytes) / took.count(), 0.8 * CableBytesPerSecond);
  EXPECT_LT(static_cast<double>(bytes) / took.count(), 1.1 * CableBytesPerSecond);
  // The median, because a busy machine may stop any one of them.
  std::ranges::nth_element(delays, delays.begin() + notes / 2);
  EXPECT_LT(delays[notes / 2], 10ms);
}

TEST_F(WindowJackTest, QuitInTheMenuEndsTheProgram) {
  editor->QuitByMenu();
  EXPECT_EQ(editor->ExitStatus(), 0);
}

TEST_F(WindowJackTest, AFailureThatNothingTrapsEndsTheProgramBehindItsBox) {
  display.PressKeys("1 2 a");
  editor->AnswerBox("Tessoro");
  EXPECT_EQ(editor->ExitStatus(), 1);
}

} // namespace
} // namespace Tessoro::Tests
