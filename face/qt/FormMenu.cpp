#include "face/qt/FormMenu.hpp"

#include "face/qt/Text.hpp"
#include "surface/Form.hpp"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>
#include <vector>

namespace Tessoro {

namespace {

std::vector<Menu *> EntriesOf(const Form &form) {
  std::vector<Menu *> entries;
  for (Control *control : form.Controls())
    if (auto *entry = dynamic_cast<Menu *>(control))
      entries.push_back(entry);
  return entries;
}

} // namespace

bool FormMenu::IsNeededBy(const Form &form) { return !EntriesOf(form).empty(); }

FormMenu::FormMenu(Form &form, const Gate &entrance, QWidget *parent)
    : QMenuBar(parent), gate(entrance) {
  setAccessibleName(tr("Menu"));
  setNativeMenuBar(false); // the form's client area lies below it
  connect(qApp, &QApplication::focusChanged, this, &FormMenu::FocusHasChanged);
  const std::vector<Menu *> entries = EntriesOf(form);
  for (Menu *entry : entries) {
    Make(*entry, std::any_of(entries.begin(), entries.end(),
                             [&](const Menu *other) { return other->Parent() == entry; }));
    Show(*entry);
  }
}

// The focus may leave it as it goes.
FormMenu::~FormMenu() { disconnect(qApp, nullptr, this, nullptr); }

void FormMenu::Make(Menu &entry, bool hasEntries) {
  const auto above = actions.find(entry.Parent());
  QMenu *list = above == actions.end() ? nullptr : above->second->menu();
  const QString caption = entry.IsSeparator() ? QString() : FromModel(entry.Caption());
  if (hasEntries) {
    QMenu *menu = list != nullptr ? list->addMenu(caption) : addMenu(caption);
    menu->setAccessibleName(WithoutAccessKey(caption));
    connect(menu, &QMenu::aboutToHide, this, &FormMenu::GiveFocusBack, Qt::QueuedConnection);
    actions[&entry] = menu->menuAction();
    return;
  }
  QAction *action = list != nullptr ? list->addAction(caption) : addAction(caption);
  actions[&entry] = action;
  action->setSeparator(entry.IsSeparator());
  action->setShortcut(QKeySequence(FromModel(entry.Shortcut()), QKeySequence::PortableText));
  action->setAutoRepeat(false); // a key that is held gives its order once
  connect(action, &QAction::triggered, this,
          [this, &entry] { gate.Pass([&] { entry.UserClick(); }); });
}

void FormMenu::Show(const Menu &entry) {
  QAction *action = actions.at(&entry);
  action->setEnabled(entry.Enabled());
  action->setVisible(entry.Visible());
}

void FormMenu::FocusHasChanged(QWidget *before, const QWidget *now) {
  if (now == this && before != nullptr && before->window() == window())
    focusedBefore = before;
}

// The toolkit does so itself, but not where an access key was pressed while the bar had the focus.
void FormMenu::GiveFocusBack() {
  if (hasFocus() && activeAction() == nullptr && focusedBefore != nullptr)
    focusedBefore->setFocus(Qt::MenuBarFocusReason);
}

void FormMenu::keyPressEvent(QKeyEvent *event) {
  QMenuBar::keyPressEvent(event);
  GiveFocusBack();
}

bool FormMenu::Claims(const QKeyEvent &event) const {
  const QKeySequence keys(event.keyCombination());
  return std::any_of(actions.begin(), actions.end(), [&](const auto &each) {
    return each.second->shortcut() == keys && each.first->ReachOfUser() == Reach::Done;
  });
}

} // namespace Tessoro
