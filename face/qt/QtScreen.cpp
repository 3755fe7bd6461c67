#include "face/qt/QtScreen.hpp"

#include "face/qt/FormWindow.hpp"
#include "face/qt/MessageBox.hpp"
#include "face/qt/Text.hpp"
#include "surface/Failure.hpp"
#include "surface/Form.hpp"

#include <QApplication>

#include <algorithm>
#include <utility>

namespace Tessoro {

namespace {

constexpr const char *FailureTitle = "Tessoro";

} // namespace

QtScreen::QtScreen() {
  connect(&gate, &Gate::Opened, this, &QtScreen::BoxHasGone, Qt::QueuedConnection);
}

QtScreen::~QtScreen() {
  for (FormWindow *window : windows)
    delete window;
}

FormWindow *QtScreen::WindowOf(const Form &form) const {
  const auto found = std::find_if(windows.begin(), windows.end(), [&](const FormWindow *window) {
    return &window->Shown() == &form;
  });
  return found == windows.end() ? nullptr : *found;
}

void QtScreen::FormLoading(Form &form) {
  const FormWindow *opener = WindowInFront();
  if (opener == nullptr && !windows.empty())
    opener = windows.front(); // which is still to come
  windows.push_back(new FormWindow(form, {.gate = gate, .pictures = pictures}, opener));
  if (opener == nullptr)
    windows.back()->OpenFirst();
}

// The others keep out of the way of the first, which may still be loading when they come up.
void QtScreen::FormShown(Form &form) {
  FormWindow *window = WindowOf(form);
  if (!window->isVisible() && window != windows.front())
    window->OpenBesideOthers(*windows.front());
  window->ComeToFront();
}

void QtScreen::FormUnloaded(Form &form) {
  FormWindow *window = WindowOf(form);
  std::erase(windows, window);
  Remove(window);
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

void QtScreen::KeepOnTop(Form &form) { WindowOf(form)->KeepOnTop(); }

FormWindow *QtScreen::WindowInFront() const {
  FormWindow *visible = nullptr;
  for (FormWindow *window : windows) {
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
  for (FormWindow *window : windows)
    window->LetGo();
  const MousePointer before = mousePointer;
  SetMousePointer(MousePointer::Default);
  FormWindow *parent = WindowInFront();
  const double zoom = parent == nullptr ? 1 : parent->Zoom();
  const MsgBoxButton answer =
      ShowMessageBox(parent, zoom, FromModel(text), flags, FromModel(title));
  SetMousePointer(before);
  gate.Open();
  return answer;
}

void QtScreen::BoxHasGone() {
  if (!gate.IsOpen())
    return;                                       // the handler has raised one more
  for (FormWindow *window : std::vector(windows)) // a handler may take one away
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
  for (FormWindow *window : std::exchange(windows, {}))
    Remove(window);
  exitStatus = end == ProgramEnd::Failure ? 1 : 0;
  QCoreApplication::exit(*exitStatus);
}

} // namespace Tessoro
