// A list with an edit field.
#pragma once

#include "face/qt/ControlView.hpp"
#include "face/qt/EditField.hpp"
#include "surface/ComboBox.hpp"

#include <QPointer>

namespace Tessoro {

class ItemList;

// A field that brings up its list when it is asked to. The toolkit's own makes a list for each
// field beforehand and moves its selection by itself.
class ComboBoxView : public EditField, public ControlView {
public:
  ComboBoxView(ComboBox &shown, const Surroundings &around, QWidget *parent);

  QWidget &Widget() override { return *this; }
  void SetScale(const Tessoro::Scale &newScale) override;

  // Below the field. Does nothing while it is up.
  void OpenList();
  // Null while it isn't up.
  ItemList *OpenedList() const;

protected:
  void ShowContent() override;
  void Edited(const QString &edited) override;

  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
  void wheelEvent(QWheelEvent *event) override;

private:
  QRect ArrowArea() const;
  void Pick(int index);
  // To the next item, or the one before; ends where the list ends.
  void Step(int direction);

  ComboBox &combo;
  QPointer<ItemList> list;
  bool isBeingTyped = false;
  int wheelTurn = 0;
};

} // namespace Tessoro
