// The menu bar of a form.
#pragma once

#include "face/qt/Gate.hpp"
#include "surface/Menu.hpp"

#include <QMenuBar>

#include <unordered_map>

class QKeyEvent;

namespace Tessoro {

class Form;

class FormMenu : public QMenuBar {
public:
  FormMenu(Form &form, const Gate &entrance, QWidget *parent);

  static bool IsNeededBy(const Form &form);

  // The entry has become enabled or disabled, visible or hidden.
  void Show(const Menu &entry);
  // Whether the keys are the shortcut of an entry that can be reached now.
  bool Claims(const QKeyEvent &event) const;

private:
  void Make(Menu &entry, bool hasEntries);

  const Gate &gate;
  std::unordered_map<const Menu *, QAction *> actions;
};

} // namespace Tessoro
