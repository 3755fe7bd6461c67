// What code would do: properties, globals and forms by name.
#include "face/headless/Commands.hpp"
#include "face/headless/Targets.hpp"

#include <algorithm>

namespace Tessoro {

namespace {

bool IsLoaded(Session &session, const Form &form) {
  return form.IsLoaded() || session.IsReached(Reach::Unloaded);
}

Value ValueOf(const Word &word) {
  switch (word.kind) {
  case WordKind::Text:
    return word.text;
  case WordKind::Number:
    return word.number;
  default:
    break;
  }
  if (word.text != "True" && word.text != "False")
    throw ScriptError(Shown(word) + " is no value");
  return word.text == "True";
}

bool Takes(ValueKind kind, const Value &value) {
  switch (kind) {
  case ValueKind::Truth:
    return std::holds_alternative<bool>(value);
  case ValueKind::Number:
    return std::holds_alternative<double>(value);
  case ValueKind::Text:
    return std::holds_alternative<std::string>(value);
  case ValueKind::NumberOrText:
    return !std::holds_alternative<bool>(value);
  }
  return false;
}

void Set(Session &session, const Words &words) {
  const NamedProperty named = PropertyNamed(session, words[0]);
  const Value value = ValueOf(words[1]);
  if (!named.entry.set)
    throw ScriptError(words[0].text + " can't be set");
  if (!Takes(named.entry.kind, value))
    throw ScriptError(words[0].text + " doesn't take a value of that kind");
  if (named.form != nullptr && !IsLoaded(session, *named.form))
    return;
  session.App.Event([&] { named.entry.set(value); });
}

void Get(Session &session, const Words &words) {
  const NamedProperty named = PropertyNamed(session, words[0]);
  if (named.form == nullptr || IsLoaded(session, *named.form))
    session.Trace.Line(words[0].text + " = " + ValueText(named.entry.get()));
}

void PrintItems(Session &session, const std::string &name, const std::vector<std::string> &items) {
  for (std::size_t i = 0; i < items.size(); ++i)
    session.Trace.Line(name + ".List(" + std::to_string(i) + ") = " + QuotedText(items[i]));
}

template <typename List>
bool PrintItemsOf(Session &session, const std::string &name, const Control &control) {
  const auto *const list = dynamic_cast<const List *>(&control);
  if (list != nullptr && IsLoaded(session, control.Owner()))
    PrintItems(session, name, list->List());
  return list != nullptr;
}

void Items(Session &session, const Words &words) {
  const std::string &name = words[0].text;
  const Control &control = ControlNamed(session, words[0]);
  if (!PrintItemsOf<ComboBox>(session, name, control) &&
      !PrintItemsOf<DriveListBox>(session, name, control) &&
      !PrintItemsOf<DirListBox>(session, name, control) &&
      !PrintItemsOf<FileListBox>(session, name, control))
    RefuseType(control);
}

void LoadForm(Session &session, const Words &words) {
  Form &form = FormNamed(session, words[0]);
  session.App.Event([&] { form.Load(); });
}

void ShowForm(Session &session, const Words &words) {
  Form &form = FormNamed(session, words[0]);
  session.App.Event([&] { form.Show(); });
}

void UnloadForm(Session &session, const Words &words) {
  Form &form = FormNamed(session, words[0]);
  session.App.Event([&] { form.Unload(); });
}

// What stands on a form for its looks alone, or tells of the machine, is no part of a dump.
bool IsDumped(const Control &control) {
  switch (control.Type()) {
  case ControlType::NoteKey:
  case ControlType::Shape:
  case ControlType::Frame:
  case ControlType::Timer:
  case ControlType::DriveListBox:
  case ControlType::DirListBox:
  case ControlType::FileListBox:
    return false;
  default:
    return true;
  }
}

void DumpControl(Session &session, Control &control) {
  const std::string owner = control.Type() == ControlType::Menu ? "" : control.Owner().Name() + ".";
  PropertyEntries entries = control.Properties();
  std::ranges::sort(entries, {}, &PropertyEntry::name);
  for (const PropertyEntry &entry : entries)
    if (entry.listed)
      session.Trace.Line(owner + control.Name() + "." + entry.name + " = " +
                         ValueText(entry.get()));
}

void Dump(Session &session, const Words &words) {
  const Form &form = FormNamed(session, words[0]);
  if (!IsLoaded(session, form))
    return;
  std::vector<Control *> controls = form.Controls();
  std::ranges::sort(controls, {}, &Control::Name);
  for (Control *const control : controls)
    if (IsDumped(*control))
      DumpControl(session, *control);
}

constexpr Command CodeTable[] = {
    {"set", "PROPERTY VALUE", Set, "writes a property or a global as code does"},
    {"get", "PROPERTY", Get, "prints it, as in get F_Tessoro.TextF1_cutoff.Text"},
    {"items", "CONTROL", Items, "prints the items of a list"},
    {"load", "FORM", LoadForm, "loads a form"},
    {"show", "FORM", ShowForm, "shows it"},
    {"unload", "FORM", UnloadForm, "takes it away"},
    {"dump", "FORM", Dump, "prints every property of every control of a form"},
};

} // namespace

Commands CodeCommands() { return CodeTable; }

} // namespace Tessoro
