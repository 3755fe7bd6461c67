// From a key on the keyboard to the bytes at a synthesizer: the program, its window and a JACK
// server are all real.
#include "tests/endtoend/PluggedEditorTest.hpp"

#include <gmock/gmock.h>

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
