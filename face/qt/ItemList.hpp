// The list that a field brings up.
#pragma once

#include <QListWidget>

namespace Tessoro {

// Goes away when an item is picked, by a click or Enter, or when the user turns to something else,
// and deletes itself then. Add the items before it is opened.
class ItemList : public QListWidget {
  Q_OBJECT

public:
  explicit ItemList(QWidget &forField);

  // Below the field, or above where there is more room.
  void Open();

signals:
  void Picked(int index);

protected:
  void keyPressEvent(QKeyEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;

private:
  void PickCurrent();

  QWidget &field;
};

} // namespace Tessoro
