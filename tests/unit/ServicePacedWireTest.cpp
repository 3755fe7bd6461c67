#include "service/PacedWire.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace Tessoro {
namespace {

using namespace std::chrono_literals;
using Bytes = std::vector<std::uint8_t>;
using Clock = std::chrono::steady_clock;

// What the test sees of the port, which the wire owns.
struct Port {
  struct Arrival {
    Clock::time_point time;
    Bytes bytes;
  };

  std::mutex mutex;
  std::vector<Arrival> arrivals;
  std::atomic<bool> isThere{true};
  std::atomic<bool> refuses{false};
  std::atomic<int> refused{0};
  std::atomic<bool> isHeld{false}; // a send waits as long as this is set

  std::vector<Bytes> Messages() {
    const std::lock_guard lock(mutex);
    std::vector<Bytes> messages;
    for (const Arrival &each : arrivals) {
      messages.push_back(each.bytes);
    }
    return messages;
  }

  std::size_t Count() { return Messages().size(); }
};

class PortEnd final : public WireEnd {
public:
  explicit PortEnd(Port &watched) : port(watched) {}

  bool Send(MidiBytes message) override {
    while (port.isHeld) {
      std::this_thread::sleep_for(1ms);
    }
    if (port.refuses) {
      ++port.refused;
      return false;
    }
    const std::lock_guard lock(port.mutex);
    port.arrivals.push_back({Clock::now(), Bytes(message.begin(), message.end())});
    return true;
  }

  bool IsPresent() override { return port.isThere; }
  std::size_t LongestMessage() const override { return 1000; }

private:
  Port &port;
};

bool Eventually(const std::function<bool()> &condition) {
  const auto deadline = Clock::now() + 10s;
  while (!condition()) {
    if (Clock::now() > deadline) {
      return false;
    }
    std::this_thread::sleep_for(1ms);
  }
  return true;
}

Bytes Change(std::size_t i) {
  Bytes change(10, static_cast<std::uint8_t>(i % 128));
  change.front() = 0xF0;
  change.back() = 0xF7;
  return change;
}

Bytes Note(std::size_t i) { return {0x90, static_cast<std::uint8_t>(i % 128), 100}; }

class ServicePacedWireTest : public testing::Test {
protected:
  Port port;
  std::unique_ptr<PacedWire> wire;

  void Open(double bytesPerSecond) {
    wire = std::make_unique<PacedWire>(std::make_unique<PortEnd>(port), bytesPerSecond);
  }
};

TEST_F(ServicePacedWireTest, MessagesArriveWholeAndInOrder) {
  Open(UnlimitedBytesPerSecond);
  std::vector<Bytes> sent;
  for (std::size_t i = 0; i < 3000; ++i) {
    sent.push_back(i % 3 == 0 ? Note(i) : Change(i));
    ASSERT_EQ(wire->Send(sent.back()), MidiResultCode::Success);
  }
  ASSERT_TRUE(Eventually([this] { return port.Count() == 3000; }));
  EXPECT_EQ(port.Messages(), sent);
}

TEST_F(ServicePacedWireTest, AMessageWakesTheThreadAtOnce) {
  Open(CableBytesPerSecond);
  std::vector<Clock::duration> delays;
  for (std::size_t i = 0; i < 15; ++i) {
    std::this_thread::sleep_for(20ms);
    const auto begin = Clock::now();
    ASSERT_EQ(wire->Send(Change(i)), MidiResultCode::Success);
    ASSERT_TRUE(Eventually([this, i] { return port.Count() == i + 1; }));
    delays.push_back(port.arrivals.back().time - begin);
  }
  std::sort(delays.begin(), delays.end());
  EXPECT_LT(delays[delays.size() / 2], 10ms);
}

TEST_F(ServicePacedWireTest, ThePaceIsThatOfTheCable) {
  constexpr std::size_t count = 200;
  Open(CableBytesPerSecond);
  for (std::size_t i = 0; i < count; ++i) {
    ASSERT_EQ(wire->Send(Change(i)), MidiResultCode::Success);
  }
  ASSERT_TRUE(Eventually([this] { return port.Count() == count; }));
  const std::chrono::duration<double> took = port.arrivals.back().time - port.arrivals.front().time;
  const double rate = (count - 1) * 10 / took.count();
  EXPECT_GT(rate, 0.8 * CableBytesPerSecond);
  EXPECT_LT(rate, 1.1 * CableBytesPerSecond);
}

// At no time may more have been handed over than the cable has carried and the small lead allows.
TEST_F(ServicePacedWireTest, NeverMoreThanASmallLeadIsHandedOver) {
  Open(CableBytesPerSecond);
  for (std::size_t i = 0; i < 100; ++i) {
    ASSERT_EQ(wire->Send(Change(i)), MidiResultCode::Success);
    if (i % 4 == 0) {
      wire->SendThru(Note(i));
    }
  }
  ASSERT_TRUE(Eventually([this] { return port.Count() == 125; }));
  const auto begin = port.arrivals.front().time;
  double handedOver = 0;
  for (const auto &each : port.arrivals) {
    handedOver += static_cast<double>(each.bytes.size());
    const double carried = std::chrono::duration<double>(each.time - begin).count() * 3125;
    // The pace may only be late against its own clock, which is read just before the hand-over.
    ASSERT_LE(handedOver - carried, 24 + 10 + 10);
  }
}

TEST_F(ServicePacedWireTest, ANotePassesBetweenTwoQueuedMessages) {
  Open(CableBytesPerSecond);
  for (std::size_t i = 0; i < 100; ++i) {
    ASSERT_EQ(wire->Send(Change(i)), MidiResultCode::Success);
  }
  ASSERT_TRUE(Eventually([this] { return port.Count() >= 5; }));
  const std::size_t before = port.Count();
  wire->SendThru(Note(1));
  ASSERT_TRUE(Eventually([this] { return port.Count() == 101; }));
  const auto messages = port.Messages();
  const auto place = std::find(messages.begin(), messages.end(), Note(1)) - messages.begin();
  EXPECT_GE(static_cast<std::size_t>(place), before);
  EXPECT_LE(static_cast<std::size_t>(place), before + 10); // a busy machine may pause this test
}

TEST_F(ServicePacedWireTest, AFullThruStreamLeavesGapsForTheEditor) {
  Open(CableBytesPerSecond);
  port.isHeld = true;
  ASSERT_EQ(wire->Send(Change(0)), MidiResultCode::Success);
  for (std::size_t i = 0; i < 200; ++i) {
    wire->SendThru(Note(i));
  }
  ASSERT_EQ(wire->Send(Change(1)), MidiResultCode::Success);
  ASSERT_EQ(wire->Send(Change(2)), MidiResultCode::Success);
  port.isHeld = false;
  ASSERT_TRUE(Eventually([this] { return port.Count() == 203; }));
  const auto messages = port.Messages();
  const auto last = std::find(messages.begin(), messages.end(), Change(2)) - messages.begin();
  EXPECT_LE(last, 26) << "the editor waits for the end of the stream";
}

TEST_F(ServicePacedWireTest, ClosingFirstSendsWhatWasAccepted) {
  Open(CableBytesPerSecond);
  for (std::size_t i = 0; i < 50; ++i) {
    ASSERT_EQ(wire->Send(Change(i)), MidiResultCode::Success);
  }
  wire.reset();
  EXPECT_EQ(port.Count(), 50U);
}

TEST_F(ServicePacedWireTest, ClosingDropsTheRestWhenThePortHasGone) {
  Open(CableBytesPerSecond);
  for (std::size_t i = 0; i < 5000; ++i) { // sixteen seconds of cable
    ASSERT_EQ(wire->Send(Change(i)), MidiResultCode::Success);
  }
  port.isThere = false;
  const auto begin = Clock::now();
  wire.reset();
  EXPECT_LT(Clock::now() - begin, 5s);
}

TEST_F(ServicePacedWireTest, SendsFailWhileThePortIsAway) {
  Open(CableBytesPerSecond);
  port.isThere = false;
  ASSERT_TRUE(Eventually([this] { return wire->Send(Change(1)) == MidiResultCode::NoDevice; }));
  EXPECT_EQ(wire->Send(Change(2)), MidiResultCode::NoDevice);
  port.isThere = true;
  ASSERT_TRUE(Eventually([this] { return wire->Send(Change(3)) == MidiResultCode::Success; }));
  EXPECT_TRUE(Eventually([this] {
    const auto messages = port.Messages();
    return !messages.empty() && messages.back() == Change(3);
  }));
}

TEST_F(ServicePacedWireTest, ARefusedMessageMakesTheNextSendFailOnce) {
  Open(CableBytesPerSecond);
  port.refuses = true;
  ASSERT_EQ(wire->Send(Change(1)), MidiResultCode::Success);
  ASSERT_TRUE(Eventually([this] { return port.refused == 1; }));
  port.refuses = false;
  std::vector<Bytes> sent;
  const auto sendNext = [&] {
    sent.push_back(Change(sent.size() + 2));
    return wire->Send(sent.back());
  };
  ASSERT_TRUE(Eventually([&] { return sendNext() == MidiResultCode::NotReady; }));
  EXPECT_EQ(sendNext(), MidiResultCode::Success);
  ASSERT_TRUE(Eventually([&] { return port.Count() == sent.size(); }));
  EXPECT_EQ(port.Messages(), sent);
}

TEST_F(ServicePacedWireTest, ARefusedNoteOfTheThruConnectionCostsNoChange) {
  Open(CableBytesPerSecond);
  port.refuses = true;
  wire->SendThru(Note(60));
  ASSERT_TRUE(Eventually([this] { return port.refused == 1; }));
  port.refuses = false;
  EXPECT_EQ(wire->Send(Change(1)), MidiResultCode::Success);
  EXPECT_TRUE(Eventually([this] { return port.Count() == 1; }));
}

TEST_F(ServicePacedWireTest, AMessageThatThePortCannotTakeIsNotAccepted) {
  Open(CableBytesPerSecond);
  EXPECT_EQ(wire->Send(Bytes(1000, 1)), MidiResultCode::Success);
  EXPECT_EQ(wire->Send(Bytes(1001, 1)), MidiResultCode::InvalidParameter);
}

TEST_F(ServicePacedWireTest, AFullQueueRefusesInsteadOfWaiting) {
  Open(CableBytesPerSecond);
  port.isHeld = true;
  MidiResult result = MidiResultCode::Success;
  for (std::size_t i = 0; i < 2000 && result == MidiResultCode::Success; ++i) {
    result = wire->Send(Bytes(1000, 1));
  }
  EXPECT_EQ(result, MidiResultCode::NotReady);
  port.isThere = false;
  port.isHeld = false;
}

} // namespace
} // namespace Tessoro
