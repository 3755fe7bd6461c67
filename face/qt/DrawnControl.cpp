#include "face/qt/DrawnControl.hpp"

#include "face/qt/DrawnLabel.hpp"
#include "face/qt/DrawnShapes.hpp"
#include "surface/Form.hpp"

namespace Tessoro {

namespace {

using Maker = std::unique_ptr<DrawnControl> (*)(Control &);

template <typename Drawn, typename Shown> std::unique_ptr<DrawnControl> Make(Control &control) {
  return std::make_unique<Drawn>(static_cast<Shown &>(control));
}

struct LayerRow {
  ControlType type;
  Maker make;
};

// From the lowest to the one on top.
constexpr std::array<LayerRow, 4> Layers{{
    {ControlType::Shape, Make<DrawnShape, Shape>},
    {ControlType::Line, Make<DrawnLine, Line>},
    {ControlType::Frame, Make<DrawnFrame, Frame>},
    {ControlType::Label, Make<DrawnLabel, Label>},
}};

} // namespace

GroundLook::GroundLook(const Scale &newScale) : scale(newScale) {
  const QFont text = FontOfLabel(LabelStyle::Plain, scale);
  fonts.fill(text);
  for (const LabelStyle style : {LabelStyle::Heading, LabelStyle::Title})
    fonts[static_cast<std::size_t>(style)] = FontOfLabel(style, scale);
}

std::vector<std::unique_ptr<DrawnControl>> MakeDrawnControls(const Form &form) {
  std::vector<std::unique_ptr<DrawnControl>> drawn;
  for (const LayerRow &layer : Layers)
    for (Control *control : form.Controls())
      if (control->Type() == layer.type)
        drawn.push_back(layer.make(*control));
  return drawn;
}

} // namespace Tessoro
