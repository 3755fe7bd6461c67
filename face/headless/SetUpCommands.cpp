// The machine that the editor finds, and what chance will bring.
#include "face/headless/Commands.hpp"
#include "face/headless/Session.hpp"

#include <limits>

namespace Tessoro {

namespace {

constexpr std::int64_t Highest16 = std::numeric_limits<std::uint16_t>::max();
constexpr std::int64_t Highest32 = std::numeric_limits<std::uint32_t>::max();

std::uint16_t Number16(const Word &word) {
  return static_cast<std::uint16_t>(WholeNumber(word, 0, Highest16));
}

std::uint32_t Number32(const Word &word) {
  return static_cast<std::uint32_t>(WholeNumber(word, 0, Highest32));
}

void MidiOut(Session &session, const Words &words) {
  MIDIOUTCAPS device;
  PutDeviceName(device.szPname, words[0].text);
  const bool isDescribed = words.size() > 1;
  device.wMid = isDescribed ? Number16(words[1]) : std::uint16_t{1};
  device.wPid = isDescribed ? Number16(words[2]) : std::uint16_t{1};
  device.vDriverVersion = isDescribed ? Number32(words[3]) : 1280;
  device.wTechnology = isDescribed ? Number16(words[4]) : std::uint16_t{1};
  session.Midi.AddOut(device);
}

void MidiIn(Session &session, const Words &words) {
  MIDIINCAPS device;
  PutDeviceName(device.szPname, words[0].text);
  session.Midi.AddIn(device);
}

void MidiFail(Session &session, const Words &words) {
  const std::string &operation = words[0].text;
  if (!MidiDouble::CanFail(operation))
    throw ScriptError("no operation that can fail is called " + Shown(words[0]));
  std::optional<std::uint64_t> count;
  if (words.size() > 2)
    count = static_cast<std::uint64_t>(WholeNumber(words[2], 0, Highest32));
  session.Midi.Fail(operation, Number32(words[1]), count);
}

void Random(Session &session, const Words &words) {
  for (const Word &word : words)
    if (word.number < 0 || word.number >= 1)
      throw ScriptError(Shown(word) + " is no number from 0 up to but not 1");
  for (const Word &word : words)
    session.Random.Queue(word.number);
}

void Decimal(Session &session, const Words &words) {
  if (words[0].text.size() != 1)
    throw ScriptError("the decimal sign is one character");
  session.App.SetDecimalSign(words[0].text.front());
}

void Start(Session &session, const Words & /*words*/) {
  if (session.Started)
    throw ScriptError("the editor has started already");
  session.Started = true;
  session.App.Start();
}

constexpr Command SetUpTable[] = {
    {"midi-out", "TEXT [NUMBER NUMBER NUMBER NUMBER]", MidiOut,
     "an OUT device to choose, by name and numbers", Allowed::BeforeStart},
    {"midi-in", "TEXT", MidiIn, "an IN device to choose, by name", Allowed::BeforeStart},
    {"midi-fail", "OPERATION NUMBER [NUMBER]", MidiFail,
     "the operation gives that error, so many times"},
    {"random", "NUMBER...", Random, "what chance will give, each from 0 up to but not 1"},
    {"decimal", "TEXT", Decimal, "the decimal sign", Allowed::BeforeStart},
    {"start", "", Start, "the editor starts"},
};

} // namespace

Commands SetUpCommands() { return SetUpTable; }

} // namespace Tessoro
