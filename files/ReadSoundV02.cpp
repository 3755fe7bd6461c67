#include "files/FieldReader.hpp"
#include "files/FileSystem.hpp"
#include "files/SoundFiles.hpp"
#include "shell/Application.hpp"
#include "sound/ValueLists.hpp"
#include "surface/Conversions.hpp"

#include <algorithm>

namespace Tessoro {

namespace {

// The octave words lack the sign for feet that the list's texts have.
constexpr std::array<std::string_view, 9> OctaveWords{"1/2", "1",  "2",  "4",  "8",
                                                      "16",  "32", "64", "128"};

class OldSoundLoader {
public:
  OldSoundLoader(Application &application, FieldReader &input)
      : app(application), main(application.F_Tessoro), globals(application.Module1), fields(input) {
  }

  void Load();

private:
  struct Oscillator;
  struct Filter;

  void LoadOscillator(const Oscillator &oscillator);
  void LoadGeneral();
  void LoadFilter(const Filter &filter);
  void LoadEnvelope(TextBox &attack, TextBox &decay, TextBox &sustain, TextBox &release);

  const std::string &ReadField() { return globals.FileField = fields.Read().text; }
  void Drop() { ReadField(); }
  void TakeField(TextBox &box) { box.SetText(ReadField()); }
  void TakeDisplayOfField(TextBox &box) {
    box.SetText(NumberText(app.StrictNumber(ReadField()) - ValueLists::WireCenter));
  }
  std::int16_t ReadStrict() { return app.StrictInteger(ReadField()); }
  void ReadFieldWithWordForZero(std::string_view word);
  void ReadFlag();
  void StoreField(Shadow &shadow) { shadow.SetText(globals.FileField, app.System().decimalSign); }
  // A word that isn't in the table leaves the list as it is.
  template <std::size_t Count>
  void SelectWord(ComboBox &combo, const std::array<std::string_view, Count> &words);

  Application &app;
  F_Tessoro &main;
  Module1 &globals;
  FieldReader &fields;
};

struct OldSoundLoader::Oscillator {
  ComboBox &shape;
  ComboBox &octave;
  TextBox &semi;
  TextBox &detune;
  TextBox &pulseWidth;
  TextBox &pulseWidthModulation;
  ComboBox &source;
  ScrollBar &volume;
  CheckBox &mute;
  TextBox &balance;
};

struct OldSoundLoader::Filter {
  ComboBox &type;
  TextBox &cutoff;
  TextBox &reso;
  TextBox &drive;
  TextBox &keytrack;
  TextBox &envelopeAmount;
  TextBox &envelopeVelocity;
  TextBox &modulationAmount;
  ComboBox &modulation;
  TextBox &pan;
};

template <std::size_t Count>
void OldSoundLoader::SelectWord(ComboBox &combo, const std::array<std::string_view, Count> &words) {
  const auto found = std::find(words.begin(), words.end(), globals.FileField);
  if (found != words.end())
    combo.SetListIndex(static_cast<int>(found - words.begin()));
}

// The field is read as a number first, so a word fails here before it can be looked up.
void OldSoundLoader::ReadFieldWithWordForZero(std::string_view word) {
  if (app.StrictNumber(ReadField()) == 0)
    globals.FileField = word;
}

void OldSoundLoader::ReadFlag() {
  if (app.StrictNumber(ReadField()) > 1)
    globals.FileField = "0";
}

void OldSoundLoader::Load() {
  Drop();
  Drop();
  // clang-format off
  LoadOscillator({main.ComboOSC1shape, main.ComboOSC1oct, main.TextOSC1semi, main.TextOSC1detune, main.TextOSC1pw,
                  main.TextOSC1pwm, main.ComboOSC1pwmsource, main.VScrollOSC1vol, main.CheckOSC1mute, main.TextOSC1fbalance});
  LoadOscillator({main.ComboOSC2shape, main.ComboOSC2oct, main.TextOSC2semi, main.TextOSC2detune, main.TextOSC2pw,
                  main.TextOSC2pwm, main.ComboOSC2pwmsource, main.VScrollOSC2vol, main.CheckOSC2mute, main.TextOSC2fbalance});
  LoadOscillator({main.ComboOSC3shape, main.ComboOSC3oct, main.TextOSC3semi, main.TextOSC3detune, main.TextOSC3pw,
                  main.TextOSC3pwm, main.ComboOSC3pwmsource, main.VScrollOSC3vol, main.CheckOSC3mute, main.TextOSC3fbalance});
  LoadGeneral();
  LoadFilter({main.ComboFilter1, main.TextF1_cutoff, main.TextF1_reso, main.TextF1_drive, main.TextF1_keytrack,
              main.TextF1_envamt, main.TextF1_envvol, main.TextF1_modamount, main.ComboF1Modulation, main.TextF1_pan});
  LoadFilter({main.ComboFilter2, main.TextF2_cutoff, main.TextF2_reso, main.TextF2_drive, main.TextF2_keytrack,
              main.TextF2_envamt, main.TextF2_envvel, main.TextF2_modamount, main.ComboF2Modulation, main.TextF2_pan});
  TakeField(main.TextFilterParSer);
  LoadEnvelope(main.TextEnv1T1, main.TextEnv1T2, main.TextEnv1L2, main.TextEnv1T3);
  LoadEnvelope(main.TextEnv2T1, main.TextEnv2T2, main.TextEnv2L2, main.TextEnv2T3);
  // clang-format on
}

void OldSoundLoader::LoadOscillator(const Oscillator &oscillator) {
  ReadField();
  SelectWord(oscillator.shape, ValueLists::ShapeTexts);
  ReadField();
  SelectWord(oscillator.octave, OctaveWords);
  TakeField(oscillator.semi);
  TakeField(oscillator.detune);
  TakeField(oscillator.pulseWidth);
  oscillator.pulseWidthModulation.SetText(
      NumberText(NumericPrefix(ReadField()) - ValueLists::WireCenter));
  ReadFieldWithWordForZero("Off");
  SelectWord(oscillator.source, ValueLists::ModSourceTexts);
  Drop();
  oscillator.volume.SetValue(ReadStrict());
  oscillator.mute.SetValue(ReadStrict());
  TakeField(oscillator.balance);
}

// Stored and not sent, but for the sync.
void OldSoundLoader::LoadGeneral() {
  ReadFieldWithWordForZero("Off");
  StoreField(globals.UnisonoMode);
  globals.UnisonoDetune = ReadStrict();
  ReadFlag();
  main.CheckSyncOn.SetValue(app.StrictInteger(globals.FileField));
  ReadFlag();
  StoreField(globals.MonoOn);
  ReadField();
  StoreField(globals.GlideOn);
  ReadFieldWithWordForZero("Portamento");
  StoreField(globals.GlideMode);
  globals.GlideRate = ReadStrict();
  ReadField();
  StoreField(globals.RingmodLevel);
  globals.RingmodBalance = ReadField();
  Drop();
}

// The file has no modulation and no pan: they go to their centres.
void OldSoundLoader::LoadFilter(const Filter &filter) {
  ReadField();
  SelectWord(filter.type, ValueLists::FilterTypeTexts);
  TakeField(filter.cutoff);
  TakeField(filter.reso);
  TakeField(filter.drive);
  TakeDisplayOfField(filter.keytrack);
  TakeDisplayOfField(filter.envelopeAmount);
  TakeDisplayOfField(filter.envelopeVelocity);
  filter.modulationAmount.SetText("0");
  filter.modulation.SetListIndex(0);
  filter.pan.SetText("0");
}

void OldSoundLoader::LoadEnvelope(TextBox &attack, TextBox &decay, TextBox &sustain,
                                  TextBox &release) {
  for (TextBox *box : {&attack, &decay, &sustain, &release})
    TakeField(*box);
}

} // namespace

void ReadSoundV02(Application &app, const std::string &path) {
  app.Module1.InitHiddenParams();
  {
    FieldReader fields(app.System().files.OpenForReading(path));
    OldSoundLoader(app, fields).Load();
  }
  app.MsgBox("Outdated Tessoro fileformat v.0.2 successfully imported. Some (newer) parameters "
             "have not been set.\r\n\r\nAnyway you should click on [Init sound] before opening an "
             "outdated soundformat to make sure all unused parameters are set to a defined value.",
             MsgBoxFlags::Information, "Import of former fileformat completed");
}

} // namespace Tessoro
