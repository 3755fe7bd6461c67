// What is pressed: the command button and the check box.
#pragma once

#include "face/qt/ControlView.hpp"
#include "surface/Button.hpp"

#include <QCheckBox>
#include <QPushButton>

namespace Tessoro {

class CommandButtonView : public QPushButton, public ControlView {
public:
  CommandButtonView(CommandButton &shown, const Surroundings &around, QWidget *parent);

  QWidget &Widget() override { return *this; }
  void LetGo() override { setDown(false); }
  // Another has it: none is shown, and none works.
  void GiveUpAccessKey();

protected:
  void ShowContent() override;

  void keyPressEvent(QKeyEvent *event) override;

private:
  CommandButton &button;
  bool hasAccessKey = true;
};

// A tile in the check box's two colours, with a mark that is there or not.
class CheckBoxView : public QCheckBox, public ControlView {
public:
  CheckBoxView(CheckBox &shown, const Surroundings &around, QWidget *parent);

  QWidget &Widget() override { return *this; }
  void LetGo() override { setDown(false); }

protected:
  void ShowContent() override;

  bool hitButton(const QPoint &position) const override { return rect().contains(position); }
  void nextCheckState() override;
  void paintEvent(QPaintEvent *event) override;

private:
  void DrawMark(QPainter &painter, const QRectF &square) const;

  CheckBox &box;
};

} // namespace Tessoro
