#include "shell/Application.hpp"

#include "surface/Conversions.hpp"

#include <algorithm>

namespace Tessoro {

Application::Application(const Platform &platform)
    : system(platform), Module1(*this), F_Tessoro(*this), F_Midi(*this), F_LFO(*this),
      F_General(*this), F_Name(*this), F_FileIO(*this), F_Preferences(*this), F_InfoPopUp(*this),
      F_About(*this) {}

void Application::Start() {
  Event([this] { F_Tessoro.Show(); });
}

void Application::Quit() { End(ProgramEnd::Quit, nullptr); }

void Application::End(ProgramEnd end, const Failure *failure) {
  if (ended)
    return;
  ended = true;
  Display().ProgramEnded(end, failure);
}

MsgBoxButton Application::MsgBox(const std::string &text, int flags, const std::string &title) {
  return Display().MsgBox(text, flags, title);
}

std::string Application::VersionText() const {
  return ShortVersionText() + "." + IntegerText(system.version.revision);
}

std::string Application::ShortVersionText() const {
  return IntegerText(system.version.major) + "." + IntegerText(system.version.minor);
}

double Application::StrictNumber(std::string_view text) const {
  return Tessoro::StrictNumber(text, system.decimalSign);
}

std::int16_t Application::StrictInteger(std::string_view text) const {
  return Tessoro::StrictInteger(text, system.decimalSign);
}

Form *Application::FindForm(std::string_view name) const {
  const auto found = std::find_if(forms.begin(), forms.end(),
                                  [&](const Form *form) { return form->Name() == name; });
  return found == forms.end() ? nullptr : *found;
}

void Application::Add(Form &form) { forms.push_back(&form); }

void Application::FormHasGone() {
  if (std::none_of(forms.begin(), forms.end(), [](const Form *form) { return form->IsLoaded(); }))
    End(ProgramEnd::Closed, nullptr);
}

} // namespace Tessoro
