#include "face/headless/Targets.hpp"

#include <algorithm>
#include <utility>

namespace Tessoro {

namespace {

[[noreturn]] void RefuseName(std::string_view what, std::string_view name) {
  throw ScriptError("no " + std::string(what) + " " + Shown({WordKind::Name, std::string(name)}));
}

Menu *FindMenu(const Session &session, std::string_view name) {
  for (const Form *form : session.App.Forms())
    if (auto *entry = dynamic_cast<Menu *>(form->FindControl(name)))
      return entry;
  return nullptr;
}

Control &FindControl(const Session &session, std::string_view name) {
  const std::size_t point = name.find('.');
  const Form *const form = session.App.FindForm(name.substr(0, point));
  if (form == nullptr || point == std::string_view::npos)
    RefuseName("control", name);
  Control *const control = form->FindControl(name.substr(point + 1));
  if (control == nullptr || control->Type() == ControlType::Menu)
    RefuseName("control", name);
  return *control;
}

PropertyEntry FindEntry(PropertyEntries entries, std::string_view name, const Word &word) {
  const auto found = std::ranges::find(entries, name, &PropertyEntry::name);
  if (found == entries.end())
    RefuseName("property", word.text);
  return std::move(*found);
}

PropertyEntries PropertiesOf(Form &form) {
  return {TextProperty(
      "Caption", [&form] { return form.Caption(); },
      [&form](const std::string &text) { form.SetCaption(text); })};
}

} // namespace

Form &FormNamed(const Session &session, const Word &word) {
  Form *const form = session.App.FindForm(word.text);
  if (form == nullptr)
    RefuseName("form", word.text);
  return *form;
}

Control &ControlNamed(const Session &session, const Word &word) {
  return FindControl(session, word.text);
}

Menu &MenuNamed(const Session &session, const Word &word) {
  Menu *const entry = FindMenu(session, word.text);
  if (entry == nullptr)
    RefuseName("menu entry", word.text);
  return *entry;
}

NamedProperty PropertyNamed(Session &session, const Word &word) {
  const std::string_view whole = word.text;
  const std::size_t point = whole.rfind('.');
  if (point == std::string_view::npos)
    RefuseName("property", whole);
  const std::string_view owner = whole.substr(0, point);
  const std::string_view property = whole.substr(point + 1);
  if (owner == "Module1")
    return {nullptr, FindEntry(session.App.Module1.Globals(), property, word)};
  if (Form *const form = session.App.FindForm(owner))
    return {form, FindEntry(PropertiesOf(*form), property, word)};
  if (Menu *const entry = FindMenu(session, owner))
    return {&entry->Owner(), FindEntry(entry->Properties(), property, word)};
  Control &control = FindControl(session, owner);
  return {&control.Owner(), FindEntry(control.Properties(), property, word)};
}

void RefuseType(const Control &control) {
  throw ScriptError("not for a control of the type of " + control.Owner().Name() + "." +
                    control.Name());
}

} // namespace Tessoro
