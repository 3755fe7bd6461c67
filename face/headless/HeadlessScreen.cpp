#include "face/headless/HeadlessScreen.hpp"

#include "surface/Failure.hpp"
#include "surface/Form.hpp"

#include <algorithm>
#include <array>
#include <span>

namespace Tessoro {

namespace {

struct ButtonName {
  MsgBoxButton button;
  std::string_view name;
};

constexpr ButtonName ButtonNames[] = {
    {MsgBoxButton::Ok, "OK"},
    {MsgBoxButton::Cancel, "Cancel"},
    {MsgBoxButton::Yes, "Yes"},
    {MsgBoxButton::No, "No"},
};

std::string_view NameOf(MsgBoxButton button) {
  return std::ranges::find(ButtonNames, button, &ButtonName::button)->name;
}

std::span<const MsgBoxButton> ButtonsOf(int flags) {
  static constexpr std::array ok{MsgBoxButton::Ok};
  static constexpr std::array okCancel{MsgBoxButton::Ok, MsgBoxButton::Cancel};
  static constexpr std::array yesNo{MsgBoxButton::Yes, MsgBoxButton::No};
  switch (flags & MsgBoxFlags::ButtonMask) {
  case MsgBoxFlags::OkCancel:
    return okCancel;
  case MsgBoxFlags::YesNo:
    return yesNo;
  default:
    return ok;
  }
}

std::string_view NameOf(ProgramEnd end) {
  switch (end) {
  case ProgramEnd::Quit:
    return "quit";
  case ProgramEnd::Closed:
    return "closed";
  default:
    return "failure";
  }
}

} // namespace

std::optional<MsgBoxButton> FindButton(std::string_view name) {
  const auto *const found = std::ranges::find(ButtonNames, name, &ButtonName::name);
  if (found == std::end(ButtonNames))
    return std::nullopt;
  return found->button;
}

void HeadlessScreen::FormLoading(Form &form) { trace.Line("load " + form.Name()); }

void HeadlessScreen::FormShown(Form &form) { trace.Line("show " + form.Name()); }

void HeadlessScreen::FormUnloaded(Form &form) { trace.Line("unload " + form.Name()); }

MsgBoxButton HeadlessScreen::MsgBox(const std::string &text, int flags, const std::string &title) {
  const MsgBoxButton answer = Answer(flags);
  trace.Line("MsgBox " + std::to_string(flags) + ' ' + QuotedText(title) + ' ' + QuotedText(text) +
             " -> " + std::string(NameOf(answer)));
  return answer;
}

// An answer that the box doesn't offer is dropped, and the next one is tried.
MsgBoxButton HeadlessScreen::Answer(int flags) {
  const std::span<const MsgBoxButton> offered = ButtonsOf(flags);
  while (!answers.empty()) {
    const MsgBoxButton answer = answers.front();
    answers.pop_front();
    if (std::ranges::find(offered, answer) != offered.end())
      return answer;
  }
  return offered.front();
}

void HeadlessScreen::ProgramEnded(ProgramEnd end, const Failure *failure) {
  if (failure != nullptr)
    trace.Line("failure " + std::to_string(failure->Number()));
  trace.Line("end " + std::string(NameOf(end)));
}

} // namespace Tessoro
