// The routines that a script can call.
#include "face/headless/Commands.hpp"
#include "face/headless/Session.hpp"
#include "surface/Conversions.hpp"
#include "surface/RandomRange.hpp"

#include <limits>

namespace Tessoro {

namespace {

// As a call does it with a number for a parameter of 32 bits.
int Integer(const Word &word) {
  const std::int64_t number = RoundHalfEven(word.number);
  if (number > std::numeric_limits<int>::max() || number < std::numeric_limits<int>::min())
    throw Failure(FailureCode::Overflow);
  return static_cast<int>(number);
}

void PrintNumber(Session &session, std::string_view routine, double result) {
  session.Trace.Line(std::string(routine) + " = " + NumberText(result));
}

void PrintText(Session &session, std::string_view routine, const std::string &result) {
  session.Trace.Line(std::string(routine) + " = " + QuotedText(result));
}

void CallSendSoundParam(Session &session, const Words &words) {
  session.App.Module1.SendSoundParam(Integer(words[0]), RoundInteger(words[1].number));
}

void CallSendController(Session &session, const Words &words) {
  const int controller = Integer(words[0]);
  if (words[1].kind == WordKind::Name)
    throw ScriptError(Shown(words[1]) + " is no number and no text");
  if (words[1].kind == WordKind::Text)
    session.App.Module1.SendController(controller, words[1].text);
  else
    session.App.Module1.SendController(controller, words[1].number);
}

void CallSendNoteOn(Session &session, const Words &words) {
  session.App.Module1.SendNoteOn(words[0].number, words[1].number);
}

void CallSendNoteOffSweep(Session &session, const Words & /*words*/) {
  session.App.Module1.SendNoteOffSweep();
}

void CallSendAllNotesOff(Session &session, const Words & /*words*/) {
  session.App.Module1.SendAllNotesOff();
}

void CallOpenCloseMidiOut(Session &session, const Words &words) {
  session.App.Module1.OpenCloseMidiOut(words[0].text);
}

void CallOpenCloseMidiThru(Session &session, const Words &words) {
  session.App.Module1.OpenCloseMidiThru(words[0].text);
}

void CallShowMidiError(Session &session, const Words &words) {
  session.App.Module1.ShowMidiError(words[0].text, static_cast<MidiResult>(Integer(words[1])));
}

void CallNumericPrefix(Session &session, const Words &words) {
  PrintNumber(session, "NumericPrefix", NumericPrefix(words[0].text));
}

void CallStrictNumber(Session &session, const Words &words) {
  PrintNumber(session, "StrictNumber", session.App.StrictNumber(words[0].text));
}

void CallStrictInteger(Session &session, const Words &words) {
  PrintNumber(session, "StrictInteger", session.App.StrictInteger(words[0].text));
}

void CallRoundInteger(Session &session, const Words &words) {
  PrintNumber(session, "RoundInteger", RoundInteger(words[0].number));
}

void CallIntegerText(Session &session, const Words &words) {
  PrintText(session, "IntegerText", IntegerText(Integer(words[0])));
}

void CallNumberText(Session &session, const Words &words) {
  PrintText(session, "NumberText", NumberText(words[0].number));
}

void CallInitPanelParams(Session &session, const Words & /*words*/) {
  session.App.F_Tessoro.InitPanelParams();
}

void CallInitHiddenParams(Session &session, const Words & /*words*/) {
  session.App.Module1.InitHiddenParams();
}

void CallRandomInRange(Session &session, const Words &words) {
  std::int16_t high = RoundInteger(words[1].number);
  const int result =
      RandomInRange(session.App.System().random, RoundInteger(words[0].number), high);
  session.Trace.Line("RandomInRange = " + IntegerText(result) + " " + IntegerText(high));
}

constexpr Command Routines[] = {
    {"SendSoundParam", "NUMBER NUMBER", CallSendSoundParam},
    {"SendController", "NUMBER VALUE", CallSendController},
    {"SendNoteOn", "NUMBER NUMBER", CallSendNoteOn},
    {"SendNoteOffSweep", "", CallSendNoteOffSweep},
    {"SendAllNotesOff", "", CallSendAllNotesOff},
    {"OpenCloseMidiOut", "TEXT", CallOpenCloseMidiOut},
    {"OpenCloseMidiThru", "TEXT", CallOpenCloseMidiThru},
    {"ShowMidiError", "TEXT NUMBER", CallShowMidiError},
    {"InitPanelParams", "", CallInitPanelParams},
    {"InitHiddenParams", "", CallInitHiddenParams},
    {"RandomInRange", "NUMBER NUMBER", CallRandomInRange},
    {"NumericPrefix", "TEXT", CallNumericPrefix},
    {"StrictNumber", "TEXT", CallStrictNumber},
    {"StrictInteger", "TEXT", CallStrictInteger},
    {"RoundInteger", "NUMBER", CallRoundInteger},
    {"IntegerText", "NUMBER", CallIntegerText},
    {"NumberText", "NUMBER", CallNumberText},
};

void Call(Session &session, const Words &words) {
  const Command *const routine = FindCommand(Routines, words[0].text);
  if (routine == nullptr)
    throw ScriptError("no routine " + Shown(words[0]));
  const Words arguments(words.begin() + 1, words.end());
  CheckShape(*routine, arguments);
  session.App.Event([&] { routine->play(session, arguments); });
}

constexpr Command CallTable[] = {
    {"call", "ROUTINE [VALUE...]", Call, "calls a routine of the editor, as SendSoundParam"}};

} // namespace

Commands CallCommands() { return CallTable; }

} // namespace Tessoro
