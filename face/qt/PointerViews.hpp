// What takes the mouse without taking the focus: pictures and note keys.
#pragma once

#include "face/qt/ControlView.hpp"
#include "surface/Image.hpp"

#include <QWidget>

namespace Tessoro {

// Tells each press and its release, also a release that the window system swallows: one behind a
// message box, or of a widget that is hidden, disabled or closed while it is held.
class PointerView : public QWidget, public ControlView {
public:
  PointerView(MouseControl &shown, const Surroundings &around, QWidget *parent);

  QWidget &Widget() override { return *this; }
  void ReleaseButtons() override { ReleaseAllBut(Qt::NoButton); }
  void BoxHasGone() override;

protected:
  bool IsHeld() const { return held != Qt::NoButton; }
  // Behind the release of a press; the pointer is inside.
  virtual void Clicked() {}
  // The second press of a double click. True if that was a double click and not one more press.
  virtual bool DoubleClicked() { return false; }

  void mousePressEvent(QMouseEvent *event) override;
  void mouseDoubleClickEvent(QMouseEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void hideEvent(QHideEvent *event) override;
  void changeEvent(QEvent *event) override;

private:
  MouseEvent AtPointer(Qt::MouseButtons buttons) const;
  void Follow(const QMouseEvent &event);
  void Press(const QMouseEvent &event);
  void Release(Qt::MouseButton button);
  void ReleaseAllBut(Qt::MouseButtons buttons);

  MouseControl &control;
  Qt::MouseButtons held = Qt::NoButton;
  QPointF pointer;
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
  bool wasPressedOnce = false;
};

class ImageView : public PointerView {
public:
  ImageView(Image &shown, const Surroundings &around, QWidget *parent);

  const Image &Shown() const { return image; }
  void Clicked() override;

protected:
  bool DoubleClicked() override;
  void paintEvent(QPaintEvent *event) override;

private:
  Image &image;
};

class NoteKeyView : public PointerView {
public:
  NoteKeyView(NoteKey &shown, const Surroundings &around, QWidget *parent);

  // A press and its release.
  void Strike();

protected:
  void paintEvent(QPaintEvent *event) override;

private:
  NoteKey &key;
};

} // namespace Tessoro
