#include "service/builtin/MessageInbox.hpp"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace Tessoro {
namespace {

using Bytes = std::vector<std::uint8_t>;

TEST(ServiceMessageInboxTest, GivesWhatCameSinceTheLastTime) {
  BuiltinMicroQ microQ;
  MessageInbox inbox(100);
  microQ.AddListener(inbox);
  microQ.Receive(Bytes{0x90, 60, 100});
  microQ.Receive(Bytes{0x90, 60, 0});
  const auto first = inbox.Take();
  ASSERT_EQ(first.messages.size(), 2U);
  EXPECT_EQ(first.messages[0].meaning.kind, MicroQMessageKind::NoteOn);
  EXPECT_EQ(first.messages[1].meaning.kind, MicroQMessageKind::NoteOff);
  EXPECT_LE(first.messages[0].time, first.messages[1].time);
  EXPECT_TRUE(inbox.Take().messages.empty());
}

TEST(ServiceMessageInboxTest, KeepsTheNewestAndCountsTheRest) {
  BuiltinMicroQ microQ;
  MessageInbox inbox(3);
  microQ.AddListener(inbox);
  for (std::uint8_t i = 0; i < 5; ++i)
    microQ.Receive(Bytes{0xC0, i});
  const auto news = inbox.Take();
  EXPECT_EQ(news.skipped, 2U);
  ASSERT_EQ(news.messages.size(), 3U);
  EXPECT_EQ(news.messages[0].meaning.number, 2);
  EXPECT_EQ(inbox.Total(), 5U);
  EXPECT_EQ(inbox.Take().skipped, 0U);
}

TEST(ServiceMessageInboxTest, KeepsTheBeginningOfALongMessage) {
  BuiltinMicroQ microQ;
  MessageInbox inbox(3);
  microQ.AddListener(inbox);
  Bytes dump(392, 0x01);
  dump.front() = 0xF0;
  dump.back() = 0xF7;
  microQ.Receive(dump);
  microQ.Receive(Bytes{0xF8});
  const auto news = inbox.Take();
  EXPECT_EQ(news.messages.at(0).length, 392U);
  EXPECT_EQ(news.messages.at(0).KeptBytes().size(), 32U);
  EXPECT_EQ(news.messages.at(1).KeptBytes().size(), 1U);
}

TEST(ServiceMessageInboxTest, LosesNothingOfAHundredThousandMessagesThatAreTakenMeanwhile) {
  constexpr int count = 100'000;
  BuiltinMicroQ microQ;
  MessageInbox inbox(count);
  microQ.AddListener(inbox);
  std::thread sender([&microQ] {
    for (int i = 0; i < count; ++i)
      microQ.Receive(Bytes{0xB0, static_cast<std::uint8_t>(i / 128 % 128),
                           static_cast<std::uint8_t>(i % 128)});
  });
  int next = 0;
  while (next < count) {
    for (const LoggedMessage &message : inbox.Take().messages) {
      ASSERT_EQ(message.meaning.number, next / 128 % 128);
      ASSERT_EQ(message.meaning.value, next % 128);
      ++next;
    }
  }
  sender.join();
  EXPECT_EQ(inbox.Total(), static_cast<std::uint64_t>(count));
}

TEST(ServiceMessageInboxTest, RingsOnceForWhatComesNext) {
  BuiltinMicroQ microQ;
  MessageInbox inbox(3);
  microQ.AddListener(inbox);
  int rings = 0;
  EXPECT_FALSE(inbox.RingAtNext(0)) << "nobody hears it";
  inbox.SetBell([&rings] { ++rings; });
  microQ.Receive(Bytes{0xF8});
  EXPECT_EQ(rings, 0) << "nobody asked";
  EXPECT_FALSE(inbox.RingAtNext(0)) << "there is one already";
  EXPECT_TRUE(inbox.RingAtNext(1));
  microQ.Receive(Bytes{0xF8});
  microQ.Receive(Bytes{0xF8});
  EXPECT_EQ(rings, 1);
  EXPECT_TRUE(inbox.RingAtNext(3));
  inbox.SetBell({});
  microQ.Receive(Bytes{0xF8});
  EXPECT_EQ(rings, 1);
}

TEST(ServiceBuiltinMicroQTest, AControllerChangesTheParameterThatItStandsFor) {
  BuiltinMicroQ microQ;
  microQ.Receive(Bytes{0xB3, 29, 60});
  EXPECT_EQ(microQ.State().parameters[3], 60);
  EXPECT_EQ(microQ.State().controllers[3][29], 60);
  microQ.Receive(Bytes{0xB3, 68, 1});
  EXPECT_EQ(microQ.State().controllers[3][68], 1);
}

} // namespace
} // namespace Tessoro
