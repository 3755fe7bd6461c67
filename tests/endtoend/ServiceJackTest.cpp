// The MIDI service against a JACK server, with software instruments at the other end.
#include "service/MachineMidi.hpp"
#include "tests/endtoend/JackInstruments.hpp"
#include "tests/endtoend/JackServer.hpp"
#include "tests/endtoend/ServiceCalls.hpp"

#include <gmock/gmock.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace Tessoro::Tests {
namespace {

using testing::Contains;
using testing::Not;

// Whatever stands before, between and behind them.
MATCHER_P2(HasInOrder, first, second, "") {
  const auto found = std::ranges::find(arg, first);
  return std::find(found, arg.end(), second) != arg.end();
}

bool IsChange(const Bytes &bytes) { return bytes.front() == 0xF0; }

class ServiceJackTest : public testing::Test {
protected:
  template <typename Instrument>
  static Instrument &Plug(std::vector<std::unique_ptr<Instrument>> &rack,
                          const std::string &client) {
    rack.push_back(std::make_unique<Instrument>(client));
    return *rack.back();
  }

  JackServer server;
  // These go behind the service, which would answer to their going.
  std::vector<std::unique_ptr<Synth>> synths;
  std::vector<std::unique_ptr<Keyboard>> keyboards;
  std::unique_ptr<MidiService> service = MakeMachineMidiService(std::make_shared<BuiltinMicroQ>());
};

// The version that this was built with, its decimal digits read as hexadecimal ones: 5.0.0 is
// 0x0500.
std::uint32_t VersionOfRtMidi() {
  std::istringstream version(TESSORO_RTMIDI_VERSION);
  std::uint32_t major = 0;
  std::uint32_t minor = 0;
  char dot = 0;
  version >> std::hex >> major >> dot >> minor;
  return major << 8U | minor;
}

TEST_F(ServiceJackTest, ListsTheServersPortsBeforeTheBuiltInDevices) {
  Plug(synths, "synth");
  Plug(keyboards, "keyboard");
  EXPECT_THAT(OutNames(*service), HasInOrder("synth:in", "microQ (built-in)"));
  EXPECT_THAT(OutNames(*service), Not(Contains("keyboard:out")));
  EXPECT_THAT(InNames(*service), HasInOrder("keyboard:out", "Silence (built-in)"));
  EXPECT_THAT(InNames(*service), Not(Contains("synth:in")));

  MIDIOUTCAPS record;
  ASSERT_EQ(service->midiOutGetDevCapsA(0, record, 52), 0U);
  EXPECT_EQ(record.wTechnology, 1);
  EXPECT_EQ(record.vDriverVersion, VersionOfRtMidi());
}

TEST_F(ServiceJackTest, NeverListsItsOwnPorts) {
  Plug(synths, "synth");
  Plug(keyboards, "keyboard");
  const std::vector<std::string> outs = OutNames(*service);
  const std::vector<std::string> ins = InNames(*service);
  OpenThru(*service, "keyboard:out", OpenOut(*service, "synth:in"));
  EXPECT_EQ(OutNames(*service), outs);
  EXPECT_EQ(InNames(*service), ins);
}

TEST_F(ServiceJackTest, AChangeArrivesAsItsTenBytes) {
  Synth &synth = Plug(synths, "synth");
  const MidiHandle out = OpenOut(*service, "synth:in");
  ASSERT_EQ(SendLong(*service, out, Change(78, 64)), 0U);
  ASSERT_TRUE(Eventually([&] { return synth.Count() == 1; }));
  EXPECT_EQ(synth.Messages()[0],
            (Bytes{0xF0, 0x3E, 0x10, 0x00, 0x20, 0x00, 0x00, 0x4E, 0x40, 0xF7}));
}

TEST_F(ServiceJackTest, ShortMessagesArriveAsLongAsTheirStatusSays) {
  Synth &synth = Plug(synths, "synth");
  const MidiHandle out = OpenOut(*service, "synth:in");
  EXPECT_EQ(service->midiOutShortMsg(out, 0x00642490), 0U);
  EXPECT_EQ(service->midiOutShortMsg(out, 0x00007BC0), 0U);
  ASSERT_TRUE(Eventually([&] { return synth.Count() == 2; }));
  EXPECT_EQ(synth.Messages(), (std::vector<Bytes>{{0x90, 0x24, 0x64}, {0xC0, 0x7B}}));
}

TEST_F(ServiceJackTest, ANumberMeansThePortThatStoodThereWhenTheListWasRead) {
  auto early = std::make_unique<Synth>("a-synth");
  Synth &wanted = Plug(synths, "b-synth");
  const std::int32_t number = IndexOf(OutNames(*service), "b-synth:in");
  early.reset();
  MidiHandle out = 0;
  ASSERT_EQ(service->midiOutOpen(out, number, 1, 0, 0), 0U);
  ASSERT_EQ(SendLong(*service, out, Change(1, 2)), 0U);
  EXPECT_TRUE(Eventually([&] { return wanted.Count() == 1; }));
}

TEST_F(ServiceJackTest, OpeningAPortThatHasGoneFails) {
  auto synth = std::make_unique<Synth>("synth");
  const std::int32_t number = IndexOf(OutNames(*service), "synth:in");
  synth.reset();
  MidiHandle out = 77;
  EXPECT_EQ(service->midiOutOpen(out, number, 1, 0, 0), MidiResultCode::NoDevice);
  EXPECT_EQ(out, 77U);
}

TEST_F(ServiceJackTest, TwoThousandChangesArriveAtTheSpeedOfTheCableWithNotesBetweenThem) {
  constexpr int changes = 2000;
  constexpr int notes = 25;
  Synth &synth = Plug(synths, "synth");
  Keyboard &keyboard = Plug(keyboards, "keyboard");
  const MidiHandle out = OpenOut(*service, "synth:in");
  OpenThru(*service, "keyboard:out", out);

  const auto begin = Clock::now();
  for (int i = 0; i < changes; ++i) {
    ASSERT_EQ(SendLong(*service, out, Change(i % 384, i % 128)), 0U);
  }
  EXPECT_LT(Clock::now() - begin, 1s) << "sending waits for the cable";

  std::vector<Clock::time_point> played;
  for (int i = 0; i < notes; ++i) {
    std::this_thread::sleep_for(100ms);
    played.push_back(Clock::now());
    keyboard.Play({0x90, static_cast<std::uint8_t>(i), 100});
  }
  ASSERT_TRUE(Eventually([&] { return synth.Count() == changes + notes; }));

  int nextChange = 0;
  std::vector<Clock::duration> delays;
  for (const Arrival &each : synth.Arrivals()) {
    if (IsChange(each.bytes)) {
      ASSERT_EQ(each.bytes, Change(nextChange % 384, nextChange % 128));
      ++nextChange;
    } else {
      ASSERT_EQ(each.bytes, (Bytes{0x90, static_cast<std::uint8_t>(delays.size()), 100}));
      delays.push_back(each.time - played[delays.size()]);
    }
  }
  EXPECT_EQ(nextChange, changes);

  const auto arrivals = synth.Arrivals();
  const std::chrono::duration<double> took = arrivals.back().time - arrivals.front().time;
  const double bytes = (changes - 1) * 10 + notes * 3;
  EXPECT_GT(bytes / took.count(), 0.8 * CableBytesPerSecond);
  EXPECT_LT(bytes / took.count(), 1.1 * CableBytesPerSecond);

  // The median, because a busy machine may stop any one of them.
  std::sort(delays.begin(), delays.end());
  EXPECT_LT(delays[notes / 2], 10ms);
  RecordProperty("bytes_per_second", std::to_string(bytes / took.count()));
  RecordProperty("median_note_delay_us",
                 std::to_string(delays[notes / 2] / std::chrono::microseconds(1)));
  RecordProperty("longest_note_delay_us",
                 std::to_string(delays.back() / std::chrono::microseconds(1)));
}

TEST_F(ServiceJackTest, AThousandNotesPassWholeAndInOrderBetweenWholeChanges) {
  constexpr int notes = 1000;
  Synth &synth = Plug(synths, "synth");
  Keyboard &keyboard = Plug(keyboards, "keyboard");
  const MidiHandle out = OpenOut(*service, "synth:in");
  OpenThru(*service, "keyboard:out", out);

  int sentChanges = 0;
  for (int i = 0; i < notes; ++i) {
    keyboard.Play({0x90, static_cast<std::uint8_t>(i % 128), static_cast<std::uint8_t>(i / 128)});
    if (i % 4 == 0) {
      ASSERT_EQ(SendLong(*service, out, Change(sentChanges, sentChanges % 128)), 0U);
      ++sentChanges;
    }
    std::this_thread::sleep_for(1ms);
  }
  const std::size_t all = static_cast<std::size_t>(notes) + static_cast<std::size_t>(sentChanges);
  ASSERT_TRUE(Eventually([&] { return synth.Count() == all; })) << synth.Count() << " of " << all;

  int nextNote = 0;
  int nextChange = 0;
  for (const Bytes &each : synth.Messages()) {
    if (IsChange(each)) {
      ASSERT_EQ(each, Change(nextChange, nextChange % 128));
      ++nextChange;
    } else {
      ASSERT_EQ(each, (Bytes{0x90, static_cast<std::uint8_t>(nextNote % 128),
                             static_cast<std::uint8_t>(nextNote / 128)}));
      ++nextNote;
    }
  }
  EXPECT_EQ(nextNote, notes);
  EXPECT_EQ(nextChange, sentChanges);
}

TEST_F(ServiceJackTest, SystemMessagesPassThruToo) {
  Synth &synth = Plug(synths, "synth");
  Keyboard &keyboard = Plug(keyboards, "keyboard");
  const MidiHandle out = OpenOut(*service, "synth:in");
  OpenThru(*service, "keyboard:out", out);

  Bytes dump(392, 0x11);
  dump.front() = 0xF0;
  dump.back() = 0xF7;
  const std::vector<Bytes> played = {{0xF8}, dump, {0xFE}, {0xFA}, {0xF2, 1, 2}, {0xF8}};
  for (const Bytes &each : played) {
    keyboard.Play(each);
    std::this_thread::sleep_for(20ms);
  }
  ASSERT_TRUE(Eventually([&] { return synth.Count() == played.size(); }));
  EXPECT_EQ(synth.Messages(), played);
}

TEST_F(ServiceJackTest, NothingPassesThruWhenStoppedOrDisconnected) {
  Synth &synth = Plug(synths, "synth");
  Keyboard &keyboard = Plug(keyboards, "keyboard");
  const MidiHandle out = OpenOut(*service, "synth:in");
  const MidiHandle in = OpenThru(*service, "keyboard:out", out);

  ASSERT_EQ(service->midiInStop(in), 0U);
  keyboard.Play({0x90, 1, 1});
  std::this_thread::sleep_for(100ms);
  ASSERT_EQ(service->midiInStart(in), 0U);
  keyboard.Play({0x90, 2, 2});
  ASSERT_TRUE(Eventually([&] { return synth.Count() == 1; }));
  ASSERT_EQ(service->midiDisconnect(in, out), 0U);
  keyboard.Play({0x90, 3, 3});
  std::this_thread::sleep_for(100ms);
  EXPECT_EQ(synth.Messages(), (std::vector<Bytes>{{0x90, 2, 2}}));
}

TEST_F(ServiceJackTest, APortThatGoesMakesSendsFailUntilItIsBack) {
  auto synth = std::make_unique<Synth>("synth");
  const MidiHandle out = OpenOut(*service, "synth:in");
  ASSERT_EQ(SendLong(*service, out, Change(1, 1)), 0U);

  synth.reset();
  ASSERT_TRUE(Eventually([&] { return SendLong(*service, out, Change(2, 2)) != 0; }, 2s));
  EXPECT_EQ(SendLong(*service, out, Change(3, 3)), MidiResultCode::NoDevice);
  EXPECT_EQ(service->midiOutShortMsg(out, 0x00642490), MidiResultCode::NoDevice);

  synth = std::make_unique<Synth>("synth");
  ASSERT_TRUE(Eventually([&] { return SendLong(*service, out, Change(4, 4)) == 0; }, 5s));
  ASSERT_TRUE(Eventually([&] { return synth->Count() == 1; }));
  EXPECT_EQ(synth->Messages()[0], Change(4, 4));
  EXPECT_EQ(service->midiOutClose(out), 0U);
}

TEST_F(ServiceJackTest, AKeyboardThatComesBackPlaysAgain) {
  Synth &synth = Plug(synths, "synth");
  auto keyboard = std::make_unique<Keyboard>("keyboard");
  const MidiHandle out = OpenOut(*service, "synth:in");
  const MidiHandle in = OpenThru(*service, "keyboard:out", out);
  keyboard.reset();
  std::this_thread::sleep_for(600ms);
  keyboard = std::make_unique<Keyboard>("keyboard");
  EXPECT_TRUE(Eventually([&] {
    keyboard->Play({0x90, 60, 100});
    std::this_thread::sleep_for(20ms);
    return synth.Count() > 0;
  }));
  EXPECT_EQ(service->midiInClose(in), 0U);
}

TEST_F(ServiceJackTest, AServerThatDiesMakesSendsFailUntilItIsBack) {
  auto synth = std::make_unique<Synth>("synth");
  const MidiHandle out = OpenOut(*service, "synth:in");
  ASSERT_EQ(SendLong(*service, out, Change(1, 1)), 0U);

  // The synthesizer lives in this process, where JACK's library would destroy it with the server.
  synth.reset();
  server.Kill();
  ASSERT_TRUE(Eventually([&] { return SendLong(*service, out, Change(2, 2)) != 0; }));
  EXPECT_EQ(SendLong(*service, out, Change(2, 2)), MidiResultCode::NoDevice);
  EXPECT_THAT(OutNames(*service), Not(Contains("synth:in")));
  EXPECT_THAT(OutNames(*service), Contains("microQ (built-in)"));

  server.Start();
  synth = std::make_unique<Synth>("synth");
  ASSERT_TRUE(Eventually([&] { return SendLong(*service, out, Change(4, 4)) == 0; }));
  EXPECT_TRUE(Eventually([&] { return synth->Count() == 1; }));
}

TEST_F(ServiceJackTest, WhatIsSentRightAfterOpeningArrives) {
  constexpr int openings = 20;
  Synth &synth = Plug(synths, "synth");
  for (int i = 0; i < openings; ++i) {
    const MidiHandle out = OpenOut(*service, "synth:in");
    ASSERT_EQ(SendLong(*service, out, Change(i, 1)), 0U);
    ASSERT_EQ(service->midiOutClose(out), 0U);
  }
  EXPECT_TRUE(Eventually([&] { return synth.Count() == openings; }, 1s));
}

TEST_F(ServiceJackTest, ClosingFirstSendsWhatWasAccepted) {
  constexpr int changes = 200;
  Synth &synth = Plug(synths, "synth");
  const MidiHandle out = OpenOut(*service, "synth:in");
  for (int i = 0; i < changes; ++i) {
    ASSERT_EQ(SendLong(*service, out, Change(i, 1)), 0U);
  }
  EXPECT_EQ(service->midiOutClose(out), 0U);
  ASSERT_TRUE(Eventually([&] { return synth.Count() == changes; }, 1s));
  EXPECT_EQ(synth.Messages().back(), Change(changes - 1, 1));
}

TEST_F(ServiceJackTest, TheEndOfTheServiceFirstSendsWhatWasAccepted) {
  constexpr int changes = 50;
  Synth &synth = Plug(synths, "synth");
  const MidiHandle out = OpenOut(*service, "synth:in");
  for (int i = 0; i < changes; ++i) {
    ASSERT_EQ(SendLong(*service, out, Change(i, 1)), 0U);
  }
  service.reset();
  EXPECT_TRUE(Eventually([&] { return synth.Count() == changes; }, 1s));
}

TEST_F(ServiceJackTest, ClosingDoesNotWaitForAPortThatHasGone) {
  auto synth = std::make_unique<Synth>("synth");
  const MidiHandle out = OpenOut(*service, "synth:in");
  for (int i = 0; i < 3000; ++i) { // ten seconds of cable
    ASSERT_EQ(SendLong(*service, out, Change(i % 384, 1)), 0U);
  }
  synth.reset();
  const auto begin = Clock::now();
  EXPECT_EQ(service->midiOutClose(out), 0U);
  EXPECT_LT(Clock::now() - begin, 3s);
}

// No fixture: no server runs here.
TEST(ServiceWithoutJackTest, TheBuiltInDevicesAreThereAndNothingIsPrinted) {
  setenv("JACK_DEFAULT_SERVER", "tessoro-no-such-server", 1);
  testing::internal::CaptureStderr();
  testing::internal::CaptureStdout();
  {
    const auto service = MakeMachineMidiService(std::make_shared<BuiltinMicroQ>());
    EXPECT_THAT(OutNames(*service), Contains("microQ (built-in)"));
    EXPECT_THAT(InNames(*service), Contains("Silence (built-in)"));
  }
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  unsetenv("JACK_DEFAULT_SERVER");
}

} // namespace
} // namespace Tessoro::Tests
