// The monitor as a program of its own, on a JACK server and on a machine without one.
#include "tests/endtoend/JackInstruments.hpp"
#include "tests/endtoend/JackServer.hpp"
#include "tests/endtoend/RunningMonitor.hpp"

#include "service/MachineMidi.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>

namespace Tessoro::Tests {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const std::string NoServer = "JACK_DEFAULT_SERVER=tessoro-test-no-server";

TEST(MonitorTest, HelpTellsTheWordsAndNeedsNoMachine) {
  RunningMonitor monitor("--help", {NoServer});
  EXPECT_EQ(monitor.ExitStatus(), 0);
  EXPECT_THAT(monitor.Output(), HasSubstr("--text"));
  EXPECT_EQ(monitor.Errors(), "");
}

TEST(MonitorTest, AWordThatItDoesNotKnowIsToldInOneLine) {
  RunningMonitor monitor("--loud");
  EXPECT_EQ(monitor.ExitStatus(), 2);
  EXPECT_EQ(monitor.Errors(),
            "tessoro-monitor: '--loud' is not understood; --help tells what is\n");
}

TEST(MonitorTest, SaysInOneLineThatNobodyAnswers) {
  RunningMonitor monitor("--text --jack", {NoServer});
  EXPECT_EQ(monitor.ExitStatus(), 1);
  EXPECT_EQ(monitor.Output(), "");
  EXPECT_EQ(monitor.Errors(),
            "tessoro-monitor: there is no JACK server here that would grant a MIDI port\n");
}

// The library of ALSA finds no sequencer without its settings.
TEST(MonitorTest, SaysInOneLineThatThereIsNeitherAlsaNorJack) {
  for (const char *form : {"", "--text"}) {
    RunningMonitor monitor(form,
                           {NoServer, "ALSA_CONFIG_PATH=/dev/null", "QT_QPA_PLATFORM=offscreen"});
    EXPECT_EQ(monitor.ExitStatus(), 1);
    EXPECT_EQ(monitor.Output(), "");
    EXPECT_EQ(monitor.Errors(), "tessoro-monitor: there is neither the ALSA sequencer nor a JACK "
                                "server here that would grant a MIDI port\n");
  }
}

class MonitorJackTest : public testing::Test {
protected:
  explicit MonitorJackTest(const std::string &arguments = "--text --jack",
                           const std::vector<std::string> &environment = {})
      : monitor(arguments, environment) {
    if (Eventually([&] { return FindMonitor(); }))
      service->midiOutOpen(out, number, 1, 0, 0);
  }

  bool FindMonitor() {
    MIDIOUTCAPS record;
    const auto count = static_cast<std::int32_t>(service->midiOutGetNumDevs());
    for (number = 0; number < count; ++number)
      if (service->midiOutGetDevCapsA(number, record, sizeof record) == 0 &&
          std::string(record.szPname.data()) == "microQ (monitor)")
        return true;
    return false;
  }

  void SendCutoff(std::uint8_t value) {
    const Bytes bytes{0xF0, 0x3E, 0x10, 0x00, 0x20, 0x00, 0x00, 0x4E, value, 0xF7};
    MIDIHDR header;
    header.lpData = bytes.data();
    header.dwBufferLength = static_cast<std::uint32_t>(bytes.size());
    const std::uint32_t size = 24 + header.dwBufferLength;
    ASSERT_EQ(service->midiOutPrepareHeader(out, header, size), 0U);
    ASSERT_EQ(service->midiOutLongMsg(out, header, size), 0U);
    service->midiOutUnprepareHeader(out, header, size);
  }

  JackServer server;
  RunningMonitor monitor;
  std::unique_ptr<MidiService> service = MakeMachineMidiService(std::make_shared<BuiltinMicroQ>());
  std::int32_t number = 0;
  MidiHandle out = 0;
};

TEST_F(MonitorJackTest, PrintsWhatAnotherProgramSends) {
  ASSERT_NE(out, 0U) << monitor.Errors();
  SendCutoff(64);
  service->midiOutShortMsg(out, 0x00643C90);
  service->midiOutShortMsg(out, 0x007F34B0);
  service->midiOutShortMsg(out, 0x00003C90);
  EXPECT_TRUE(Eventually([&] { return monitor.Messages().size() == 4; })) << monitor.Output();
  EXPECT_THAT(monitor.Messages(),
              ElementsAre("F0 3E 10 00 20 00 00 4E 40 F7  Filter 1 cutoff = 64",
                          "90 3C 64                       Note C3 on, velocity 100",
                          "B0 34 7F                       Controller 52: OSC 1 level = 127",
                          "90 3C 00                       Note C3 off"));
  monitor.Signal(SIGINT);
  EXPECT_EQ(monitor.ExitStatus(), 0);
  EXPECT_EQ(monitor.Errors(), "");
}

class MonitorWindowTest : public MonitorJackTest, public testing::WithParamInterface<int> {
protected:
  MonitorWindowTest() : MonitorJackTest("--jack", {"QT_QPA_PLATFORM=offscreen"}) {}
};

TEST_P(MonitorWindowTest, EndsCleanlyInTheMidstOfMessages) {
  ASSERT_NE(out, 0U) << monitor.Errors();
  SendCutoff(64);
  monitor.Signal(GetParam());
  EXPECT_EQ(monitor.ExitStatus(), 0) << monitor.Errors();
}

INSTANTIATE_TEST_SUITE_P(AtASignal, MonitorWindowTest, testing::Values(SIGINT, SIGTERM, SIGHUP));

TEST_F(MonitorJackTest, PrintsAnInitWhole) {
  constexpr int messages = 310;
  ASSERT_NE(out, 0U) << monitor.Errors();
  for (int i = 0; i < messages; ++i)
    SendCutoff(static_cast<std::uint8_t>(i % 128));
  ASSERT_TRUE(Eventually([&] { return monitor.Messages().size() == messages; }));
  for (int i = 0; i < messages; ++i)
    EXPECT_THAT(monitor.Messages()[static_cast<std::size_t>(i)],
                testing::EndsWith("Filter 1 cutoff = " + std::to_string(i % 128)));
}

TEST_F(MonitorJackTest, SaysThatTheServerHasGone) {
  ASSERT_NE(out, 0U) << monitor.Errors();
  service.reset();
  server.Kill();
  EXPECT_EQ(monitor.ExitStatus(), 1);
  EXPECT_EQ(monitor.Errors(), "tessoro-monitor: the JACK server has gone\n");
}

} // namespace
} // namespace Tessoro::Tests
