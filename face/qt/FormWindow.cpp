#include "face/qt/FormWindow.hpp"

#include "face/qt/ButtonViews.hpp"
#include "face/qt/Desk.hpp"
#include "face/qt/FormMenu.hpp"
#include "face/qt/Ground.hpp"
#include "face/qt/Keys.hpp"
#include "face/qt/Look.hpp"
#include "face/qt/ReadingOrder.hpp"
#include "face/qt/Text.hpp"
#include "face/qt/Views.hpp"
#include "face/qt/ZoomKeys.hpp"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace Tessoro {

namespace {

constexpr int EndOfDragMilliseconds = 180;
constexpr int MostRefusals = 8;
// Each refusal doubles the wait for the next try, up to so many times.
constexpr int MostDoublings = 3;

} // namespace

FormWindow::FormWindow(Form &shown, const Surroundings &around, const FormWindow *opener)
    : QWidget(nullptr, Qt::Window), form(shown), surroundings(around),
      ground(new Ground(shown, around.gate, this)) {
  setObjectName(QString::fromStdString(form.Name()));
  MakeControls();
  OrderTabs();
  if (FormMenu::IsNeededBy(form))
    MakeMenu(); // last: its name makes the toolkit wait for the desktop's bus
  ListenToZoomKeys(*this, [this](int direction) { ZoomByKey(direction); });
  endOfDrag.setSingleShot(true);
  connect(&endOfDrag, &QTimer::timeout, this, &FormWindow::TakeProportion);
  LayOut(1);
  sizeAtOne = SizeAtZoom();
  setMinimumSize(sizeAtOne * Desk::SmallestZoom);
  const QSize room = Desk::RoomFor(*this);
  openingZoom = opener == nullptr ? Desk::OpeningZoom(sizeAtOne, room)
                                  : std::min(opener->Zoom(), Desk::LargestZoom(sizeAtOne, room));
  SetZoom(openingZoom);
  ShowCaption();
  for (const auto &[control, view] : views) {
    view->ShowAll();
    view->Widget().installEventFilter(this);
  }
  GiveMenuItsAccessKeys();
}

// In the order of their declaration: the later lies on top.
void FormWindow::MakeControls() {
  for (Control *control : form.Controls())
    if (ControlView *view = MakeView(*control, surroundings, ground))
      views[control] = view;
}

void FormWindow::MakeMenu() {
  menu = new FormMenu(form, surroundings.gate, this);
  for (const QMenu *list : menu->findChildren<QMenu *>())
    connect(list, &QMenu::aboutToShow, this, &FormWindow::EndNotes);
}

void FormWindow::OrderTabs() {
  QWidget *before = nullptr;
  for (const Control *control : ReadingOrder(form)) {
    QWidget *widget = WidgetOf(*control);
    if (widget == nullptr || (widget->focusPolicy() & Qt::TabFocus) == 0)
      continue;
    if (before != nullptr)
      setTabOrder(before, widget);
    before = widget;
  }
}

// Where a button asks for the access key of a list of the menu, the list opens. The toolkit would
// do now this and now that.
void FormWindow::GiveMenuItsAccessKeys() {
  if (menu == nullptr)
    return;
  QList<QKeySequence> keys;
  for (const QAction *list : menu->QWidget::actions())
    keys.append(QKeySequence::mnemonic(list->text()));
  for (const auto &[control, view] : views)
    if (auto *button = dynamic_cast<CommandButtonView *>(view);
        button != nullptr && keys.contains(button->shortcut()))
      button->GiveUpAccessKey();
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
  else if (control.Type() == ControlType::Menu)
    menu->Show(static_cast<Menu &>(control));
  else
    ground->Show(control, property);
}

void FormWindow::KeepOnTop() {
  const bool wasVisible = isVisible();
  setWindowFlag(Qt::WindowStaysOnTopHint); // takes a visible window down
  setVisible(wasVisible);
}

void FormWindow::ComeToFront() {
  if (isVisible())
    raise();
  else
    FocusFirst();
  show();
  activateWindow();
}

// What it holds is selected, so that what is typed takes its place.
void FormWindow::FocusFirst() {
  const Control *first = form.FindControl(form.Design().firstFocus);
  if (first == nullptr)
    return;
  QWidget *widget = WidgetOf(*first);
  widget->setFocus(Qt::TabFocusReason);
  if (auto *field = qobject_cast<QLineEdit *>(widget))
    field->selectAll();
}

void FormWindow::ZoomByKey(int direction) {
  if (FillsScreen())
    return;
  const double newZoom = direction == 0 ? openingZoom : Desk::NextZoom(zoom, direction);
  SetZoom(std::min(newZoom, Desk::LargestZoom(sizeAtOne, Desk::RoomFor(*this))));
  Desk::PullOntoScreen(*this);
}

// In the middle of a screen it would leave room at all sides, and enough for another at none.
void FormWindow::OpenFirst() { move(screen()->availableGeometry().topLeft()); }

// Letters that are larger than usual aren't worth covering another form.
void FormWindow::OpenBesideOthers(const FormWindow &first) {
  const double wished = zoom;
  const auto stand = [&] { return Desk::StandBesideOthers(*this, size(), &first); };
  bool coversNothing = stand();
  while (!coversNothing && Desk::NextZoom(zoom, -1) >= 1) {
    SetZoom(Desk::NextZoom(zoom, -1));
    coversNothing = stand();
  }
  if (coversNothing) {
    openingZoom = zoom;
  } else {
    SetZoom(wished);
    stand();
  }
}

bool FormWindow::FillsScreen() const { return isMaximized() || isFullScreen(); }

void FormWindow::SetZoom(double newZoom) {
  if (newZoom != zoom) {
    LayOut(newZoom);
    QToolTip::setFont(ground->font());
  }
  settledSize = SizeAtZoom();
  resize(settledSize);
}

QSize FormWindow::SizeAtZoom() const { return {ground->width(), ground->y() + ground->height()}; }

void FormWindow::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  if (isAskingAnew)
    return;
  if (size() != settledSize || SizeAtZoom() != settledSize) {
    LayOut(ZoomThatFits());
    if (!FillsScreen())
      AwaitEndOfDrag();
  }
  if (menu != nullptr)
    menu->resize(width(), menu->height());
  ground->move(std::max(0, (width() - ground->width()) / 2), ground->y());
}

// One edge alone says how large the window is to be; a corner gives the room that is to be filled.
double FormWindow::ZoomThatFits() const {
  const double byWidth = static_cast<double>(width()) / sizeAtOne.width();
  const double byHeight = static_cast<double>(height()) / sizeAtOne.height();
  if (!FillsScreen() && height() == settledSize.height())
    return byWidth;
  if (!FillsScreen() && width() == settledSize.width())
    return byHeight;
  return std::min(byWidth, byHeight);
}

void FormWindow::AwaitEndOfDrag() {
  if (size() != refusedSize)
    refusals = 0;
  if (refusals <= MostRefusals)
    endOfDrag.start(EndOfDragMilliseconds << std::min(refusals, MostDoublings));
}

// A window manager puts its own size back while the corner is held, also where it is held still.
void FormWindow::TakeProportion() {
  if (FillsScreen() || size() == SizeAtZoom())
    return;
  refusedSize = size();
  ++refusals;
  SetZoom(zoom);
  mayHaveBeenIgnored = true;
}

// Other window managers don't even answer while the corner is held, and the toolkit takes the size
// as given. When the pointer comes back, nobody holds the corner any more. What the toolkit takes
// as given it doesn't ask for again, so another size goes before.
void FormWindow::enterEvent(QEnterEvent *event) {
  QWidget::enterEvent(event);
  if (!std::exchange(mayHaveBeenIgnored, false) || FillsScreen())
    return;
  isAskingAnew = true;
  resize(settledSize + QSize(0, 1));
  resize(settledSize);
  isAskingAnew = false;
}

void FormWindow::LayOut(double newZoom) {
  zoom = std::max(newZoom, Desk::SmallestZoom);
  const Scale scale{.zoom = zoom};
  ground->SetScale(scale);
  int top = 0;
  if (menu != nullptr) {
    menu->setFont(Look::Font(TextSize::Menu, scale));
    for (QMenu *list : menu->findChildren<QMenu *>())
      list->setFont(menu->font());
    top = menu->sizeHint().height();
    menu->setGeometry(0, 0, std::max(width(), ground->width()), top);
  }
  ground->move(ground->x(), top);
  for (const auto &[control, view] : views)
    view->SetScale(scale);
}

void FormWindow::LetGo() {
  for (const auto &[control, view] : views)
    view->LetGo();
}

// An entry of the menu may shut the ports, and a list that keys open takes what the mouse lets go
// of. A knob is dragged on.
void FormWindow::EndNotes() {
  for (const auto &[control, view] : views)
    view->EndNote();
}

void FormWindow::BoxHasGone() {
  for (const auto &[control, view] : views)
    view->BoxHasGone();
}

// A form that previews keys sees them before the control that they are meant for.
bool FormWindow::eventFilter(QObject *watched, QEvent *event) {
  switch (event->type()) {
  case QEvent::ShortcutOverride:
    // A box would keep editing keys for itself; an entry of the menu goes first. An opened list is
    // a window of its own, which no shortcut of this one reaches.
    if (menu != nullptr && static_cast<QWidget *>(watched)->window() == this &&
        menu->Claims(*static_cast<QKeyEvent *>(event))) {
      EndNotes();
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
  EndNotes();
  for (const auto &[control, view] : views)
    view->ReleaseButtons();
  surroundings.gate.Pass([this] { form.UserClose(); });
  event->setAccepted(!form.IsLoaded());
}

} // namespace Tessoro
