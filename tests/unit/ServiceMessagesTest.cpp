// Messages on their way: how long they are, how they queue, how they are put together.
#include "service/MessageAssembler.hpp"
#include "service/MessageLength.hpp"
#include "service/MessageRing.hpp"

#include <gtest/gtest.h>

#include <thread>

namespace Tessoro {
namespace {

using Bytes = std::vector<std::uint8_t>;

TEST(ServiceMessageLengthTest, TheStatusTellsTheLength) {
  EXPECT_EQ(ShortMessageLength(0x80), 3U);
  EXPECT_EQ(ShortMessageLength(0x9F), 3U);
  EXPECT_EQ(ShortMessageLength(0xB0), 3U);
  EXPECT_EQ(ShortMessageLength(0xC0), 2U);
  EXPECT_EQ(ShortMessageLength(0xDF), 2U);
  EXPECT_EQ(ShortMessageLength(0xE0), 3U);
  EXPECT_EQ(ShortMessageLength(0xF1), 2U);
  EXPECT_EQ(ShortMessageLength(0xF2), 3U);
  EXPECT_EQ(ShortMessageLength(0xF3), 2U);
  EXPECT_EQ(ShortMessageLength(0xF6), 1U);
  EXPECT_EQ(ShortMessageLength(0xFE), 1U);
}

TEST(ServiceMessageLengthTest, DataAndSysExBeginNoShortMessage) {
  EXPECT_EQ(ShortMessageLength(0x00), 0U);
  EXPECT_EQ(ShortMessageLength(0x7F), 0U);
  EXPECT_EQ(ShortMessageLength(0xF0), 0U);
  EXPECT_EQ(ShortMessageLength(0xF7), 0U);
}

TEST(ServiceMessageRingTest, GivesBackWhatWasPutInItsOrder) {
  MessageRing ring(64);
  Bytes taken;
  EXPECT_TRUE(ring.Empty());
  EXPECT_FALSE(ring.Take(taken));
  ASSERT_TRUE(ring.Put(Bytes{1, 2, 3}));
  ASSERT_TRUE(ring.Put(Bytes{4}));
  EXPECT_FALSE(ring.Empty());
  ASSERT_TRUE(ring.Take(taken));
  EXPECT_EQ(taken, (Bytes{1, 2, 3}));
  ASSERT_TRUE(ring.Take(taken));
  EXPECT_EQ(taken, (Bytes{4}));
  EXPECT_TRUE(ring.Empty());
}

TEST(ServiceMessageRingTest, RefusesWhatDoesNotFitAndTakesItLater) {
  MessageRing ring(32);
  Bytes taken;
  ASSERT_TRUE(ring.Put(Bytes(12, 1)));
  ASSERT_TRUE(ring.Put(Bytes(12, 2)));
  EXPECT_FALSE(ring.Put(Bytes{3}));
  ASSERT_TRUE(ring.Take(taken));
  EXPECT_TRUE(ring.Put(Bytes{3}));
  ASSERT_TRUE(ring.Take(taken));
  EXPECT_EQ(taken, Bytes(12, 2));
  ASSERT_TRUE(ring.Take(taken));
  EXPECT_EQ(taken, (Bytes{3}));
}

TEST(ServiceMessageRingTest, MessagesStayWholeAcrossTheEndOfTheBlock) {
  MessageRing ring(64);
  Bytes taken;
  for (std::size_t i = 0; i < 200; ++i) {
    const Bytes put(i % 23, static_cast<std::uint8_t>(i));
    ASSERT_TRUE(ring.Put(put)) << i;
    ASSERT_TRUE(ring.Take(taken)) << i;
    ASSERT_EQ(taken, put) << i;
  }
}

TEST(ServiceMessageRingTest, TwoThreadsLoseNothing) {
  constexpr std::uint32_t count = 200000;
  MessageRing ring(256);
  std::thread putter([&ring] {
    for (std::uint32_t i = 0; i < count;) {
      const Bytes put(i % 11 + 1, static_cast<std::uint8_t>(i));
      if (ring.Put(put)) {
        ++i;
      } else {
        std::this_thread::yield();
      }
    }
  });
  Bytes taken;
  std::uint32_t wrong = 0;
  for (std::uint32_t i = 0; i < count;) {
    if (ring.Take(taken)) {
      wrong += taken == Bytes(i % 11 + 1, static_cast<std::uint8_t>(i)) ? 0U : 1U;
      ++i;
    } else {
      std::this_thread::yield();
    }
  }
  putter.join();
  EXPECT_EQ(wrong, 0U);
}

class ServiceMessageAssemblerTest : public testing::Test {
protected:
  std::vector<Bytes> heard;
  MessageAssembler assembler{
      [this](MidiBytes message) { heard.emplace_back(message.begin(), message.end()); }};

  void Feed(const Bytes &bytes) { assembler.Feed(bytes); }
};

TEST_F(ServiceMessageAssemblerTest, PassesWholeMessages) {
  Feed({0x90, 60, 100});
  Feed({0xC0, 5});
  Feed({0xF0, 0x3E, 0x10, 0xF7});
  EXPECT_EQ(heard, (std::vector<Bytes>{{0x90, 60, 100}, {0xC0, 5}, {0xF0, 0x3E, 0x10, 0xF7}}));
}

TEST_F(ServiceMessageAssemblerTest, JoinsALongMessageThatComesInPieces) {
  Feed({0xF0, 1, 2});
  Feed({3, 4});
  EXPECT_TRUE(heard.empty());
  Feed({5, 0xF7});
  EXPECT_EQ(heard, (std::vector<Bytes>{{0xF0, 1, 2, 3, 4, 5, 0xF7}}));
}

TEST_F(ServiceMessageAssemblerTest, TakesTheClockOutOfALongMessage) {
  Feed({0xF0, 1, 0xF8});
  Feed({2, 0xF7});
  EXPECT_EQ(heard, (std::vector<Bytes>{{0xF8}, {0xF0, 1, 2, 0xF7}}));
}

TEST_F(ServiceMessageAssemblerTest, DropsWhatIsNeverFinished) {
  Feed({0xF0, 1, 2});
  Feed({0x90, 60, 100});
  Feed({7, 0xF7, 8});
  EXPECT_EQ(heard, (std::vector<Bytes>{{0x90, 60, 100}}));
}

TEST_F(ServiceMessageAssemblerTest, ParsesSeveralMessagesInOnePiece) {
  Feed({0x90, 60, 100, 0x80, 60, 0, 0xFE});
  EXPECT_EQ(heard, (std::vector<Bytes>{{0x90, 60, 100}, {0x80, 60, 0}, {0xFE}}));
}

} // namespace
} // namespace Tessoro
