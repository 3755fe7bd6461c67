// The ground of a form, with the shapes and lines on it.
#pragma once

#include "face/qt/Gate.hpp"
#include "face/qt/Scale.hpp"
#include "surface/Decoration.hpp"

#include <QWidget>

#include <vector>

namespace Tessoro {

class Form;

// Shapes and lines are no widgets of their own: they are drawn here, below all controls, and are
// clipped by the window alone.
class Ground : public QWidget {
public:
  Ground(Form &shown, const Gate &entrance, QWidget *parent);

  void SetScale(const Scale &newScale);
  void ShowEnds(const Line &line);

protected:
  void mousePressEvent(QMouseEvent *event) override;
  void mouseReleaseEvent(QMouseEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

private:
  struct DrawnLine {
    const Line *line;
    LineEnds ends; // where it was last told to be drawn
  };

  QRectF RectOf(const LineEnds &ends) const;
  void UpdateLine(const LineEnds &ends);
  void Draw(QPainter &painter, const Shape &shape) const;
  void Draw(QPainter &painter, const DrawnLine &drawn) const;

  Form &form;
  const Gate &gate;
  Scale scale;
  std::vector<const Shape *> shapes;
  std::vector<DrawnLine> lines;
};

} // namespace Tessoro
