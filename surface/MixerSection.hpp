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
  VScrollBar VScrollOSC1vol{form, "VScrollOSC1vol", {165, 420, 300, 2670}, {.min = 127, .max = 0, .largeChange = 10, .says = "OSC 1 volume"}};
  CheckBox CheckOSC1mute{form, "CheckOSC1mute", {165, 3180, 300, 300}, {.caption = "M", .toolTip = MuteTip, .says = "OSC 1 mute", .backColor = Colors::LitGreen}};
  Label LabelOSC1fbalance{form, "LabelOSC1fbalance", {2085, 3232, 300, 195}, {.caption = "bal"}};
  TextBox TextOSC1fbalance{form, "TextOSC1fbalance", {2385, 3180, 480, 300}, {.toolTip = BalanceTip, .says = "OSC 1 filter balance"}};
  HScrollBar HScrollOSC1fbalance{form, "HScrollOSC1fbalance", {2895, 3180, 630, 300}, {.min = -64, .max = 63, .largeChange = 10, .says = "OSC 1 filter balance bar"}};

  // Oscillator 2.
  VScrollBar VScrollOSC2vol{form, "VScrollOSC2vol", {3795, 420, 300, 2670}, {.min = 127, .max = 0, .largeChange = 10, .says = "OSC 2 volume"}};
  CheckBox CheckOSC2mute{form, "CheckOSC2mute", {3795, 3180, 300, 300}, {.caption = "M", .toolTip = MuteTip, .says = "OSC 2 mute", .backColor = Colors::LitGreen}};
  Label LabelOSC2fbalance{form, "LabelOSC2fbalance", {5715, 3232, 300, 195}, {.caption = "bal"}};
  TextBox TextOSC2fbalance{form, "TextOSC2fbalance", {6015, 3180, 480, 300}, {.toolTip = BalanceTip, .says = "OSC 2 filter balance"}};
  HScrollBar HScrollOSC2fbalance{form, "HScrollOSC2fbalance", {6525, 3180, 630, 300}, {.min = -64, .max = 63, .largeChange = 10, .says = "OSC 2 filter balance bar"}};

  // Oscillator 3.
  VScrollBar VScrollOSC3vol{form, "VScrollOSC3vol", {7425, 420, 300, 2670}, {.min = 127, .max = 0, .largeChange = 10, .says = "OSC 3 volume"}};
  CheckBox CheckOSC3mute{form, "CheckOSC3mute", {7425, 3180, 300, 300}, {.caption = "M", .toolTip = MuteTip, .says = "OSC 3 mute", .backColor = Colors::LitGreen}};
  Label LabelOSC3fbalance{form, "LabelOSC3fbalance", {9345, 3232, 300, 195}, {.caption = "bal"}};
  TextBox TextOSC3fbalance{form, "TextOSC3fbalance", {9645, 3180, 480, 300}, {.toolTip = BalanceTip, .says = "OSC 3 filter balance"}};
  HScrollBar HScrollOSC3fbalance{form, "HScrollOSC3fbalance", {10155, 3180, 630, 300}, {.min = -64, .max = 63, .largeChange = 10, .says = "OSC 3 filter balance bar"}};

  // Noise.
  Shape ShapeNoise{form, "ShapeNoise", {10950, 60, 1155, 3510}, ShapeKind::Panel};
  Label LabelNoise{form, "LabelNoise", {11055, 120, 900, 240}, {.caption = "Noise", .style = LabelStyle::Heading}};
  VScrollBar VScrollNoiseVol{form, "VScrollNoiseVol", {11055, 420, 300, 2670}, {.min = 127, .max = 0, .largeChange = 10, .says = "Noise volume"}};
  CheckBox CheckNoisemute{form, "CheckNoisemute", {11055, 3180, 300, 300}, {.caption = "M", .toolTip = MuteTip, .says = "Noise mute", .backColor = Colors::LitGreen}};
  Label LabelNoisefbalance{form, "LabelNoisefbalance", {11385, 2595, 690, 195}, {.caption = "bal", .align = LabelAlign::Center}};
  TextBox TextNoisefbalance{form, "TextNoisefbalance", {11490, 2790, 480, 300}, {.toolTip = BalanceTip, .says = "Noise filter balance"}};
  HScrollBar HScrollNoisefbalance{form, "HScrollNoisefbalance", {11430, 3180, 600, 300}, {.min = -64, .max = 63, .largeChange = 10, .says = "Noise filter balance bar"}};
  // clang-format on
};

} // namespace Tessoro
