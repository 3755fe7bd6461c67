// What the program is.
#pragma once

#include "surface/Controls.hpp"
#include "surface/Form.hpp"

namespace Tessoro {

// Any click and any key closes it.
class F_About : public Form {
public:
  explicit F_About(Application &app);

  // clang-format off
  Frame Frame1            {*this, "Frame1",           { 150,  150, 6300, 3300}};
  Image imgLogo           {*this, "imgLogo",          { 375,  450, 1800, 1800}, {.picture = "logo", .says = "Tessoro"}};
  Label lblProductName    {*this, "lblProductName",   {2400,  420, 3900,  600}, {.style = LabelStyle::Title}};
  Label lblVersion        {*this, "lblVersion",       {2400, 1065, 3900,  285}, {.style = LabelStyle::Heading}};
  Label Label1            {*this, "Label1",           {2400, 1380, 3900,  285}, {.caption = "freeware"}};
  Label LabelPurpose      {*this, "LabelPurpose",     {2400, 1800, 3900,  285}, {.caption = "A sound editor for the Waldorf microQ,"}};
  Label LabelRoad         {*this, "LabelRoad",        {2400, 2085, 3900,  285}, {.caption = "which it talks to over MIDI."}};
  Label LabelLicence      {*this, "LabelLicence",     { 375, 2550, 5925,  285}, {.caption = "Free software under the MIT licence: use it, change it, pass it on."}};
  Label LabelTrademark    {*this, "LabelTrademark",   { 375, 2835, 5925,  285}, {.caption = "Waldorf and microQ are names of their owner, who has no part in this."}};
  // clang-format on

protected:
  void Form_Load() override;
  void Form_KeyDown(int keyCode, int shift) override;
  void Form_KeyPress(int keyAscii) override;
};

} // namespace Tessoro
