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
  Shape ShapeAmp{form, "ShapeAmp", {8040, 6000, 1350, 2520}, ShapeKind::Panel};
  Label LabelAmp{form,
                 "LabelAmp",
                 {8130, 6075, 1170, 240},
                 {.caption = "Amplifier", .style = LabelStyle::Heading}};
  Label LabelAmpVolume{form,
                       "LabelAmpVolume",
                       {8085, 6360, 630, 195},
                       {.caption = "vol", .align = LabelAlign::Center}};
  VScrollBar VScrollAmpVolume{
      form,
      "VScrollAmpVolume",
      {8265, 6570, 270, 1500},
      {.min = 127, .max = 0, .largeChange = 5, .says = "Amplifier volume bar"}};
  TextBox TextAmpVolume{
      form,
      "TextAmpVolume",
      {8160, 8130, 480, 300},
      {.toolTip = "Sets the amp main volume of the sound", .says = "Amplifier volume"}};
  Label LabelAmpVelocity{form,
                         "LabelAmpVelocity",
                         {8715, 6360, 630, 195},
                         {.caption = "velo", .align = LabelAlign::Center}};
  VScrollBar VScrollAmpVelocity{
      form,
      "VScrollAmpVelocity",
      {8895, 6570, 270, 1500},
      {.min = 127, .max = 0, .largeChange = 5, .says = "Amplifier velocity bar"}};
  TextBox TextAmpVelocity{
      form,
      "TextAmpVelocity",
      {8790, 8130, 480, 300},
      {.toolTip = "Velocity sense of the sound. The higher the value the more 'feeling'.",
       .says = "Amplifier velocity"}};
};

} // namespace Tessoro
