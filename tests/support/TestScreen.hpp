// A screen without pixels: it notes what it is told and answers boxes as it was told to.
#pragma once

#include "surface/Screen.hpp"

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Tessoro {

class TestScreen : public Screen {
public:
  struct Box {
    std::string text;
    int flags;
    std::string title;
  };

  void FormLoading(Form &form) override;
  void FormShown(Form &form) override;
  void FormUnloaded(Form &form) override;
  void CaptionChanged(Form &form) override;
  void PropertyChanged(Control &control, Property property) override;
  void KeepOnTop(Form &form) override;
  // Takes the next of the answers, or OK where there is none.
  MsgBoxButton MsgBox(const std::string &text, int flags, const std::string &title) override;
  void SetMousePointer(MousePointer pointer) override { pointers.push_back(pointer); }
  void ProgramEnded(ProgramEnd end, const Failure *cause) override;

  // "load F_Tessoro", "show F_Tessoro", "unload F_Tessoro", "top F_Midi", "caption F_Tessoro".
  std::vector<std::string> forms;
  std::vector<Box> boxes;
  std::deque<MsgBoxButton> answers;
  std::vector<MousePointer> pointers;
  // How often a control said that a property of it had changed.
  std::map<const Control *, std::map<Property, int>> changes;
  std::vector<ProgramEnd> ends;
  // The number of the failure that ended the program.
  std::optional<int> failure;
};

} // namespace Tessoro
