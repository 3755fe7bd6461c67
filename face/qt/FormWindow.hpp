// The window of one form.
#pragma once

#include "face/qt/ControlView.hpp"
#include "surface/Form.hpp"

#include <QWidget>

#include <unordered_map>
#include <vector>

class QKeyEvent;

namespace Tessoro {

class FormMenu;
class Ground;

// Made anew each time that the form is loaded. It never closes by itself: its close control is an
// act of the user, and the form says what comes of it.
class FormWindow : public QWidget {
public:
  FormWindow(Form &shown, const Surroundings &around);

  const Form &Shown() const { return form; }
  // Null for a control that is no widget of its own.
  QWidget *WidgetOf(const Control &control) const;

  void ShowCaption();
  void Show(Control &control, Property property);
  void KeepOnTop();
  void ComeToFront();
  // All sizes are those of the design times the zoom.
  void SetZoom(double zoom);

  void LetGo();
  void BoxHasGone();

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void keyReleaseEvent(QKeyEvent *event) override;
  void closeEvent(QCloseEvent *event) override;

private:
  void MakeControls();
  void TakeKeyPress(const QKeyEvent &event);
  void TakeKeyRelease(const QKeyEvent &event);
  bool AnyControlHasFocus() const;

  Form &form;
  const Surroundings surroundings;
  FormMenu *menu = nullptr;
  Ground *ground;
  std::unordered_map<const Control *, ControlView *> views;
};

} // namespace Tessoro
