// From a key on the keyboard to the bytes at a synthesizer: the program, its window and a JACK
// server are all real.
#include "service/MachineMidi.hpp"
#include "tests/endtoend/JackServer.hpp"
#include "tests/endtoend/WindowedEditor.hpp"
#include "tests/support/TestRun.hpp"

#include <RtMidi.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace Tessoro::Tests {
namespace {

using namespace std::chrono_literals;
using Bytes = std::vector<std::uint8_t>;

// JACK's library tells its clients of each change a few cycles later.
void LetTheNewsPass() { std::this_thread::sleep_for(60ms); }

// An instrument that writes down what it gets.
class Synth {
public:
  Synth() : port(RtMidi::UNIX_JACK, "synth") {
    port.ignoreTypes(false, false, false);
    port.setCallback(&Synth::Take, this);
    port.openVirtualPort("in");
  }

  std::vector<Bytes> Messages() {
    const std::lock_guard lock(mutex);
    return messages;
  }

  bool GetsWithin(std::size_t count, std::chrono::seconds patience) {
    const auto deadline = std::chrono::steady_clock::now() + patience;
    while (Messages().size() < count) {
      if (std::chrono::steady_clock::now() > deadline)
        return false;
      std::this_thread::sleep_for(5ms);
    }
    return true;
  }

private:
  static void Take(double /*time*/, Bytes *bytes, void *self) {
    auto *synth = static_cast<Synth *>(self);
    const std::lock_guard lock(synth->mutex);
    synth->messages.push_back(*bytes);
  }

  std::mutex mutex;
  std::vector<Bytes> messages;
  RtMidiIn port;
};

class Keyboard {
public:
  Keyboard() : port(RtMidi::UNIX_JACK, "keyboard") { port.openVirtualPort("out"); }

  void Play(const Bytes &bytes) { port.sendMessage(&bytes); }

private:
  RtMidiOut port;
};

int NumberOfOut(const std::string &name) {
  const auto service = MakeMachineMidiService(std::make_shared<BuiltinMicroQ>());
  const auto count = static_cast<int>(service->midiOutGetNumDevs());
  MIDIOUTCAPS record;
  for (int i = 0; i < count; ++i)
    if (service->midiOutGetDevCapsA(i, record, sizeof record) == 0 && record.szPname.data() == name)
      return i;
  return -1;
}

int NumberOfIn(const std::string &name) {
  const auto service = MakeMachineMidiService(std::make_shared<BuiltinMicroQ>());
  const auto count = static_cast<int>(service->midiInGetNumDevs());
  MIDIINCAPS record;
  for (int i = 0; i < count; ++i)
    if (service->midiInGetDevCapsA(i, record, sizeof record) == 0 && record.szPname.data() == name)
      return i;
  return -1;
}

Bytes CutoffChange(std::uint8_t value) {
  return {0xF0, 0x3E, 0x10, 0x00, 0x20, 0x00, 0x00, 0x4E, value, 0xF7};
}

class WindowJackTest : public testing::Test {
protected:
  void SetUp() override {
    LetTheNewsPass();
    editor = std::make_unique<WindowedEditor>(NumberOfOut("synth:in"), NumberOfIn("keyboard:out"));
    editor->Click(design.app.F_Tessoro.TextF1_cutoff);
    editor->PressKeys("End BackSpace");
  }

  void TearDown() override {
    editor.reset();
    LetTheNewsPass();
  }

  const TestRun design; // where the controls are
  JackServer server;
  Synth synth;
  Keyboard keyboard;
  std::unique_ptr<WindowedEditor> editor;
};

TEST_F(WindowJackTest, ANumberTypedIntoTheCutoffBoxLeavesTheMachine) {
  editor->PressKeys("6 4");
  ASSERT_TRUE(synth.GetsWithin(2, 20s));
  EXPECT_THAT(synth.Messages(), testing::ElementsAre(CutoffChange(6), CutoffChange(64)));
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
      keyboard.Play({0x90, static_cast<std::uint8_t>(i % 128), static_cast<std::uint8_t>(i / 128)});
      std::this_thread::sleep_for(2ms);
    }
  });
  editor->PressKeys(keys);
  player.join();

  const std::size_t all = notes + rounds * ofOneRound.size();
  ASSERT_TRUE(synth.GetsWithin(all, 30s)) << synth.Messages().size() << " of " << all;
  int nextNote = 0;
  std::size_t nextChange = 0;
  bool hasChangesBetweenNotes = false;
  for (const Bytes &each : synth.Messages()) {
    if (each.front() == 0xF0) {
      ASSERT_EQ(each, CutoffChange(ofOneRound[nextChange++ % ofOneRound.size()]));
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
  editor->PressKeys("1 2 a");
  editor->FocusBox("Tessoro");
  editor->PressKeys("Return");
  EXPECT_EQ(editor->ExitStatus(), 1);
}

} // namespace
} // namespace Tessoro::Tests
