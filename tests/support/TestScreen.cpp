#include "tests/support/TestScreen.hpp"

#include "surface/Failure.hpp"
#include "surface/Form.hpp"

namespace Tessoro {

void TestScreen::FormLoading(Form &form) { forms.push_back("load " + form.Name()); }
void TestScreen::FormShown(Form &form) { forms.push_back("show " + form.Name()); }
void TestScreen::FormUnloaded(Form &form) { forms.push_back("unload " + form.Name()); }
void TestScreen::CaptionChanged(Form &form) { forms.push_back("caption " + form.Name()); }
void TestScreen::KeepOnTop(Form &form) { forms.push_back("top " + form.Name()); }

void TestScreen::PropertyChanged(Control &control, Property property) {
  ++changes[&control][property];
}

MsgBoxButton TestScreen::MsgBox(const std::string &text, int flags, const std::string &title) {
  boxes.push_back({text, flags, title});
  if (answers.empty())
    return MsgBoxButton::Ok;
  const MsgBoxButton answer = answers.front();
  answers.pop_front();
  return answer;
}

void TestScreen::ProgramEnded(ProgramEnd end, const Failure *cause) {
  ends.push_back(end);
  if (cause != nullptr)
    failure = cause->Number();
}

} // namespace Tessoro
