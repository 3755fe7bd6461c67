// What the driver doesn't take for its language, and how it says so.
#include "face/headless/CommandLine.hpp"
#include "face/headless/Script.hpp"
#include "face/headless/ScriptWords.hpp"
#include "face/headless/Session.hpp"

#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>

namespace Tessoro {

namespace {

class Player {
public:
  int Play(const std::string &script) {
    std::istringstream stream(script);
    return PlayScript(session, stream, errors);
  }

  std::ostringstream trace;
  std::ostringstream errors;
  Session session{"no-such-folder", trace};
};

struct Refusal {
  const char *line;
  const char *complaint;
};

// Played with the main form and the form for MIDI settings shown.
constexpr Refusal Refusals[] = {
    {"jump", "no command \"jump\""},
    {"START", "no command \"START\""},
    {"\"start\"", "no command \"start\""},
    {"5", "no command \"5\""},
    {" # no remark", "no command \"#\""},
    // Words that are missing, too many, or of the wrong kind.
    {"click", "click takes CONTROL"},
    {"click F_Tessoro F_Midi", "click takes CONTROL"},
    {"click \"F_Tessoro\"", "click takes CONTROL"},
    {"type F_Tessoro.TextF1_cutoff 5", "type takes CONTROL TEXT"},
    {"type F_Tessoro.TextF1_cutoff", "type takes CONTROL TEXT"},
    {"paste F_Tessoro.TextF1_cutoff text", "paste takes CONTROL TEXT"},
    {"select F_Midi.AuswahlMIDIPort \"0\"", "select takes CONTROL NUMBER"},
    {"scroll F_Tessoro.HScrollOSC1semi five", "scroll takes CONTROL NUMBER"},
    {"mouse down F_Tessoro.TextF1_cutoff 1", "mouse takes ACT CONTROL NUMBER NUMBER"},
    {"keydown F_Tessoro \"A\"", "keydown takes FORM NUMBER"},
    {"keyup F_Tessoro", "keyup takes FORM NUMBER"},
    {"menu", "menu takes ENTRY"},
    {"shortcut F12", "shortcut takes TEXT"},
    {"choose F_Midi.AuswahlMIDIPort x", "choose takes CONTROL TEXT"},
    {"answer", "answer takes BUTTON..."},
    {"answer \"OK\"", "answer takes BUTTON..."},
    {"tick", "tick takes NUMBER"},
    {"get 5", "get takes PROPERTY"},
    {"set Module1.SoundName", "set takes PROPERTY VALUE"},
    {"load", "load takes FORM"},
    {"midi-fail midiOutOpen", "midi-fail takes OPERATION NUMBER [NUMBER]"},
    {"random", "random takes NUMBER..."},
    {"random 0.5 x", "random takes NUMBER..."},
    {"call", "call takes ROUTINE [VALUE...]"},
    {"call SendSoundParam 1", "SendSoundParam takes NUMBER NUMBER"},
    {"call SendSoundParam 1 \"2\"", "SendSoundParam takes NUMBER NUMBER"},
    {"call SendAllNotesOff 1", "SendAllNotesOff takes nothing"},
    {"call SendController 1 True", "\"True\" is no number and no text"},
    {"call NumericPrefix 12", "NumericPrefix takes TEXT"},
    // What comes before the start.
    {"start", "the editor has started already"},
    {"midi-out \"microQ\"", "midi-out comes before start"},
    {"midi-in \"Keys\"", "midi-in comes before start"},
    {"decimal \",\"", "decimal comes before start"},
    // Names that stand for nothing.
    {"click F_Nothing", "no control \"F_Nothing\""},
    {"click F_Nothing.Text", "no control \"F_Nothing.Text\""},
    {"click F_Tessoro.Nothing", "no control \"F_Tessoro.Nothing\""},
    {"click F_Tessoro.", "no control \"F_Tessoro.\""},
    {"click .TextF1_cutoff", "no control \".TextF1_cutoff\""},
    {"click F_Tessoro.Menu_About", "no control \"F_Tessoro.Menu_About\""},
    {"click f_tessoro.TextF1_cutoff", "no control \"f_tessoro.TextF1_cutoff\""},
    {"type TextF1_cutoff \"1\"", "no control \"TextF1_cutoff\""},
    {"menu Menu_Nothing", "no menu entry \"Menu_Nothing\""},
    {"menu TextF1_cutoff", "no menu entry \"TextF1_cutoff\""},
    {"menu F_Tessoro.Menu_About", "no menu entry \"F_Tessoro.Menu_About\""},
    {"close F_Nothing", "no form \"F_Nothing\""},
    {"close F_Tessoro.TextF1_cutoff", "no form \"F_Tessoro.TextF1_cutoff\""},
    {"dump Module1", "no form \"Module1\""},
    {"unload F_Nothing", "no form \"F_Nothing\""},
    {"get Caption", "no property \"Caption\""},
    {"get F_Tessoro.Text", "no property \"F_Tessoro.Text\""},
    {"get F_Tessoro.TextF1_cutoff.Value", "no property \"F_Tessoro.TextF1_cutoff.Value\""},
    {"get F_Tessoro.Nothing.Text", "no control \"F_Tessoro.Nothing\""},
    {"get F_Tessoro.Menu_About.Enabled", "no control \"F_Tessoro.Menu_About\""},
    {"get Menu_About.Text", "no property \"Menu_About.Text\""},
    {"get Module1.Nothing", "no property \"Module1.Nothing\""},
    {"get Module1.", "no property \"Module1.\""},
    {"call Nothing", "no routine \"Nothing\""},
    {"midi-fail midiOutGetNumDevs 1", "no operation that can fail is called \"midiOutGetNumDevs\""},
    {"midi-fail midiOutGetErrorTextA 1",
     "no operation that can fail is called \"midiOutGetErrorTextA\""},
    {"answer OK Maybe", "no button \"Maybe\""},
    {"answer ok", "no button \"ok\""},
    // Controls of types that a command doesn't take.
    {"type F_Midi.Command1 \"x\"", "not for a control of the type of F_Midi.Command1"},
    {"erase F_Tessoro.HScrollOSC1semi",
     "not for a control of the type of F_Tessoro.HScrollOSC1semi"},
    {"enter F_Midi.AuswahlMIDIPort", "not for a control of the type of F_Midi.AuswahlMIDIPort"},
    {"select F_Tessoro.TextF1_cutoff 0",
     "not for a control of the type of F_Tessoro.TextF1_cutoff"},
    {"scroll F_Tessoro.TextF1_cutoff 0",
     "not for a control of the type of F_Tessoro.TextF1_cutoff"},
    {"click F_Tessoro.Timer1", "not for a control of the type of F_Tessoro.Timer1"},
    {"click F_Midi.AuswahlMIDIPort", "not for a control of the type of F_Midi.AuswahlMIDIPort"},
    {"click F_Tessoro.ShapeOSC1", "not for a control of the type of F_Tessoro.ShapeOSC1"},
    {"dblclick F_Midi.Command1", "not for a control of the type of F_Midi.Command1"},
    {"mouse down F_Midi.Command1 0 0", "not for a control of the type of F_Midi.Command1"},
    {"choose F_Midi.AuswahlMIDIPort \"x\"",
     "not for a control of the type of F_Midi.AuswahlMIDIPort"},
    {"items F_Tessoro.TextF1_cutoff", "not for a control of the type of F_Tessoro.TextF1_cutoff"},
    // Indexes, values and numbers that are out of the question.
    {"select F_Midi.AuswahlMIDIPort 1", "F_Midi.AuswahlMIDIPort has no item 1"},
    {"select F_Midi.AuswahlMIDIPort -1", "F_Midi.AuswahlMIDIPort has no item -1"},
    {"select F_Midi.AuswahlMIDIPort 0.5", "F_Midi.AuswahlMIDIPort has no item 0.5"},
    {"select F_Midi.AuswahlMIDIPort 1e300", "F_Midi.AuswahlMIDIPort has no item 1e300"},
    {"scroll F_Tessoro.HScrollOSC1semi 13", "F_Tessoro.HScrollOSC1semi has no value 13"},
    {"scroll F_Tessoro.VScrollAmpVolume -1", "F_Tessoro.VScrollAmpVolume has no value -1"},
    {"keydown F_Tessoro 256", "\"256\" is no whole number from 0 to 255"},
    {"keyup F_Tessoro 1.5", "\"1.5\" is no whole number from 0 to 255"},
    {"tick -1", "\"-1\" is no whole number from 0 to 2147483647"},
    {"tick 0.5", "\"0.5\" is no whole number from 0 to 2147483647"},
    {"tick 1e999", "no float can hold the number \"1e999\""},
    {"random 1", "\"1\" is no number from 0 up to but not 1"},
    {"random 0.5 -0.1", "\"-0.1\" is no number from 0 up to but not 1"},
    {"midi-fail midiOutOpen -1", "\"-1\" is no whole number from 0 to 4294967295"},
    {"midi-fail midiOutOpen 1 1.5", "\"1.5\" is no whole number from 0 to 4294967295"},
    {"mouse hold F_Tessoro.TextF1_cutoff 0 0", "the mouse goes down, move or up"},
    // What can't be set, or not to that.
    {"set F_Tessoro.HScrollOSC1semi.Min 1", "F_Tessoro.HScrollOSC1semi.Min can't be set"},
    {"set F_Tessoro.HScrollOSC1semi.Max 1", "F_Tessoro.HScrollOSC1semi.Max can't be set"},
    {"set F_Tessoro.Timer1.Interval 1", "F_Tessoro.Timer1.Interval can't be set"},
    {"set F_Tessoro.TextF1_cutoff.Text 5",
     "F_Tessoro.TextF1_cutoff.Text doesn't take a value of that kind"},
    {"set F_Tessoro.HScrollOSC1semi.Value \"5\"",
     "F_Tessoro.HScrollOSC1semi.Value doesn't take a value of that kind"},
    {"set F_Tessoro.TextF1_cutoff.Enabled 1",
     "F_Tessoro.TextF1_cutoff.Enabled doesn't take a value of that kind"},
    {"set F_Tessoro.TextF1_cutoff.Enabled true", "\"true\" is no value"},
    {"set F_Tessoro.Caption 1", "F_Tessoro.Caption doesn't take a value of that kind"},
    {"set Module1.MidiOutPort \"0\"", "Module1.MidiOutPort doesn't take a value of that kind"},
    {"set Module1.IniProgramLabel 1", "Module1.IniProgramLabel doesn't take a value of that kind"},
    // Texts that are none.
    {"shortcut \"F12", "a text has no closing quote"},
    {"shortcut \"F12\\", "a text has no closing quote"},
    {"shortcut \"", "a text has no closing quote"},
    {"shortcut \"\\q\"", "the escapes of a text are \\\" \\\\ \\r \\n \\t and \\xHH"},
    {"shortcut \"\\x4\"", "\\x in a text needs two hexadecimal digits"},
    {"shortcut \"\\x", "a text has no closing quote"},
    {"shortcut \"\t\"", "a byte outside 0x20 .. 0x7E in a text is written \\xHH"},
    {"shortcut \"\xE4\"", "a byte outside 0x20 .. 0x7E in a text is written \\xHH"},
    {"shortcut \"F12\"x", "a text must be followed by a blank"},
    {"shortcut \"F12\"\"\"", "a text must be followed by a blank"},
};

TEST(Language, EachLineThatIsNotUnderstoodIsNamedWithItsNumber) {
  for (const Refusal &refusal : Refusals) {
    Player player;
    EXPECT_EQ(
        player.Play(std::string("start\nshow F_Midi\n\n") + refusal.line + "\nmenu Menu_Quit\n"),
        ExitStatus::NotUnderstood)
        << refusal.line;
    EXPECT_EQ(player.errors.str(), std::string("line 4: ") + refusal.complaint + "\n");
    EXPECT_EQ(player.trace.str(), "load F_Tessoro\n"
                                  "MsgBox 16 \"Error loading INI\" \" 76: Path not found\" -> OK\n"
                                  "show F_Tessoro\n"
                                  "load F_Midi\n"
                                  "show F_Midi\n")
        << refusal.line;
  }
}

constexpr Refusal EarlyRefusals[] = {
    {"midi-out microQ", "midi-out takes TEXT [NUMBER NUMBER NUMBER NUMBER]"},
    {"midi-out \"microQ\" 1 2 3", "midi-out takes TEXT [NUMBER NUMBER NUMBER NUMBER]"},
    {"midi-out \"microQ\" 1 2 3 4 5", "midi-out takes TEXT [NUMBER NUMBER NUMBER NUMBER]"},
    {"midi-out \"microQ\" 65536 1 1 1", "\"65536\" is no whole number from 0 to 65535"},
    {"midi-out \"microQ\" 1 1 4294967296 1",
     "\"4294967296\" is no whole number from 0 to 4294967295"},
    {"midi-in", "midi-in takes TEXT"},
    {"midi-in \"Keys\" 1", "midi-in takes TEXT"},
    {"decimal ,", "decimal takes TEXT"},
    {"decimal \"\"", "the decimal sign is one character"},
    {"decimal \",,\"", "the decimal sign is one character"},
    {"start now", "start takes nothing"},
};

TEST(Language, WhatComesBeforeTheStartIsLookedAtAsClosely) {
  for (const Refusal &refusal : EarlyRefusals) {
    Player player;
    EXPECT_EQ(player.Play(refusal.line), ExitStatus::NotUnderstood) << refusal.line;
    EXPECT_EQ(player.errors.str(), std::string("line 1: ") + refusal.complaint + "\n");
    EXPECT_EQ(player.trace.str(), "") << refusal.line;
  }
}

TEST(Language, ComplaintsStayOnOneShortLine) {
  Player player;
  EXPECT_EQ(player.Play(std::string(100000, 'x') + "\n"), ExitStatus::NotUnderstood);
  EXPECT_EQ(player.errors.str(), "line 1: no command \"" + std::string(60, 'x') + "\"...\n");

  Player other;
  EXPECT_EQ(other.Play(std::string("a\0b\x07\xFF", 5)), ExitStatus::NotUnderstood);
  EXPECT_EQ(other.errors.str(), "line 1: no command \"a\\x00b\\x07\\xFF\"\n");
}

TEST(Language, ScriptsMayHaveLinesOfAnotherSystemAndNoLineEndAtTheLast) {
  Player player;
  EXPECT_EQ(player.Play("set Module1.SoundName \"x\"\r\n\r\nget Module1.SoundName"),
            ExitStatus::Played);
  EXPECT_EQ(player.trace.str(), "Module1.SoundName = \"x\"\n");
}

TEST(Language, WordsMayStandFarApart) {
  Player player;
  EXPECT_EQ(player.Play("  set \t Module1.SoundName   \"a  b\"  \nget Module1.SoundName\n"),
            ExitStatus::Played);
  EXPECT_EQ(player.trace.str(), "Module1.SoundName = \"a  b\"\n");
}

TEST(Language, QueuedRandomNumbersComeFirst) {
  Player player;
  StandardRandomNumbers standard;
  player.Play("random 0 0.25 0.99999999999\nrandom 0.5\n");
  EXPECT_EQ(player.session.Random.Next(), 0.0F);
  EXPECT_EQ(player.session.Random.Next(), 0.25F);
  const float belowOne = player.session.Random.Next();
  EXPECT_LT(belowOne, 1.0F);
  EXPECT_GT(belowOne, 0.9999F);
  EXPECT_EQ(player.session.Random.Next(), 0.5F);
  EXPECT_EQ(player.session.Random.Next(), standard.Next());
}

// What a script could hold, in any order: no line may do more than end the script.
TEST(Language, NoLineIsTooStrange) {
  constexpr const char *words[] = {
      "start",
      "click",
      "type",
      "select",
      "scroll",
      "mouse",
      "down",
      "move",
      "up",
      "get",
      "set",
      "call",
      "dump",
      "items",
      "menu",
      "tick",
      "answer",
      "close",
      "show",
      "load",
      "unload",
      "keydown",
      "paste",
      "erase",
      "midi-fail",
      "midiOutOpen",
      "F_Tessoro",
      "F_Midi",
      "F_InfoPopUp",
      "F_Tessoro.TextF1_cutoff",
      "F_Tessoro.TextOSC1detune",
      "F_Tessoro.HScrollOSC1detune",
      "F_Midi.AuswahlMIDIPort",
      "F_Midi.Command1",
      "F_InfoPopUp.Check1",
      "F_InfoPopUp.Check1.BackColor",
      "F_Tessoro.LinieEnv1T1.X1",
      "F_Midi.AuswahlMIDIPort.ListIndex",
      "Module1.MidiChannel",
      "Module1.MidiOutPort",
      "Module1.hMidiOut",
      "Menu_Midisettings",
      "Menu_Quit",
      "SendNoteOn",
      "SendSoundParam",
      "SendController",
      "OpenCloseMidiThru",
      "ShowMidiError",
      "StrictInteger",
      "True",
      "OK",
      "0",
      "1",
      "-1",
      "2147483647",
      "4294967295",
      "1e308",
      "-1e308",
      "1e-320",
      "0.5",
      "\"open\"",
      "\"\"",
      "\"&HFFFFFFFF\"",
      "\"1e999\"",
      "\"\\x00\"",
      "\"",
      "\\",
      "\xFF",
      "#",
      ".",
      "..",
      "[",
  };
  std::mt19937 chance; // always the same lines
  for (int i = 0; i < 20000; ++i) {
    Player player;
    for (int line = 0; line < 4; ++line) {
      std::string text = line == 0 ? "start" : "";
      for (std::size_t word = 0; line != 0 && word < chance() % 5; ++word)
        text.append(words[chance() % std::size(words)]).append(" ");
      player.Play(text);
    }
    ASSERT_LT(player.trace.str().size(), 1000000U);
  }
}

} // namespace

} // namespace Tessoro
