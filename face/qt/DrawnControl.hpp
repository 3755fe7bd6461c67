// A control that is no widget of its own: the ground of its form draws it.
#pragma once

#include "face/qt/Scale.hpp"
#include "surface/Decoration.hpp"

#include <QFont>
#include <QPalette>

#include <array>
#include <memory>
#include <vector>

class QPainter;

namespace Tessoro {

class Form;

// What a ground lends to all that it draws.
struct GroundLook {
  explicit GroundLook(const Scale &newScale = {});
  const QFont &FontOf(LabelStyle style) const { return fonts[static_cast<std::size_t>(style)]; }

  Scale scale;
  QPalette palette;

private:
  std::array<QFont, static_cast<std::size_t>(LabelStyle::Title) + 1> fonts; // by style
};

// A form has a hundred of them, and a widget costs more to make and to show than these to draw.
class DrawnControl {
public:
  explicit DrawnControl(Control &shown) : control(shown) {}
  virtual ~DrawnControl() = default;
  DrawnControl(const DrawnControl &) = delete;
  DrawnControl &operator=(const DrawnControl &) = delete;

  Control &Shown() const { return control; }
  // Takes over the place and the content of the control as they stand now.
  virtual void Follow(const Scale &scale) { place = scale.Rect(control.DesignPlace()); }
  // Where it draws, in pixels of the ground.
  const QRect &Area() const { return place; }
  virtual void Draw(QPainter &painter, const GroundLook &look) const = 0;

  // Whether it lies in the way of the pointer, as a widget would, and is told to screen readers.
  virtual bool StandsForItself() const { return false; }
  virtual void Click() {}

protected:
  void SetArea(const QRect &area) { place = area; }

private:
  Control &control;
  QRect place;
};

// All controls of the form that its ground draws; the later lies on top.
std::vector<std::unique_ptr<DrawnControl>> MakeDrawnControls(const Form &form);

} // namespace Tessoro
