#include "files/FieldReader.hpp"
#include "files/FileSystem.hpp"
#include "files/SoundFiles.hpp"
#include "files/SoundLines.hpp"
#include "shell/Application.hpp"
#include "sound/SoundText.hpp"
#include "surface/Conversions.hpp"

namespace Tessoro {

namespace {

void StoreText(const LineTarget &target, const std::string &text, char sign) {
  if (auto *const *shadow = std::get_if<Shadow *>(&target))
    (*shadow)->SetText(text, sign);
  else
    *std::get<std::string *>(target) = text;
}

void StoreNumber(const LineTarget &target, double number) {
  if (auto *const *shadow = std::get_if<Shadow *>(&target))
    (*shadow)->SetNumber(number);
  else
    *std::get<std::int16_t *>(target) = RoundInteger(number);
}

class SoundLoader {
public:
  SoundLoader(Application &application, FieldReader &input)
      : app(application), globals(application.Module1), fields(input) {}

  void Load(const SoundLine &line);
  void AskForPitchMod();

private:
  void LoadControl(const SoundLine &line);
  void LoadShadow(const SoundLine &line);
  void LoadEnvelope(const SoundLine &line);
  void LoadOwn(const SoundLine &line);
  void SendName();
  void SendCleaned(const SoundTextPlace &place, std::string &global);

  // The field as a text, in the variable that all lines share.
  const std::string &ReadField() { return globals.FileField = fields.Read().text; }
  void ZeroFieldAboveOne();
  double Prefix() const { return NumericPrefix(globals.FileField); }
  std::int16_t Strict() const { return app.StrictInteger(globals.FileField); }
  char Sign() const { return app.System().decimalSign; }

  Application &app;
  Module1 &globals;
  FieldReader &fields;
};

void SoundLoader::Load(const SoundLine &line) {
  switch (line.rule) {
  case LoadRule::Drop:
    ReadField();
    break;
  case LoadRule::Name:
    globals.SoundName = ReadField();
    break;
  case LoadRule::Category:
    globals.SoundCategory = ReadField();
    SendName();
    break;
  case LoadRule::Field:
  case LoadRule::Prefix:
  case LoadRule::Strict:
  case LoadRule::StrictFlag:
    ReadField();
    LoadControl(line);
    break;
  case LoadRule::Envelope:
    ReadField();
    LoadEnvelope(line);
    break;
  case LoadRule::Own:
  case LoadRule::OwnSendPrefix:
  case LoadRule::OwnSendStrict:
  case LoadRule::StepFirstByte:
    LoadOwn(line);
    break;
  case LoadRule::ShadowText:
  case LoadRule::ShadowFlag:
  case LoadRule::ShadowPrefix:
  case LoadRule::ShadowGlideMode:
  case LoadRule::ShadowStrict:
  case LoadRule::ShadowTextSendPrefix:
  case LoadRule::ShadowStrictSendPrefix:
  case LoadRule::ShapeSendPrefix:
  case LoadRule::StrictSend:
  case LoadRule::StepSecondByte:
    ReadField();
    LoadShadow(line);
    break;
  }
}

void SoundLoader::ZeroFieldAboveOne() {
  if (app.StrictNumber(globals.FileField) > 1)
    globals.FileField = "0";
}

void SoundLoader::LoadControl(const SoundLine &line) {
  if (line.rule == LoadRule::StrictFlag)
    ZeroFieldAboveOne();
  if (auto *const *box = std::get_if<TextBox *>(&line.target))
    (*box)->SetText(line.rule == LoadRule::Prefix ? NumberText(Prefix()) : globals.FileField);
  else if (auto *const *combo = std::get_if<ComboBox *>(&line.target))
    (*combo)->SetListIndex(Strict());
  else if (auto *const *bar = std::get_if<ScrollBar *>(&line.target))
    (*bar)->SetValue(Strict());
  else if (auto *const *check = std::get_if<CheckBox *>(&line.target))
    (*check)->SetValue(Strict());
}

void SoundLoader::LoadShadow(const SoundLine &line) {
  if (line.rule == LoadRule::ShadowFlag)
    ZeroFieldAboveOne();
  switch (line.rule) {
  case LoadRule::ShadowText:
  case LoadRule::ShadowFlag:
  case LoadRule::ShadowTextSendPrefix:
    StoreText(line.target, globals.FileField, Sign());
    break;
  case LoadRule::ShadowPrefix:
    StoreNumber(line.target, Prefix());
    break;
  case LoadRule::ShadowGlideMode:
    StoreNumber(line.target, Prefix() == -1 ? 0 : Prefix());
    break;
  case LoadRule::ShapeSendPrefix:
    StoreText(line.target, NumberText(Prefix()), Sign());
    break;
  default:
    StoreNumber(line.target, Strict());
  }
  if (line.rule == LoadRule::StrictSend)
    globals.SendSoundParam(line.number, Strict());
  else if (line.rule == LoadRule::StepSecondByte)
    globals.SendSoundParam(line.number,
                           RoundInteger(16 * globals.ArpStepD[line.step].Number(Sign()) + 8 +
                                        globals.ArpStepE[line.step]));
  else if (line.number != 0)
    globals.SendSoundParam(line.number, RoundInteger(Prefix() + line.offset));
}

void SoundLoader::LoadEnvelope(const SoundLine &line) {
  StoreNumber(line.target, Prefix());
  globals.SendSoundParam(line.number, RoundInteger(Prefix()));
  if (app.StrictNumber(app.F_Tessoro.C_Envelope34.Caption()) == line.envelope)
    line.box->SetText(globals.FileField);
}

// The line goes straight into the shadow, which holds a text or a number as the line does.
void SoundLoader::LoadOwn(const SoundLine &line) {
  const Field field = fields.Read();
  Shadow &shadow = *std::get<Shadow *>(line.target);
  shadow.SetField(field.quoted, field.text);
  if (line.rule == LoadRule::OwnSendPrefix)
    globals.SendSoundParam(line.number, RoundInteger(NumericPrefix(field.text)));
  else if (line.rule == LoadRule::OwnSendStrict)
    globals.SendSoundParam(line.number,
                           RoundInteger(RoundInteger(shadow.Number(Sign())) + line.offset));
  else if (line.rule == LoadRule::StepFirstByte)
    globals.SendSoundParam(line.number,
                           RoundInteger(16 * globals.ArpStepA[line.step].Number(Sign()) +
                                        8 * globals.ArpStepB[line.step].Number(Sign()) +
                                        shadow.Number(Sign())));
}

void SoundLoader::SendName() {
  SendCleaned(SoundNameText, globals.SoundName);
  SendCleaned(SoundCategoryText, globals.SoundCategory);
}

// What was sent goes behind the text that the file gave; nobody reads that far.
void SoundLoader::SendCleaned(const SoundTextPlace &place, std::string &global) {
  std::string sent;
  SendSoundText(globals, place, global, sent);
  global += sent;
}

// Files of an older version hold nothing useful there.
void SoundLoader::AskForPitchMod() {
  constexpr int standardSource = 2;
  constexpr std::int16_t standardAmount = 84;
  if (globals.PitchModSource.Number(Sign()) != 0 || globals.PitchModAmount != 0)
    return;
  const MsgBoxButton answer = app.MsgBox(
      "PitchMod settings for this sound are set to 'Off' and '-64'. The reason may be an older "
      "sound format. Do you want to change this to the standard settings 'LFO1*MW' and '20'?",
      MsgBoxFlags::YesNo + MsgBoxFlags::Question, "Confirm soundparameter");
  if (answer != MsgBoxButton::Yes)
    return;
  globals.PitchModSource.SetNumber(standardSource);
  globals.SendSoundParam(50, standardSource);
  globals.PitchModAmount = standardAmount;
  globals.SendSoundParam(PitchModAmountNumber, standardAmount);
}

} // namespace

void ReadSoundV15(Application &app, const std::string &path) {
  FieldReader fields(app.System().files.OpenForReading(path));
  app.Module1.FileField = fields.Read().text;
  SoundLoader loader(app, fields);
  for (const SoundLine &line : SoundLines(app)) {
    loader.Load(line);
    if (line.number == PitchModAmountNumber)
      loader.AskForPitchMod();
  }
}

} // namespace Tessoro
