// A list with an edit field.
#pragma once

#include "face/qt/ControlView.hpp"
#include "surface/ComboBox.hpp"

#include <QComboBox>

namespace Tessoro {

class ComboBoxView : public QComboBox, public ControlView {
public:
  ComboBoxView(ComboBox &shown, const Surroundings &around, QWidget *parent);

  QWidget &Widget() override { return *this; }
  void Show(Property property) override;
  void SetScale(const Tessoro::Scale &newScale) override;
  void showPopup() override;

protected:
  void ShowContent() override;

  void wheelEvent(QWheelEvent *event) override;

private:
  void ShowItems();
  void Edited(const QString &edited);
  void Picked(int index);

  ComboBox &combo;
};

} // namespace Tessoro
