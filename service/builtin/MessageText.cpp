#include "service/builtin/MessageText.hpp"

#include "sound/Catalogue.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

namespace Tessoro {
namespace {

using Kind = MicroQMessageKind;

constexpr std::uint16_t FirstModeController = 120;

struct NamedNumber {
  int number;
  std::string_view name;
};

// What controllers mean to every synthesizer.
constexpr std::array<NamedNumber, 13> CommonControllers{{
    {0, "Bank"},
    {1, "Modulation wheel"},
    {2, "Breath"},
    {4, "Foot pedal"},
    {7, "Volume"},
    {10, "Pan"},
    {11, "Expression"},
    {32, "Bank, low part"},
    {64, "Hold pedal"},
    {66, "Sostenuto pedal"},
    {120, "All sound off"},
    {121, "Reset controllers"},
    {123, "All notes off"},
}};

constexpr std::array<NamedNumber, 11> SystemMessages{{
    {0xF1, "Time code"},
    {0xF2, "Song position"},
    {0xF3, "Song select"},
    {0xF6, "Tune request"},
    {0xF8, "Clock"},
    {0xF9, "Tick"},
    {0xFA, "Start"},
    {0xFB, "Continue"},
    {0xFC, "Stop"},
    {0xFE, "Active sensing"},
    {0xFF, "System reset"},
}};

template <std::size_t Count>
std::string NameIn(const std::array<NamedNumber, Count> &names, int number) {
  const auto found = std::find_if(names.begin(), names.end(), [number](const NamedNumber &each) {
    return each.number == number;
  });
  return found == names.end() ? std::string() : std::string(found->name);
}

std::string ValueText(Display display, int wire) {
  const std::string plain = std::to_string(wire);
  const std::string shown = DisplayText(display, wire);
  return shown == plain ? plain : shown + " (" + plain + ")";
}

std::string ParameterText(const MicroQMessage &message) {
  const ParameterRow *row = FindParameter(message.number);
  if (row == nullptr) {
    return "Unknown parameter " + std::to_string(message.number) + " = " +
           std::to_string(message.value);
  }
  return std::string(row->name) + " = " + ValueText(row->display, message.value);
}

std::string ControllerText(const MicroQMessage &message) {
  const std::string controller = "Controller " + std::to_string(message.number);
  if (const ControllerRow *row = FindController(message.number)) {
    return controller + ": " + std::string(row->name) + " = " +
           ValueText(row->display, message.value);
  }
  const std::string name = NameIn(CommonControllers, message.number);
  if (name.empty()) {
    return "Unknown controller " + std::to_string(message.number) + " = " +
           std::to_string(message.value);
  }
  std::string named = controller + ": " + name;
  if (message.number >= FirstModeController && message.value == 0) {
    return named; // the value says nothing
  }
  return named + " = " + std::to_string(message.value);
}

std::string NoteText(const MicroQMessage &message) {
  const std::string note = "Note " + NoteName(message.number);
  const std::string value = std::to_string(message.value);
  switch (message.kind) {
  case Kind::NoteOn:
    return note + " on, velocity " + value;
  case Kind::KeyPressure:
    return note + ", pressure " + value;
  default:
    return message.value == 0 ? note + " off" : note + " off, velocity " + value;
  }
}

std::string PitchBendText(int value) {
  constexpr int middle = 8192;
  const int bend = value - middle;
  return "Pitch bend = " + std::string(bend > 0 ? "+" : "") + std::to_string(bend);
}

// Whose it is stands in its first bytes: maker, synthesizer, and which of several such.
std::string SysExText(const LoggedMessage &message) {
  constexpr std::uint8_t waldorf = 0x3E;
  constexpr std::uint8_t microQ = 0x10;
  const MidiBytes bytes = message.KeptBytes();
  const std::string length = ", " + std::to_string(message.length) + " bytes";
  const auto isAt = [&bytes](std::size_t place, std::uint8_t byte) {
    return bytes.size() > place + 1 && bytes[place] == byte;
  };
  if (!isAt(1, waldorf)) {
    return "SysEx of another maker" + length;
  }
  if (!isAt(2, microQ)) {
    return "SysEx for another synthesizer" + length;
  }
  if (!isAt(3, 0)) {
    return "SysEx for another device number" + length;
  }
  return "Unknown SysEx message" + length;
}

std::string SystemText(const LoggedMessage &message) {
  const int status = message.firstBytes.front();
  const std::string name = NameIn(SystemMessages, status);
  return name.empty() ? "Unknown system message" : name;
}

std::string OfChannel(const std::string &text, int channel) {
  return channel == 0 ? text : text + " (channel " + std::to_string(channel + 1) + ")";
}

} // namespace

std::string NoteName(int note) {
  constexpr std::array<std::string_view, 12> names = {"C",  "C#", "D",  "D#", "E",  "F",
                                                      "F#", "G",  "G#", "A",  "A#", "B"};
  constexpr int perOctave = 12;
  constexpr int octaveOfNoteZero = -2;
  return std::string(names.at(static_cast<std::size_t>(note % perOctave))) +
         std::to_string(note / perOctave + octaveOfNoteZero);
}

std::string ParameterName(int number) {
  const ParameterRow *row = FindParameter(number);
  return row == nullptr ? "Parameter " + std::to_string(number) : std::string(row->name);
}

bool IsUnknown(const LoggedMessage &message) {
  const MicroQMessage &meaning = message.meaning;
  switch (meaning.kind) {
  case Kind::SoundParameter:
    return FindParameter(meaning.number) == nullptr;
  case Kind::Controller:
    return FindController(meaning.number) == nullptr &&
           NameIn(CommonControllers, meaning.number).empty();
  case Kind::SystemCommon:
  case Kind::RealTime:
    return NameIn(SystemMessages, message.firstBytes.front()).empty();
  default:
    return meaning.kind == Kind::OtherSysEx;
  }
}

std::string MeaningText(const LoggedMessage &message) {
  const MicroQMessage &meaning = message.meaning;
  switch (meaning.kind) {
  case Kind::SoundParameter:
    return ParameterText(meaning);
  case Kind::NoteOn:
  case Kind::NoteOff:
  case Kind::KeyPressure:
    return OfChannel(NoteText(meaning), meaning.channel);
  case Kind::Controller:
    return OfChannel(ControllerText(meaning), meaning.channel);
  case Kind::Program:
    return OfChannel("Program change to " + std::to_string(meaning.number), meaning.channel);
  case Kind::ChannelPressure:
    return OfChannel("Pressure = " + std::to_string(meaning.value), meaning.channel);
  case Kind::PitchBend:
    return OfChannel(PitchBendText(meaning.value), meaning.channel);
  case Kind::OtherSysEx:
    return SysExText(message);
  case Kind::SystemCommon:
  case Kind::RealTime:
    return SystemText(message);
  case Kind::Malformed:
    break;
  }
  return "Malformed message";
}

std::string BytesText(const LoggedMessage &message) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text;
  for (const std::uint8_t byte : message.KeptBytes()) {
    if (!text.empty()) {
      text += ' ';
    }
    text += digits.at(byte >> 4U);
    text += digits.at(byte & 0x0FU);
  }
  if (message.length > LoggedMessage::MostBytes) {
    text += " ... (" + std::to_string(message.length) + " bytes)";
  }
  return text;
}

std::string TimeText(std::chrono::steady_clock::duration time) {
  const auto all = std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%lld.%03lld", static_cast<long long>(all / 1000),
                static_cast<long long>(all % 1000));
  return text.data();
}

std::string MessageLine(const LoggedMessage &message) {
  constexpr std::size_t timeWidth = 9;
  constexpr std::size_t bytesWidth = 29; // of a parameter change
  std::string time = TimeText(message.time);
  std::string bytes = BytesText(message);
  time.insert(0, timeWidth - std::min(timeWidth, time.size()), ' ');
  bytes.append(bytesWidth - std::min(bytesWidth, bytes.size()), ' ');
  return time + "  " + bytes + "  " + MeaningText(message);
}

} // namespace Tessoro
