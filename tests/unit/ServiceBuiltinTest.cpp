#include "service/builtin/BuiltinMicroQ.hpp"
#include "service/builtin/BuiltinSource.hpp"
#include "tests/unit/MicroQMessages.hpp"

#include <gtest/gtest.h>

#include <string>
#include <thread>

namespace Tessoro {
namespace {

using Kind = MicroQMessageKind;

struct MeaningRow {
  const char *name;
  Bytes bytes;
  Kind kind;
  int channel;
  int number;
  int value;
};

class ServiceMicroQMessageTest : public testing::TestWithParam<MeaningRow> {};

TEST_P(ServiceMicroQMessageTest, IsUnderstood) {
  const MicroQMessage understood = Understand(GetParam().bytes);
  EXPECT_EQ(understood.kind, GetParam().kind);
  EXPECT_EQ(understood.channel, GetParam().channel);
  EXPECT_EQ(understood.number, GetParam().number);
  EXPECT_EQ(understood.value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Messages, ServiceMicroQMessageTest,
    testing::Values(
        MeaningRow{"FirstBlock", Change(0, 78, 64), Kind::SoundParameter, 0, 78, 64},
        MeaningRow{"EndOfFirstBlock", Change(0, 127, 0), Kind::SoundParameter, 0, 127, 0},
        MeaningRow{"SecondBlock", Change(1, 0, 127), Kind::SoundParameter, 0, 128, 127},
        MeaningRow{"EndOfSecondBlock", Change(1, 127, 1), Kind::SoundParameter, 0, 255, 1},
        MeaningRow{"ThirdBlock", Change(2, 0, 1), Kind::SoundParameter, 0, 257, 1},
        MeaningRow{"InThirdBlock", Change(2, 0x6A, 0x41), Kind::SoundParameter, 0, 363, 65},
        MeaningRow{"LastParameter", Change(2, 126, 9), Kind::SoundParameter, 0, 383, 9},
        MeaningRow{"BehindTheLast", Change(2, 127, 9), Kind::Malformed, 0, 0, 0},
        MeaningRow{"NoParameterZero", Change(0, 0, 9), Kind::Malformed, 0, 0, 0},
        MeaningRow{"NoFourthBlock", Change(3, 0, 9), Kind::Malformed, 0, 0, 0},
        MeaningRow{"StatusInTheAddress", Change(1, 128, 9), Kind::Malformed, 0, 0, 0},
        MeaningRow{"StatusInTheValue", Change(1, 1, 128), Kind::Malformed, 0, 0, 0},
        MeaningRow{"OtherSynthesizer", {0xF0, 0x41, 1, 2, 0xF7}, Kind::OtherSysEx, 0, 0, 0},
        MeaningRow{"CutSysEx", {0xF0, 0x3E, 0x10}, Kind::Malformed, 0, 0, 0},
        MeaningRow{"OnlyAStart", {0xF0}, Kind::Malformed, 0, 0, 0},
        MeaningRow{"NoteOn", {0x93, 60, 100}, Kind::NoteOn, 3, 60, 100},
        MeaningRow{"NoteWithoutVelocity", {0x93, 60, 0}, Kind::NoteOff, 3, 60, 0},
        MeaningRow{"NoteOff", {0x8F, 60, 40}, Kind::NoteOff, 15, 60, 40},
        MeaningRow{"KeyPressure", {0xA0, 60, 7}, Kind::KeyPressure, 0, 60, 7},
        MeaningRow{"Controller", {0xB0, 52, 1}, Kind::Controller, 0, 52, 1},
        MeaningRow{"Program", {0xC0, 123}, Kind::Program, 0, 123, 0},
        MeaningRow{"ChannelPressure", {0xD1, 9}, Kind::ChannelPressure, 1, 0, 9},
        MeaningRow{"PitchBend", {0xE0, 0, 64}, Kind::PitchBend, 0, 0, 8192},
        MeaningRow{"SongPosition", {0xF2, 1, 2}, Kind::SystemCommon, 0, 0, 0},
        MeaningRow{"Clock", {0xF8}, Kind::RealTime, 0, 0, 0},
        MeaningRow{"Nothing", {}, Kind::Malformed, 0, 0, 0},
        MeaningRow{"OnlyData", {1, 2, 3}, Kind::Malformed, 0, 0, 0},
        MeaningRow{"CutNote", {0x90, 60}, Kind::Malformed, 0, 0, 0},
        MeaningRow{"LongNote", {0x90, 60, 1, 1}, Kind::Malformed, 0, 0, 0},
        MeaningRow{"StatusInANote", {0x90, 60, 0x80}, Kind::Malformed, 0, 0, 0}),
    [](const auto &row) { return std::string(row.param.name); });

class Diary final : public MicroQListener {
public:
  void DeviceOpened() override { entries.emplace_back("opened"); }
  void DeviceClosed() override { entries.emplace_back("closed"); }
  void MessageArrived(const ReceivedMessage &message) override {
    entries.push_back(std::to_string(message.bytes.size()) + " bytes");
    times.push_back(message.time);
    kinds.push_back(message.meaning.kind);
  }

  std::vector<std::string> entries;
  std::vector<std::chrono::steady_clock::time_point> times;
  std::vector<Kind> kinds;
};

TEST(ServiceBuiltinMicroQTest, KnowsNothingAtFirst) {
  const BuiltinMicroQ microQ;
  const MicroQState state = microQ.State();
  EXPECT_EQ(state.parameters[78], -1);
  EXPECT_EQ(state.controllers[0][52], -1);
  EXPECT_EQ(state.notes[0][60], 0);
}

TEST(ServiceBuiltinMicroQTest, KeepsWhatItIsTold) {
  BuiltinMicroQ microQ;
  microQ.Receive(Change(0, 78, 64));
  microQ.Receive(Change(0, 78, 65));
  microQ.Receive(Bytes{0xB2, 52, 127});
  microQ.Receive(Bytes{0x91, 60, 100});
  microQ.Receive(Bytes{0x91, 61, 90});
  microQ.Receive(Bytes{0x91, 60, 0});
  const MicroQState state = microQ.State();
  EXPECT_EQ(state.parameters[78], 65);
  EXPECT_EQ(state.controllers[2][52], 127);
  EXPECT_EQ(state.notes[1][60], 0);
  EXPECT_EQ(state.notes[1][61], 90);
}

TEST(ServiceBuiltinMicroQTest, AllNotesOffEndsTheNotesOfItsChannel) {
  BuiltinMicroQ microQ;
  microQ.Receive(Bytes{0x91, 60, 100});
  microQ.Receive(Bytes{0x92, 60, 100});
  microQ.Receive(Bytes{0xB1, 123, 0});
  EXPECT_EQ(microQ.State().notes[1][60], 0);
  EXPECT_EQ(microQ.State().notes[2][60], 100);
}

TEST(ServiceBuiltinMicroQTest, AMalformedMessageIsShownAndChangesNothing) {
  BuiltinMicroQ microQ;
  Diary diary;
  microQ.AddListener(diary);
  microQ.Receive(Change(1, 128, 5));
  EXPECT_EQ(diary.kinds, (std::vector<Kind>{Kind::Malformed}));
  EXPECT_EQ(microQ.State().parameters[256], -1);
}

TEST(ServiceBuiltinMicroQTest, AListenerHearsAllInOrderUntilItIsRemoved) {
  const auto microQ = std::make_shared<BuiltinMicroQ>();
  const auto source = MakeBuiltinSource(microQ);
  Diary diary;
  microQ->AddListener(diary);
  std::unique_ptr<OutputEnd> end;
  ASSERT_EQ(source->OpenOut(source->OutDevices().at(0).key, end), MidiResultCode::Success);
  EXPECT_EQ(end->Send(Change(0, 1, 2)), MidiResultCode::Success);
  end->SendThru(Bytes{0x90, 1, 2});
  end.reset();
  microQ->RemoveListener(diary);
  microQ->Receive(Bytes{0xF8});
  EXPECT_EQ(diary.entries, (std::vector<std::string>{"opened", "10 bytes", "3 bytes", "closed"}));
  EXPECT_LE(diary.times[0], diary.times[1]);
}

TEST(ServiceBuiltinMicroQTest, TakesMessagesFromSeveralThreadsWithoutLosingAny) {
  BuiltinMicroQ microQ;
  Diary diary;
  microQ.AddListener(diary);
  const auto flood = [&microQ] {
    for (int i = 0; i < 20000; ++i) {
      microQ.Receive(Bytes{0x90, 1, 2});
    }
  };
  std::thread other(flood);
  flood();
  other.join();
  EXPECT_EQ(diary.kinds.size(), 40000U);
}

TEST(ServiceBuiltinSourceTest, TheDevicesSayWhatTheyAre) {
  const auto source = MakeBuiltinSource(std::make_shared<BuiltinMicroQ>());
  ASSERT_EQ(source->OutDevices().size(), 1U);
  const MIDIOUTCAPS out = source->OutDevices()[0].capabilities;
  EXPECT_STREQ(out.szPname.data(), "microQ (built-in)");
  EXPECT_EQ(out.wTechnology, 2);
  ASSERT_EQ(source->InDevices().size(), 1U);
  EXPECT_STREQ(source->InDevices()[0].capabilities.szPname.data(), "Silence (built-in)");
}

} // namespace
} // namespace Tessoro
