// The ground of a form, with the labels, frames, shapes and lines on it.
#pragma once

#include "face/qt/DrawnControl.hpp"
#include "face/qt/Gate.hpp"

#include <QWidget>

#include <memory>
#include <vector>

class QHelpEvent;

namespace Tessoro {

// Draws what is no widget of its own below all controls that are, and does for it what a widget
// would: takes its clicks and shows its tool tips.
class Ground : public QWidget {
public:
  Ground(Form &shown, const Gate &entrance, QWidget *parent);

  const Form &Shown() const { return form; }
  void SetScale(const Scale &newScale);
  // A property of a control has changed that may be drawn here.
  void Show(const Control &control, Property property);
  // Null for a control that isn't drawn here.
  DrawnControl *DrawnFor(const Control &control) const;
  // What is to be seen and stands for itself at that place; null where the bare ground is, or a
  // widget.
  DrawnControl *DrawnAt(QPoint place) const;

protected:
  bool event(QEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  bool ShowToolTip(const QHelpEvent &event);
  // What takes a click at that place; null for the ground itself.
  DrawnControl *ClickedAt(QPoint place) const;

  Form &form;
  const Gate &gate;
  GroundLook look;
  const std::vector<std::unique_ptr<DrawnControl>> drawn;
  DrawnControl *pressed = nullptr;
};

} // namespace Tessoro
