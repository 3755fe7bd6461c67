// The window of one form.
#pragma once

#include "face/qt/ControlView.hpp"
#include "surface/Form.hpp"

#include <QTimer>
#include <QWidget>

#include <unordered_map>
#include <vector>

class QKeyEvent;

namespace Tessoro {

class FormMenu;
class Ground;

// Made anew each time that the form is loaded. It never closes by itself: its close control is an
// act of the user, and the form says what comes of it. It can be zoomed as a whole, by Ctrl with
// plus, minus and 0 and by its corner, and keeps its proportion.
class FormWindow : public QWidget {
public:
  // As large as the window that it is opened from, or as fits the screen well where there is none.
  FormWindow(Form &shown, const Surroundings &around, const FormWindow *opener);

  const Form &Shown() const { return form; }
  // Null for a control that is no widget of its own.
  QWidget *WidgetOf(const Control &control) const;

  void ShowCaption();
  void Show(Control &control, Property property);
  void KeepOnTop();
  void ComeToFront();
  // All sizes are those of the design times the zoom.
  double Zoom() const { return zoom; }
  void SetZoom(double newZoom);
  // Places the first window, which is still to come.
  void OpenFirst();
  // Places a window that is still to come. Where only a smaller one has room beside the others, it
  // is made smaller, though not below a zoom of 1. The first window may be still to come as well.
  void OpenBesideOthers(const FormWindow &first);

  void LetGo();
  void BoxHasGone();

protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void keyReleaseEvent(QKeyEvent *event) override;
  void closeEvent(QCloseEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void enterEvent(QEnterEvent *event) override;

private:
  void MakeControls();
  void MakeMenu();
  void OrderTabs();
  void GiveMenuItsAccessKeys();
  void FocusFirst();
  void ZoomByKey(int direction);
  void LayOut(double newZoom);
  void EndNotes();
  QSize SizeAtZoom() const;
  bool FillsScreen() const;
  double ZoomThatFits() const;
  void AwaitEndOfDrag();
  void TakeProportion();
  void TakeKeyPress(const QKeyEvent &event);
  void TakeKeyRelease(const QKeyEvent &event);
  bool AnyControlHasFocus() const;

  Form &form;
  const Surroundings surroundings;
  FormMenu *menu = nullptr;
  Ground *ground;
  std::unordered_map<const Control *, ControlView *> views;

  double zoom = 1;
  double openingZoom = 1;
  QSize sizeAtOne;
  // The last size in proportion: a drag is measured from there.
  QSize settledSize;
  // The last size out of proportion, and how often the window system came back to it; one that
  // insists gets it.
  QSize refusedSize;
  int refusals = 0;
  bool mayHaveBeenIgnored = false;
  bool isAskingAnew = false;
  QTimer endOfDrag;
};

} // namespace Tessoro
