#include "files/FileSystem.hpp"
#include "files/SoundFiles.hpp"
#include "files/SyxBytes.hpp"
#include "shell/Application.hpp"
#include "sound/ValueLists.hpp"
#include "surface/Conversions.hpp"

#include <algorithm>
#include <memory>

namespace Tessoro {

namespace {

constexpr int SysExStart = 240;
constexpr int WaldorfId = 62;
constexpr int QId = 15;
constexpr int MicroQId = 16;

// The data of the dump stand at offset 7 + index; above 255 a number is one above the index.
int NumberAt(int offset) {
  constexpr int indexShift = 7;
  constexpr int lastBeforeGap = 255;
  const int index = offset - indexShift;
  return index > lastBeforeGap ? index + 1 : index;
}

class SyxImport {
public:
  explicit SyxImport(Application &application) : app(application), globals(application.Module1) {}

  // The reason why the file is none of the synthesizer's sounds; empty if it is one.
  static std::string RefusalOf(InputFile &file);
  void Refuse(const std::string &reason);
  void Apply(const SyxByte &row, int number, int byte);

private:
  void SetControl(const SyxTarget &target, int value);
  void SetShadow(const SyxTarget &target, int value);
  void SelectOctave(ComboBox &combo, int byte);
  void TakeAllocation(int byte);
  void TakeFirstByte(std::size_t step, int byte);
  void TakeSecondByte(std::size_t step, int byte);
  void Send(int number, int byte) {
    globals.SendSoundParam(number, static_cast<std::int16_t>(byte));
  }

  Application &app;
  Module1 &globals;
};

void SyxImport::Refuse(const std::string &reason) {
  app.MsgBox(reason, MsgBoxFlags::Exclamation, "Sound load aborted");
}

std::string SyxImport::RefusalOf(InputFile &file) {
  const int start = file.ReadByte();
  if (start != SysExStart)
    return "File seems to be no SysEx file. (" + IntegerText(start) + ")";
  const int maker = file.ReadByte();
  if (maker != WaldorfId)
    return "File seems to be no Waldorf SysEx(" + IntegerText(maker) + ")";
  const int model = file.ReadByte();
  if (model == QId)
    return "File is a Q SysEx sound and can not be imported";
  if (model != MicroQId)
    return "File seems to be no microQ SysEx (" + IntegerText(model) + ")";
  return {};
}

void SyxImport::SetControl(const SyxTarget &target, int value) {
  if (auto *const *box = std::get_if<TextBox *>(&target))
    (*box)->SetText(IntegerText(value));
  else if (auto *const *combo = std::get_if<ComboBox *>(&target))
    (*combo)->SetListIndex(value);
  else if (auto *const *bar = std::get_if<ScrollBar *>(&target))
    (*bar)->SetValue(value);
  else
    std::get<CheckBox *>(target)->SetValue(value);
}

void SyxImport::SetShadow(const SyxTarget &target, int value) {
  if (auto *const *shadow = std::get_if<Shadow *>(&target))
    (*shadow)->SetNumber(value);
  else if (auto *const *integer = std::get_if<std::int16_t *>(&target))
    **integer = static_cast<std::int16_t>(value);
  else
    *std::get<std::string *>(target) = IntegerText(value);
}

void SyxImport::SelectOctave(ComboBox &combo, int byte) {
  const auto &values = ValueLists::OctaveValues;
  const auto *found = std::find_if(values.begin(), values.end(),
                                   [byte](const auto &value) { return value.wire == byte; });
  if (found == values.end())
    app.MsgBox("Wrong octave!", MsgBoxFlags::Exclamation, "Internal error");
  else
    combo.SetListIndex(static_cast<int>(found - values.begin()));
}

// The unisono mode keeps the fraction of a byte that holds more than the mono flag.
void SyxImport::TakeAllocation(int byte) {
  constexpr int unisonoStep = 16;
  const int mono = byte % unisonoStep == 0 ? 0 : 1;
  const double unisono = static_cast<double>(byte - mono) / unisonoStep;
  globals.MonoOn.SetNumber(mono);
  globals.UnisonoMode.SetNumber(unisono);
  globals.SendSoundParam(58, RoundInteger(mono + unisonoStep * unisono));
}

void SyxImport::TakeFirstByte(std::size_t step, int byte) {
  const int first = byte / 16;
  const int second = byte % 16 / 8;
  globals.ArpStepA[step].SetNumber(first);
  globals.ArpStepB[step].SetNumber(second);
  globals.ArpStepC[step].SetNumber(byte % 8);
}

void SyxImport::TakeSecondByte(std::size_t step, int byte) {
  constexpr int flag = 8;
  const int first = byte / 16;
  const int rest = byte % 16;
  globals.ArpStepD[step].SetNumber(first);
  globals.ArpStepE[step] = static_cast<std::int16_t>(rest > flag ? rest - flag : rest);
}

void SyxImport::Apply(const SyxByte &row, int number, int byte) {
  switch (row.rule) {
  case SyxRule::Plain:
    SetControl(row.target, byte);
    break;
  case SyxRule::Signed:
    SetControl(row.target, byte - ValueLists::WireCenter);
    break;
  case SyxRule::Octave:
    SelectOctave(*std::get<ComboBox *>(row.target), byte);
    break;
  case SyxRule::NoiseLevel:
    SetControl(row.target, byte);
    row.mute->SetValue(0);
    break;
  case SyxRule::Send:
    Send(number, byte);
    break;
  case SyxRule::SendZero:
    Send(number, 0);
    break;
  case SyxRule::SendAndTell:
    Send(number, byte);
    if (byte != 0)
      app.MsgBox(std::string(row.message), MsgBoxFlags::Information, "Import info");
    break;
  case SyxRule::ShadowSend:
    SetShadow(row.target, byte + row.offset);
    Send(number, byte);
    break;
  case SyxRule::PlainShadowSend:
    SetControl(row.target, byte);
    row.shadow->SetNumber(byte);
    Send(number, byte);
    break;
  case SyxRule::Allocation:
    TakeAllocation(byte);
    break;
  case SyxRule::StepFirstByte:
    Send(number, byte);
    TakeFirstByte(row.step, byte);
    break;
  case SyxRule::StepSecondByte:
    Send(number, byte);
    TakeSecondByte(row.step, byte);
    break;
  case SyxRule::NameCharacter:
    globals.SoundName += static_cast<char>(byte);
    Send(number, byte);
    break;
  case SyxRule::CategoryCharacter:
    globals.SoundCategory += static_cast<char>(byte);
    Send(number, byte);
    break;
  case SyxRule::Ignore:
    break;
  }
}

} // namespace

void ImportSyxSound(Application &app, const std::string &path) {
  constexpr int headerChecked = 3;
  constexpr int firstNameOffset = 370;
  F_Tessoro &main = app.F_Tessoro;
  for (CheckBox *mute : {&main.CheckOSC1mute, &main.CheckOSC2mute, &main.CheckOSC3mute})
    mute->SetValue(0);
  std::unique_ptr<InputFile> file = app.System().files.OpenForReading(path);
  SyxImport import(app);
  if (const std::string reason = SyxImport::RefusalOf(*file); !reason.empty()) {
    file.reset(); // closed before the box comes up
    import.Refuse(reason);
    return;
  }
  int offset = headerChecked;
  for (; offset < FirstSyxOffset; ++offset)
    file->ReadByte();
  for (const SyxByte &row : SyxBytes(app)) {
    if (offset == firstNameOffset) {
      app.Module1.SoundName.clear();
      app.Module1.SoundCategory.clear();
    }
    import.Apply(row, NumberAt(offset), file->ReadByte());
    ++offset;
  }
}

} // namespace Tessoro
