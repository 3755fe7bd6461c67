// A label, and the frame that groups controls.
#pragma once

#include "face/qt/ControlView.hpp"
#include "surface/Decoration.hpp"

#include <QWidget>

namespace Tessoro {

// Far lighter than the toolkit's own label, of which there would be eighty at the start.
class LabelView : public QWidget, public ControlView {
public:
  LabelView(Label &shown, const Surroundings &around, QWidget *parent);

  QWidget &Widget() override { return *this; }
  void SetScale(const Tessoro::Scale &newScale) override;
  const QString &Text() const { return text; }

protected:
  Place CurrentPlace() const override;
  void ShowContent() override;

  void mousePressEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  void DrawLine(QPainter &painter, const QRect &area) const;

  Label &label;
  QString text;
};

class FrameView : public QWidget, public ControlView {
public:
  FrameView(Frame &shown, const Surroundings &around, QWidget *parent);

  QWidget &Widget() override { return *this; }

protected:
  void mousePressEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  Frame &frame;
};

} // namespace Tessoro
