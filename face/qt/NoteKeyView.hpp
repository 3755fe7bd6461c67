// One of the keys that play a note.
#pragma once

#include "face/qt/PointerViews.hpp"

#include <QTimer>

namespace Tessoro {

// Tab gives it the focus, a click doesn't. Space or Return then holds it for as long as the mouse
// would, and no longer than the keyboard is its own.
class NoteKeyView : public PointerView {
public:
  NoteKeyView(NoteKey &shown, const Surroundings &around, QWidget *parent);

  // A press and its release.
  void Strike();

  void EndNote() override;
  void BoxHasGone() override;

protected:
  void keyPressEvent(QKeyEvent *event) override;
  void keyReleaseEvent(QKeyEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  MouseEvent AtMiddle() const;
  bool IsRepeat(const QKeyEvent &event) const;
  void PressByKey(int holder);
  void ReleaseKeys();

  NoteKey &key;
  // The key of the keyboard that holds this one down; 0 where none does.
  int holdingKey = 0;
  // The last that came up, held or not, and when, in the window system's time.
  int releasedKey = 0;
  quint64 timeOfRelease = 0;
  QTimer awaitRepeat;
};

} // namespace Tessoro
