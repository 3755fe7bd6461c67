// The amplifier on the main form.
#pragma once

#include "surface/Controls.hpp"

namespace Tessoro {

class AmplifierSection {
public:
  explicit AmplifierSection(Form &owner);

private:
  Form &form;

public:
  // clang-format off
  Shape ShapeAmp{form, "ShapeAmp", {7800, 5985, 1575, 2535}, ShapeKind::Panel};
  Label LabelAmp{form, "LabelAmp", {7905, 6105, 1365, 240}, {.caption = "Amplifier", .style = LabelStyle::Heading}};
  Label LabelAmpVolume{form, "LabelAmpVolume", {7912, 6420, 630, 195}, {.caption = "vol", .align = LabelAlign::Center}};
  VScrollBar VScrollAmpVolume{form, "VScrollAmpVolume", {8077, 6630, 300, 1320}, {.min = 127, .max = 0, .largeChange = 5, .says = "Amplifier volume bar"}};
  TextBox TextAmpVolume{form, "TextAmpVolume", {7987, 8025, 480, 300}, {.toolTip = "Sets the amp main volume of the sound", .says = "Amplifier volume"}};
  Label LabelAmpVelocity{form, "LabelAmpVelocity", {8632, 6420, 630, 195}, {.caption = "velo", .align = LabelAlign::Center}};
  VScrollBar VScrollAmpVelocity{form, "VScrollAmpVelocity", {8797, 6630, 300, 1320}, {.min = 127, .max = 0, .largeChange = 5, .says = "Amplifier velocity bar"}};
  TextBox TextAmpVelocity{form, "TextAmpVelocity", {8707, 8025, 480, 300}, {.toolTip = "Velocity sense of the sound. The higher the value the more 'feeling'.", .says = "Amplifier velocity"}};
  // clang-format on
};

} // namespace Tessoro
