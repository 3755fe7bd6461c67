#include "face/qt/FormWindow.hpp"

#include "face/qt/FormMenu.hpp"
#include "face/qt/Ground.hpp"
#include "face/qt/Keys.hpp"
#include "face/qt/Look.hpp"
#include "face/qt/Text.hpp"
#include "face/qt/Views.hpp"

#include <QCloseEvent>
#include <QKeyEvent>

namespace Tessoro {

FormWindow::FormWindow(Form &shown, const Surroundings &around)
    : QWidget(nullptr, Qt::Window), form(shown), surroundings(around),
      ground(new Ground(shown, around.gate, this)) {
  setObjectName(QString::fromStdString(form.Name()));
  if (FormMenu::IsNeededBy(form))
    menu = new FormMenu(form, surroundings.gate, this);
  MakeControls();
  SetZoom(1);
  ShowCaption();
  for (const auto &[control, view] : views) {
    view->ShowAll();
    view->Widget().installEventFilter(this);
  }
}

// In the order of their declaration: that is the order of Tab, and the later lies on top.
void FormWindow::MakeControls() {
  for (Control *control : form.Controls())
    if (ControlView *view = MakeView(*control, surroundings, ground))
      views[control] = view;
}

QWidget *FormWindow::WidgetOf(const Control &control) const {
  const auto found = views.find(&control);
  return found == views.end() ? nullptr : &found->second->Widget();
}

void FormWindow::ShowCaption() {
  // The toolkit takes a lone [*] for a place of its own mark.
  setWindowTitle(FromModel(form.Caption()).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

void FormWindow::Show(Control &control, Property property) {
  if (const auto found = views.find(&control); found != views.end())
    found->second->Show(property);
  else if (property == Property::Ends)
    ground->ShowEnds(static_cast<Line &>(control));
  else if (control.Type() == ControlType::Menu)
    menu->Show(static_cast<Menu &>(control));
  else if (property == Property::Visible)
    ground->update(); // a shape or a line
}

void FormWindow::KeepOnTop() {
  const bool wasVisible = isVisible();
  setWindowFlag(Qt::WindowStaysOnTopHint); // takes a visible window down
  setVisible(wasVisible);
}

void FormWindow::ComeToFront() {
  if (isVisible())
    raise();
  show();
  activateWindow();
}

void FormWindow::SetZoom(double zoom) {
  const Scale scale{.zoom = zoom};
  ground->SetScale(scale);
  int top = 0;
  if (menu != nullptr) {
    menu->setFont(Look::Font(TextSize::Menu, scale));
    for (QMenu *list : menu->findChildren<QMenu *>())
      list->setFont(menu->font());
    top = menu->sizeHint().height();
    menu->setGeometry(0, 0, ground->width(), top);
  }
  ground->move(0, top);
  for (const auto &[control, view] : views)
    view->SetScale(scale);
  setFixedSize(ground->width(), top + ground->height());
}

void FormWindow::LetGo() {
  for (const auto &[control, view] : views)
    view->LetGo();
}

void FormWindow::BoxHasGone() {
  for (const auto &[control, view] : views)
    view->BoxHasGone();
}

// A form that previews keys sees them before the control that they are meant for.
bool FormWindow::eventFilter(QObject *watched, QEvent *event) {
  switch (event->type()) {
  case QEvent::ShortcutOverride:
    // A box would keep editing keys for itself; an entry of the menu goes first.
    if (menu != nullptr && menu->Claims(*static_cast<QKeyEvent *>(event))) {
      event->ignore();
      return true;
    }
    break;
  case QEvent::KeyPress:
    if (form.Design().keyPreview)
      TakeKeyPress(*static_cast<QKeyEvent *>(event));
    break;
  case QEvent::KeyRelease:
    if (form.Design().keyPreview)
      TakeKeyRelease(*static_cast<QKeyEvent *>(event));
    break;
  default:
    break;
  }
  return QWidget::eventFilter(watched, event);
}

// Keys that the focused control has no use for come here too; only those that no control had the
// chance to take are the form's.
void FormWindow::keyPressEvent(QKeyEvent *event) {
  if (!AnyControlHasFocus())
    TakeKeyPress(*event);
}

void FormWindow::keyReleaseEvent(QKeyEvent *event) {
  if (!AnyControlHasFocus())
    TakeKeyRelease(*event);
}

bool FormWindow::AnyControlHasFocus() const {
  const QWidget *focused = focusWidget();
  return focused != nullptr && focused != this;
}

void FormWindow::TakeKeyPress(const QKeyEvent &event) {
  const int code = KeyCodeOf(event);
  const int shift = ShiftStateOf(event.modifiers());
  if (code != 0)
    surroundings.gate.Pass([&] { form.UserKeyDown(code, shift); });
  if (const int character = CharacterOf(event); character != 0)
    surroundings.gate.Pass([&] { form.UserKeyPress(character); });
}

// A key that is held goes down again and again, but comes up once.
void FormWindow::TakeKeyRelease(const QKeyEvent &event) {
  const int code = KeyCodeOf(event);
  const int shift = ShiftStateOf(event.modifiers());
  if (code != 0 && !event.isAutoRepeat())
    surroundings.gate.Pass([&] { form.UserKeyUp(code, shift); });
}

void FormWindow::closeEvent(QCloseEvent *event) {
  surroundings.gate.Pass([this] { form.UserClose(); });
  event->setAccepted(!form.IsLoaded());
}

} // namespace Tessoro
