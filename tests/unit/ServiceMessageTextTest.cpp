#include "service/builtin/MessageText.hpp"
#include "tests/unit/MicroQMessages.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace Tessoro {
namespace {

using namespace std::chrono_literals;

LoggedMessage Logged(const Bytes &bytes) {
  LoggedMessage message;
  message.length = bytes.size();
  std::copy_n(bytes.begin(), std::min(bytes.size(), LoggedMessage::MostBytes),
              message.firstBytes.begin());
  message.meaning = Understand(bytes);
  return message;
}

struct TextRow {
  const char *name;
  Bytes bytes;
  const char *text;
};

class ServiceMessageTextTest : public testing::TestWithParam<TextRow> {};

TEST_P(ServiceMessageTextTest, ReadsAsPeopleSayIt) {
  EXPECT_EQ(MeaningText(Logged(GetParam().bytes)), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Messages, ServiceMessageTextTest,
    testing::Values(
        TextRow{"Parameter", Change(0, 78, 64), "Filter 1 cutoff = 64"},
        TextRow{"SignedParameter", Change(0, 2, 70), "OSC 1 semitone = +6 (70)"},
        TextRow{"SignedParameterBelow", Change(0, 2, 60), "OSC 1 semitone = -4 (60)"},
        TextRow{"ParameterWithWords", Change(0, 6, 4), "OSC 1 FM source = 04 Noise (4)"},
        TextRow{"LetterOfTheName", Change(2, 107, 84), "Sound name character 1 = 'T' (84)"},
        TextRow{"UnknownParameter", Change(0, 14, 5), "Unknown parameter 14 = 5"},
        TextRow{"NoSuchParameter", Change(1, 128, 5), "Malformed message"},
        TextRow{"ControllerOfTheCatalogue", {0xB0, 52, 127}, "Controller 52: OSC 1 level = 127"},
        TextRow{"ControllerWithWords",
                {0xB0, 68, 1},
                "Controller 68: Filter 1 type = \\_ Lowpass 24 dB (1)"},
        TextRow{"SignedController", {0xB0, 29, 60}, "Controller 29: OSC 1 detune = -4 (60)"},
        TextRow{"ControllerOfAnySynthesizer", {0xB0, 1, 9}, "Controller 1: Modulation wheel = 9"},
        TextRow{"ControllerWithoutName", {0xB0, 3, 9}, "Unknown controller 3 = 9"},
        TextRow{"AllNotesOff", {0xB4, 123, 0}, "Controller 123: All notes off (channel 5)"},
        TextRow{"NoteOn", {0x90, 60, 100}, "Note C3 on, velocity 100"},
        TextRow{"NoteOnElsewhere", {0x9F, 36, 100}, "Note C1 on, velocity 100 (channel 16)"},
        TextRow{"NoteOff", {0x90, 60, 0}, "Note C3 off"},
        TextRow{"NoteOffWithVelocity", {0x80, 61, 40}, "Note C#3 off, velocity 40"},
        TextRow{"KeyPressure", {0xA0, 84, 7}, "Note C5, pressure 7"},
        TextRow{"Program", {0xC0, 123}, "Program change to 123"},
        TextRow{"Pressure", {0xD1, 9}, "Pressure = 9 (channel 2)"},
        TextRow{"PitchBendAtRest", {0xE0, 0, 64}, "Pitch bend = 0"},
        TextRow{"PitchBendUp", {0xE0, 127, 127}, "Pitch bend = +8191"},
        TextRow{"PitchBendDown", {0xE0, 0, 0}, "Pitch bend = -8192"},
        TextRow{"SysExOfAnotherMaker", {0xF0, 0x41, 1, 2, 0xF7}, "SysEx of another maker, 5 bytes"},
        TextRow{"EmptySysEx", {0xF0, 0xF7}, "SysEx of another maker, 2 bytes"},
        TextRow{"SysExForAnotherSynthesizer",
                {0xF0, 0x3E, 0x0E, 0, 0xF7},
                "SysEx for another synthesizer, 5 bytes"},
        TextRow{"ChangeAtAnotherDeviceNumber",
                {0xF0, 0x3E, 0x10, 1, 0x20, 0, 0, 78, 64, 0xF7},
                "SysEx for another device number, 10 bytes"},
        TextRow{"RequestOfADump",
                {0xF0, 0x3E, 0x10, 0, 0x00, 0x20, 0x00, 0x20, 0xF7},
                "Unknown SysEx message, 9 bytes"},
        TextRow{"Clock", {0xF8}, "Clock"}, TextRow{"SongPosition", {0xF2, 1, 2}, "Song position"},
        TextRow{"UndefinedSystemMessage", {0xF4}, "Unknown system message"},
        TextRow{"CutNote", {0x90, 60}, "Malformed message"}),
    [](const auto &row) { return std::string(row.param.name); });

TEST(ServiceUnknownMessageTest, IsToldFromKnownAndMalformedOnes) {
  for (const Bytes &unknown :
       {Change(0, 14, 5), Bytes{0xB0, 3, 9}, Bytes{0xF0, 0x41, 1, 2, 0xF7}, Bytes{0xF4},
        Bytes{0xFD}, Bytes{0xF0, 0x3E, 0x10, 1, 0x20, 0, 0, 78, 64, 0xF7}})
    EXPECT_TRUE(IsUnknown(Logged(unknown))) << MeaningText(Logged(unknown));
  for (const Bytes &known : {Change(0, 78, 64), Bytes{0xB0, 52, 9}, Bytes{0xB0, 1, 9},
                             Bytes{0x90, 60, 100}, Bytes{0xF8}, Bytes{0xF2, 1, 2}})
    EXPECT_FALSE(IsUnknown(Logged(known))) << MeaningText(Logged(known));
  EXPECT_FALSE(IsUnknown(Logged({0x90, 60}))) << "malformed is something else";
}

TEST(ServiceNoteNameTest, CountsOctavesAsTheNoteKeysDo) {
  EXPECT_EQ(NoteName(0), "C-2");
  EXPECT_EQ(NoteName(36), "C1");
  EXPECT_EQ(NoteName(59), "B2");
  EXPECT_EQ(NoteName(60), "C3");
  EXPECT_EQ(NoteName(127), "G8");
}

TEST(ServiceBytesTextTest, ShowsTheBeginningAndTheLengthOfALongMessage) {
  Bytes dump(392, 0x01);
  dump.front() = 0xF0;
  dump.back() = 0xF7;
  const std::string text = BytesText(Logged(dump));
  EXPECT_EQ(text.substr(0, 8), "F0 01 01");
  EXPECT_EQ(text.substr(32 * 3 - 1), " ... (392 bytes)");
}

TEST(ServiceMessageLineTest, StandsInColumns) {
  LoggedMessage change = Logged(Change(0, 78, 64));
  change.time = 1234ms;
  EXPECT_EQ(MessageLine(change), "    1.234  F0 3E 10 00 20 00 00 4E 40 F7  Filter 1 cutoff = 64");
  LoggedMessage note = Logged({0x90, 60, 100});
  note.time = 61007ms;
  EXPECT_EQ(MessageLine(note),
            "   61.007  90 3C 64                       Note C3 on, velocity 100");
}

} // namespace
} // namespace Tessoro
