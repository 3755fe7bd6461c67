// The mixer on the main form: volume, mute and filter balance of the oscillators and the noise.
#pragma once

#include "surface/Controls.hpp"

namespace Tessoro {

// A volume bar has no box: its value is the volume, and it keeps it while the source is muted.
class MixerSection {
public:
  explicit MixerSection(Form &owner);

private:
  static constexpr std::string_view BalanceTip =
      "Filter balance (-64 routes OSC to F1, +64 routes OSC to F2) ";
  static constexpr std::string_view MuteTip = "This mutes/unmutes the OSC!";

  Form &form;

public:
  // clang-format off
  // Oscillator 1.
  VScrollBar VScrollOSC1vol{form, "VScrollOSC1vol", {195, 525, 270, 2640}, {.min = 127, .max = 0, .largeChange = 10, .says = "OSC 1 volume"}};
  CheckBox CheckOSC1mute{form, "CheckOSC1mute", {150, 3225, 360, 300}, {.caption = "M", .toolTip = MuteTip, .says = "OSC 1 mute", .backColor = Colors::LitGreen}};
  Label LabelOSC1fbalance{form, "LabelOSC1fbalance", {2130, 3270, 300, 195}, {.caption = "bal"}};
  TextBox TextOSC1fbalance{form, "TextOSC1fbalance", {2430, 3225, 450, 300}, {.toolTip = BalanceTip, .says = "OSC 1 filter balance"}};
  HScrollBar HScrollOSC1fbalance{form, "HScrollOSC1fbalance", {2910, 3225, 660, 300}, {.min = -64, .max = 63, .largeChange = 10, .says = "OSC 1 filter balance bar"}};

  // Oscillator 2.
  VScrollBar VScrollOSC2vol{form, "VScrollOSC2vol", {3825, 525, 270, 2640}, {.min = 127, .max = 0, .largeChange = 10, .says = "OSC 2 volume"}};
  CheckBox CheckOSC2mute{form, "CheckOSC2mute", {3780, 3225, 360, 300}, {.caption = "M", .toolTip = MuteTip, .says = "OSC 2 mute", .backColor = Colors::LitGreen}};
  Label LabelOSC2fbalance{form, "LabelOSC2fbalance", {5760, 3270, 300, 195}, {.caption = "bal"}};
  TextBox TextOSC2fbalance{form, "TextOSC2fbalance", {6060, 3225, 450, 300}, {.toolTip = BalanceTip, .says = "OSC 2 filter balance"}};
  HScrollBar HScrollOSC2fbalance{form, "HScrollOSC2fbalance", {6540, 3225, 660, 300}, {.min = -64, .max = 63, .largeChange = 10, .says = "OSC 2 filter balance bar"}};

  // Oscillator 3.
  VScrollBar VScrollOSC3vol{form, "VScrollOSC3vol", {7455, 525, 270, 2640}, {.min = 127, .max = 0, .largeChange = 10, .says = "OSC 3 volume"}};
  CheckBox CheckOSC3mute{form, "CheckOSC3mute", {7410, 3225, 360, 300}, {.caption = "M", .toolTip = MuteTip, .says = "OSC 3 mute", .backColor = Colors::LitGreen}};
  Label LabelOSC3fbalance{form, "LabelOSC3fbalance", {9390, 3270, 300, 195}, {.caption = "bal"}};
  TextBox TextOSC3fbalance{form, "TextOSC3fbalance", {9690, 3225, 450, 300}, {.toolTip = BalanceTip, .says = "OSC 3 filter balance"}};
  HScrollBar HScrollOSC3fbalance{form, "HScrollOSC3fbalance", {10170, 3225, 660, 300}, {.min = -64, .max = 63, .largeChange = 10, .says = "OSC 3 filter balance bar"}};

  // Noise.
  Shape ShapeNoise{form, "ShapeNoise", {10950, 60, 1155, 3510}, ShapeKind::Panel};
  Label LabelNoise{form, "LabelNoise", {11040, 135, 900, 240}, {.caption = "Noise", .style = LabelStyle::Heading}};
  VScrollBar VScrollNoiseVol{form, "VScrollNoiseVol", {11385, 525, 270, 1740}, {.min = 127, .max = 0, .largeChange = 10, .says = "Noise volume"}};
  CheckBox CheckNoisemute{form, "CheckNoisemute", {11340, 2340, 360, 300}, {.caption = "M", .toolTip = MuteTip, .says = "Noise mute", .backColor = Colors::LitGreen}};
  Label LabelNoisefbalance{form, "LabelNoisefbalance", {11010, 2685, 1035, 195}, {.caption = "balance", .align = LabelAlign::Center}};
  TextBox TextNoisefbalance{form, "TextNoisefbalance", {11280, 2880, 510, 300}, {.toolTip = BalanceTip, .says = "Noise filter balance"}};
  HScrollBar HScrollNoisefbalance{form, "HScrollNoisefbalance", {11010, 3225, 1035, 300}, {.min = -64, .max = 63, .largeChange = 10, .says = "Noise filter balance bar"}};
  // clang-format on
};

} // namespace Tessoro
