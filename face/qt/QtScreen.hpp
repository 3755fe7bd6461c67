// The screen, as windows of Qt.
#pragma once

#include "face/qt/Gate.hpp"
#include "face/qt/PictureStore.hpp"
#include "surface/Screen.hpp"

#include <QObject>

#include <optional>
#include <vector>

namespace Tessoro {

class FormWindow;

class QtScreen : public QObject, public Screen {
public:
  QtScreen();
  ~QtScreen() override;

  void FormLoading(Form &form) override;
  void FormShown(Form &form) override;
  void FormUnloaded(Form &form) override;
  void CaptionChanged(Form &form) override;
  void PropertyChanged(Control &control, Property property) override;
  void KeepOnTop(Form &form) override;
  MsgBoxButton MsgBox(const std::string &text, int flags, const std::string &title) override;
  void SetMousePointer(MousePointer pointer) override;
  // Leaves Qt's event loop.
  void ProgramEnded(ProgramEnd end, const Failure *failure) override;

  const Gate &Entrance() const { return gate; }
  // Null for a form that isn't loaded.
  FormWindow *WindowOf(const Form &form) const;
  // 0 for an end by the user, 1 for a failure; nothing while the program runs.
  std::optional<int> ExitStatus() const { return exitStatus; }

private:
  void BoxHasGone();
  void Remove(FormWindow *window);
  // Null while none is visible.
  FormWindow *WindowInFront() const;

  Gate gate;
  PictureStore pictures;
  std::vector<FormWindow *> windows; // in the order in which their forms were loaded
  MousePointer mousePointer = MousePointer::Default;
  std::optional<int> exitStatus;
};

} // namespace Tessoro
