#include "shell/SettingsFile.hpp"

#include "files/FileSystem.hpp"
#include "shell/Application.hpp"
#include "surface/Conversions.hpp"

#include <algorithm>
#include <limits>

namespace Tessoro {

namespace {

constexpr int DefaultKnobSpeed = 3;
constexpr int LowestKnobSpeed = 1;
constexpr int HighestKnobSpeed = 5;

double ReadNumber(FieldReader &settings) { return StrictNumber(settings.Read().text, '.'); }

// A number beyond an int becomes the nearest one, which is as far outside every range.
int ReadWhole(FieldReader &settings) {
  using Limits = std::numeric_limits<int>;
  const double number = ReadNumber(settings);
  return static_cast<int>(RoundHalfEven(std::clamp<double>(number, Limits::min(), Limits::max())));
}

template <typename Speed> void KeepSpeedInRange(Speed &speed) {
  if (speed < LowestKnobSpeed || speed > HighestKnobSpeed)
    speed = DefaultKnobSpeed;
}

// What was never set is written as nothing; the rest between quotes.
void WriteUnsettable(FieldWriter &settings, const Value &value) {
  if (const auto *text = std::get_if<std::string>(&value))
    settings.Text(*text);
  else
    settings.Nothing();
}

} // namespace

std::string SettingsPath(const Application &app) {
  return app.System().programPath + app.System().files.Separator() + "Tessoro.ini";
}

void ReadSettings(FieldReader &settings, Application &app) {
  Module1 &globals = app.Module1;
  settings.Read(); // the version that wrote the file makes no difference
  if (const Field label = settings.Read(); label.quoted || !label.text.empty())
    globals.IniProgramLabel = label.text;
  globals.IniProgramVersion = settings.Read().text;
  globals.KnobFineChange = ReadWhole(settings);
  globals.KnobStandardChange = RoundInteger(ReadNumber(settings));
  KeepSpeedInRange(globals.KnobFineChange);
  KeepSpeedInRange(globals.KnobStandardChange);
  globals.MidiInPort = ReadWhole(settings);
  globals.MidiInChannel = RoundInteger(ReadNumber(settings));
  globals.MidiOutPort = ReadWhole(settings);
  globals.MidiChannel = ReadWhole(settings);
  globals.SoundFolder = settings.Read().text;
  globals.ShowInfoPopUp = settings.Read().text;
}

void WriteSettings(FieldWriter &settings, const Application &app) {
  const Module1 &globals = app.Module1;
  settings.Text("Tessoro v" + app.VersionText()).EndLine();
  WriteUnsettable(settings, globals.IniProgramLabel);
  settings.Text(globals.IniProgramVersion).EndLine();
  settings.Number(globals.KnobFineChange).Number(globals.KnobStandardChange).EndLine();
  settings.Number(globals.MidiInPort).Number(globals.MidiInChannel).EndLine();
  settings.Number(globals.MidiOutPort).Number(globals.MidiChannel).EndLine();
  settings.Text(globals.SoundFolder).EndLine();
  settings.Text(globals.ShowInfoPopUp).EndLine();
}

} // namespace Tessoro
