#include "files/FieldWriter.hpp"
#include "files/FileSystem.hpp"
#include "files/SoundFiles.hpp"
#include "files/SoundLines.hpp"
#include "shell/Application.hpp"
#include "sound/SoundText.hpp"

namespace Tessoro {

namespace {

// Writes what a line's target holds, in the target's own form.
class LineWriter {
public:
  explicit LineWriter(FieldWriter &output) : fields(output) {}

  void operator()(std::monostate) const { fields.Number(0); }
  void operator()(const TextBox *box) const { fields.Text(box->Text()); }
  void operator()(const ComboBox *combo) const { fields.Number(combo->ListIndex()); }
  void operator()(const ScrollBar *bar) const { fields.Number(bar->Value()); }
  void operator()(const CheckBox *box) const { fields.Number(box->Value()); }
  void operator()(const std::int16_t *shadow) const { fields.Number(int{*shadow}); }
  void operator()(const std::string *shadow) const { fields.Text(*shadow); }
  void operator()(const Shadow *shadow) const {
    if (const auto *number = std::get_if<double>(&shadow->Content()))
      fields.Number(*number);
    else if (const auto *text = std::get_if<std::string>(&shadow->Content()))
      fields.Text(*text);
    else
      fields.Nothing();
  }

private:
  FieldWriter &fields;
};

void WriteLine(FieldWriter &fields, const SoundLine &line, const Module1 &globals) {
  if (line.rule == LoadRule::Name)
    fields.Text(globals.SoundName.substr(0, SoundNameText.length));
  else if (line.rule == LoadRule::Category)
    fields.Text(globals.SoundCategory.substr(0, SoundCategoryText.length));
  else if (line.writtenAsZero)
    fields.Number(0);
  else
    std::visit(LineWriter(fields), line.target);
  fields.EndLine();
}

} // namespace

void WriteSound(Application &app, const std::string &path) {
  FieldWriter fields(app.System().files.OpenForWriting(path));
  fields.Text(SoundHeader).EndLine();
  for (const SoundLine &line : SoundLines(app))
    WriteLine(fields, line, app.Module1);
  fields.Close();
}

} // namespace Tessoro
