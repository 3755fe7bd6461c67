// What the main form does as it comes and goes: the start and the stop of the program.
#include "files/FileSystem.hpp"
#include "shell/Application.hpp"
#include "shell/SettingsFile.hpp"
#include "surface/Conversions.hpp"

namespace Tessoro {

namespace {

constexpr int InfoMilliseconds = 8000;
constexpr int HighestPort = 99;

// Line feed first.
constexpr const char *InfoCaption = "Please press the [Init sound] button before you start.\n\r\n\r"
                                    "(This will override the microQ's current edit buffer)\n\r\n\r"
                                    "Click anywhere to close this window";

bool IsPort(int number) { return number >= 0 && number <= HighestPort; }

void ShowTrappedFailure(Application &app, const Failure &failure, const std::string &title) {
  app.MsgBox(SignedNumberText(failure.Number()) + ": " + failure.Text(), MsgBoxFlags::Critical,
             title);
}

} // namespace

void F_Tessoro::Form_Load() {
  Module1 &globals = App().Module1;
  try {
    SetDefaults();
    globals.ErrorPhase = "loading INI";
    if (std::unique_ptr<FieldReader> settings = OpenSettings())
      TakeSettings(std::move(settings));
    else
      BeginWithoutSettings();
    globals.ErrorPhase = "general";
    globals.SoundFileName = "";
    globals.SoundName = "????????????????";
    globals.SoundCategory = "????";
    ReadLineBases();
  } catch (const Failure &failure) {
    ShowTrappedFailure(App(), failure, "Error " + globals.ErrorPhase);
  }
}

void F_Tessoro::SetDefaults() {
  Module1 &globals = App().Module1;
  globals.ErrorPhase = "general";
  globals.InfoPopUpStage = 0;
  globals.ShiftHeld = 0;
  globals.KnobFineChange = 3;
  globals.KnobStandardChange = 3;
  globals.KnobRampLength = 6;
  globals.ShowInfoPopUp = "Yes";
  DisableUntilSound();
  globals.MidiOutPort = -1;
  globals.MidiInPort = -1;
  globals.MidiChannel = -1;
  globals.MidiInChannel = -1;
  SetCaption("Tessoro freeware v" + App().VersionText());
}

// Nothing where there is no file yet; any other failure is the caller's.
std::unique_ptr<FieldReader> F_Tessoro::OpenSettings() {
  try {
    return std::make_unique<FieldReader>(App().System().files.OpenForReading(SettingsPath(App())));
  } catch (const Failure &failure) {
    if (failure.Number() != FailureCode::FileNotFound)
      throw;
    App().Module1.ErrorPhase = "ERROR loading INI";
    return nullptr;
  }
}

void F_Tessoro::TakeSettings(std::unique_ptr<FieldReader> settings) {
  ReadSettings(*settings, App());
  settings.reset(); // closed before ports open
  App().Module1.IniProgramLabel = "Tessoro freeware version";
  App().Module1.IniProgramVersion = App().ShortVersionText();
  OpenPortsOfSettings();
}

void F_Tessoro::OpenPortsOfSettings() {
  Module1 &globals = App().Module1;
  if (!IsPort(globals.MidiInPort)) {
    App().MsgBox("INI file corrupt. Invalid MIDI IN port - please select a MIDI port manually.",
                 MsgBoxFlags::Exclamation, "No MIDI port set");
  } else if (!IsPort(globals.MidiOutPort)) {
    App().MsgBox("INI file corrupt! Invalid MIDI OUT port - please select a MIDI port manually.",
                 MsgBoxFlags::Exclamation, "No MIDI port set");
  } else {
    globals.OpenCloseMidiOut("open");
    globals.OpenCloseMidiThru("open");
  }
}

void F_Tessoro::BeginWithoutSettings() {
  App().Module1.ErrorPhase = "NoIni";
  App().F_Midi.Show();
  App().Module1.SoundFolder = "?";
}

void F_Tessoro::Timer1_Timer() {
  Module1 &globals = App().Module1;
  if (globals.InfoPopUpStage == 0) {
    if (globals.ShowInfoPopUp == "Yes") {
      App().F_InfoPopUp.Show();
      App().F_InfoPopUp.InfoText.SetCaption(InfoCaption);
      Timer1.SetInterval(InfoMilliseconds);
    }
    globals.InfoPopUpStage = 1;
  } else if (globals.InfoPopUpStage == 1) {
    Timer1.SetEnabled(false);
    App().F_InfoPopUp.Unload();
    globals.InfoPopUpStage = 2;
  }
}

void F_Tessoro::Form_Unload() {
  try {
    App().Module1.OpenCloseMidiOut("close");
    FieldWriter settings(App().System().files.OpenForWriting(SettingsPath(App())));
    WriteSettings(settings, App());
    settings.Close();
  } catch (const Failure &failure) {
    ShowTrappedFailure(App(), failure, "Error writing INI file.");
  }
}

} // namespace Tessoro
