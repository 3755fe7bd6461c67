// What is shown and at most clicked: labels, lines, shapes and frames.
#pragma once

#include "surface/Control.hpp"

namespace Tessoro {

// A faded label belongs to a control that can't be used.
enum class LabelStyle : std::uint8_t { Plain, Faded, Heading, Readout, Title };
enum class LabelAlign : std::uint8_t { Left, Center, Right };

struct LabelDesign {
  std::string_view caption = {};
  LabelStyle style = LabelStyle::Plain;
  LabelAlign align = LabelAlign::Left;
  std::string_view toolTip = {};
};

class Label : public Control {
public:
  Label(Form &form, std::string_view name, Place place, const LabelDesign &design);

  ControlType Type() const override { return ControlType::Label; }
  PropertyEntries Properties() override;
  void ResetToDesign() override;

  const std::string &Caption() const { return caption; }
  // Raises Change for a caption that differs.
  void SetCaption(std::string_view text);
  // In twips.
  int Width() const { return width; }
  void SetWidth(int twips);
  LabelStyle Style() const { return design.style; }
  LabelAlign Align() const { return design.align; }
  Reach UserClick();

  std::function<void()> onChange;
  std::function<void()> onClick;

private:
  const LabelDesign design;
  std::string caption;
  int width;
};

// The two ends of a line, in twips of the form's client area.
struct LineEnds {
  float x1 = 0;
  float y1 = 0;
  float x2 = 0;
  float y2 = 0;

  bool operator==(const LineEnds &) const = default;
};

class Line : public Control {
public:
  Line(Form &form, std::string_view name, LineEnds designEnds, Color lineColor);

  ControlType Type() const override { return ControlType::Line; }
  PropertyEntries Properties() override;
  void ResetToDesign() override;

  const LineEnds &Ends() const { return ends; }
  Color LineColor() const { return color; }
  void SetX1(float twips);
  void SetY1(float twips);
  void SetX2(float twips);
  void SetY2(float twips);

private:
  void Move(float LineEnds::*end, float twips);

  const LineEnds design;
  const Color color;
  LineEnds ends;
};

enum class ShapeKind : std::uint8_t { Panel, Inset, Rule };

class Shape : public Control {
public:
  Shape(Form &form, std::string_view name, Place place, ShapeKind shapeKind)
      : Control(form, name, place, {}), kind(shapeKind) {}

  ControlType Type() const override { return ControlType::Shape; }
  ShapeKind Kind() const { return kind; }

private:
  const ShapeKind kind;
};

// A ground with a border that groups what lies on it and can be clicked.
class Frame : public Control {
public:
  Frame(Form &form, std::string_view name, Place place) : Control(form, name, place, {}) {}

  ControlType Type() const override { return ControlType::Frame; }
  Reach UserClick();

  std::function<void()> onClick;
};

} // namespace Tessoro
