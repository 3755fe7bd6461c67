// Shapes, lines and frames as the ground draws them.
#pragma once

#include "face/qt/DrawnControl.hpp"

namespace Tessoro {

class DrawnShape : public DrawnControl {
public:
  explicit DrawnShape(Shape &shown) : DrawnControl(shown), shape(shown) {}

  void Draw(QPainter &painter, const GroundLook &look) const override;

private:
  const Shape &shape;
};

class DrawnLine : public DrawnControl {
public:
  explicit DrawnLine(Line &shown) : DrawnControl(shown), line(shown) {}

  void Follow(const Scale &scale) override;
  void Draw(QPainter &painter, const GroundLook &look) const override;

private:
  const Line &line;
  LineEnds ends;
};

class DrawnFrame : public DrawnControl {
public:
  explicit DrawnFrame(Frame &shown) : DrawnControl(shown), frame(shown) {}

  void Draw(QPainter &painter, const GroundLook &look) const override;
  bool StandsForItself() const override { return true; }
  void Click() override { frame.UserClick(); }

private:
  Frame &frame;
};

} // namespace Tessoro
