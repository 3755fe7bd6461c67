// The menu bar of a form.
#pragma once

#include "face/qt/Gate.hpp"
#include "surface/Menu.hpp"

#include <QMenuBar>
#include <QPointer>

#include <unordered_map>

class QKeyEvent;

namespace Tessoro {

class Form;

class FormMenu : public QMenuBar {
public:
  FormMenu(Form &form, const Gate &entrance, QWidget *parent);
  ~FormMenu() override;

  static bool IsNeededBy(const Form &form);

  // The entry has become enabled or disabled, visible or hidden.
  void Show(const Menu &entry);
  // Whether the keys are the shortcut of an entry that can be reached now.
  bool Claims(const QKeyEvent &event) const;

protected:
  void keyPressEvent(QKeyEvent *event) override;

private:
  void Make(Menu &entry, bool hasEntries);
  void FocusHasChanged(QWidget *before, const QWidget *now);
  // Where nobody works in the menu any more, the focus goes back to where it came from.
  void GiveFocusBack();

  const Gate &gate;
  QPointer<QWidget> focusedBefore;
  std::unordered_map<const Menu *, QAction *> actions;
};

} // namespace Tessoro
