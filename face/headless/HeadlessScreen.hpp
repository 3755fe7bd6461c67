// A screen that nobody sees: it traces what comes and goes, and answers the message boxes.
#pragma once

#include "face/headless/Trace.hpp"
#include "surface/Screen.hpp"

#include <deque>
#include <optional>
#include <string_view>

namespace Tessoro {

class HeadlessScreen : public Screen {
public:
  explicit HeadlessScreen(Trace &destination) : trace(destination) {}

  // For a box to come. With none queued, a box is answered with its first button.
  void QueueAnswer(MsgBoxButton button) { answers.push_back(button); }

  void FormLoading(Form &form) override;
  void FormShown(Form &form) override;
  void FormUnloaded(Form &form) override;
  void CaptionChanged(Form & /*form*/) override {}
  void PropertyChanged(Control & /*control*/, Property /*property*/) override {}
  void KeepOnTop(Form & /*form*/) override {}
  MsgBoxButton MsgBox(const std::string &text, int flags, const std::string &title) override;
  void SetMousePointer(MousePointer /*pointer*/) override {}
  void ProgramEnded(ProgramEnd end, const Failure *failure) override;

private:
  MsgBoxButton Answer(int flags);

  Trace &trace;
  std::deque<MsgBoxButton> answers;
};

// "OK", "Cancel", "Yes", "No"; nothing for another name.
std::optional<MsgBoxButton> FindButton(std::string_view name);

} // namespace Tessoro
