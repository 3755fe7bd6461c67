// The form for the two speeds of the knobs.
#pragma once

#include "surface/Controls.hpp"
#include "surface/Form.hpp"

namespace Tessoro {

// Each speed counts as soon as its bar is moved; there is no cancel.
class F_Preferences : public Form {
public:
  explicit F_Preferences(Application &app);

  // clang-format off
  Label TextPWM1                       {*this, "TextPWM1",                   { 240,  210, 4200, 255}, {.caption = "knob standard changes (fastchange)", .style = LabelStyle::Heading}};
  Label Text2                          {*this, "Text2",                      { 240,  555,  480, 255}, {.caption = "slow"}};
  HScrollBar HScrollknobStandardChange {*this, "HScrollknobStandardChange",  { 750,  540, 3000, 285}, {.min = 1, .max = 5, .says = "Knob standard changes"}};
  Label Text2StandardFast              {*this, "Text2StandardFast",          {3840,  555,  480, 255}, {.caption = "fast"}};
  Label Label1                         {*this, "Label1",                     { 240, 1110, 4200, 255}, {.caption = "knob slow changes (finetuning)", .style = LabelStyle::Heading}};
  Label Text2FineSlow                  {*this, "Text2FineSlow",              { 240, 1455,  480, 255}, {.caption = "slow"}};
  HScrollBar HScrollknobFineChange     {*this, "HScrollknobFineChange",      { 750, 1440, 3000, 285}, {.min = 1, .max = 5, .says = "Knob slow changes"}};
  Label Text2FineFast                  {*this, "Text2FineFast",              {3840, 1455,  480, 255}, {.caption = "fast"}};
  CommandButton Command1               {*this, "Command1",                   {3000, 2040, 1320, 420}, {.caption = "&Close"}};
  // clang-format on

protected:
  void Form_Load() override;
};

} // namespace Tessoro
