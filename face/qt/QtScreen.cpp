#include "face/qt/QtScreen.hpp"

#include "face/qt/FormWindow.hpp"
#include "face/qt/MessageBox.hpp"
#include "face/qt/Text.hpp"
#include "surface/Failure.hpp"
#include "surface/Form.hpp"

#include <QApplication>

namespace Tessoro {

namespace {

constexpr const char *FailureTitle = "Tessoro";

} // namespace

QtScreen::QtScreen() {
  connect(&gate, &Gate::Opened, this, &QtScreen::BoxHasGone, Qt::QueuedConnection);
}

QtScreen::~QtScreen() {
  for (FormWindow *window : Windows())
    delete window;
}

FormWindow *QtScreen::WindowOf(const Form &form) const {
  const auto found = windows.find(&form);
  return found == windows.end() ? nullptr : found->second;
}

std::vector<FormWindow *> QtScreen::Windows() const {
  std::vector<FormWindow *> all;
  for (const auto &[form, window] : windows)
    all.push_back(window);
  return all;
}

void QtScreen::FormLoading(Form &form) {
  windows[&form] = new FormWindow(form, {.gate = gate, .pictures = pictures});
}

void QtScreen::FormShown(Form &form) { windows.at(&form)->ComeToFront(); }

void QtScreen::FormUnloaded(Form &form) {
  Remove(windows.at(&form));
  windows.erase(&form);
}

// The form may have gone in a handler of its own, with its widgets still at work.
void QtScreen::Remove(FormWindow *window) {
  window->hide();
  window->deleteLater();
}

void QtScreen::CaptionChanged(Form &form) {
  if (FormWindow *window = WindowOf(form))
    window->ShowCaption();
}

void QtScreen::PropertyChanged(Control &control, Property property) {
  if (FormWindow *window = WindowOf(control.Owner()))
    window->Show(control, property);
}

void QtScreen::KeepOnTop(Form &form) { windows.at(&form)->KeepOnTop(); }

FormWindow *QtScreen::WindowInFront() const {
  FormWindow *visible = nullptr;
  for (FormWindow *window : Windows()) {
    if (window->isActiveWindow())
      return window;
    if (window->isVisible())
      visible = window;
  }
  return visible;
}

MsgBoxButton QtScreen::MsgBox(const std::string &text, int flags, const std::string &title) {
  while (QWidget *popup = QApplication::activePopupWidget())
    popup->close();
  gate.Close();
  for (FormWindow *window : Windows())
    window->LetGo();
  const MousePointer before = mousePointer;
  SetMousePointer(MousePointer::Default);
  const MsgBoxButton answer =
      ShowMessageBox(WindowInFront(), FromModel(text), flags, FromModel(title));
  SetMousePointer(before);
  gate.Open();
  return answer;
}

void QtScreen::BoxHasGone() {
  if (!gate.IsOpen())
    return; // the handler has raised one more
  for (FormWindow *window : Windows())
    window->BoxHasGone();
}

void QtScreen::SetMousePointer(MousePointer pointer) {
  if (pointer == mousePointer)
    return;
  mousePointer = pointer;
  if (pointer == MousePointer::Hourglass)
    QApplication::setOverrideCursor(Qt::WaitCursor);
  else
    QApplication::restoreOverrideCursor();
}

void QtScreen::ProgramEnded(ProgramEnd end, const Failure *failure) {
  SetMousePointer(MousePointer::Default);
  if (failure != nullptr)
    MsgBox("Run-time error '" + std::to_string(failure->Number()) + "':\n\n" + failure->Text(),
           MsgBoxFlags::Critical, FailureTitle);
  for (FormWindow *window : Windows())
    Remove(window);
  windows.clear();
  exitStatus = end == ProgramEnd::Failure ? 1 : 0;
  QCoreApplication::exit(*exitStatus);
}

} // namespace Tessoro
