// The three envelope panels on the main form.
#pragma once

#include "surface/Controls.hpp"
#include "surface/Knobs.hpp"

#include <array>
#include <cstdint>

namespace Tessoro {

// The third panel shows envelope 3 or 4: the caption of C_Envelope34 says which.
class EnvelopeSection {
public:
  explicit EnvelopeSection(Form &owner);

  // Takes the lines' present places as the bases of all panels.
  void ReadLineBases();
  // Shows the other envelope in the third panel.
  void C_Envelope34_Click();

  // Where the lines stand by design, in twips: the origin of their drawing.
  float LineBaseEnv1T1X = 0;
  float LineBaseEnv1T2X = 0;
  float LineBaseEnv1L2Y = 0;
  std::int16_t LineBaseEnv1T3X = 0;
  float LineBaseEnv2T1X = 0;
  float LineBaseEnv2T2X = 0;
  float LineBaseEnv2L2Y = 0;
  std::int16_t LineBaseEnv2T3X = 0;
  float LineBaseEnv3AX = 0;
  float LineBaseEnv3DX = 0;
  float LineBaseEnv3SY = 0;
  std::int16_t LineBaseEnv3RX = 0;
  float LineBaseEnv4AX = 0;
  float LineBaseEnv4DX = 0;
  float LineBaseEnv4SY = 0;
  std::int16_t LineBaseEnv4RX = 0;

private:
  enum class Stage : std::uint8_t { Attack, Decay, Sustain, Release };
  struct Panel;
  struct LeftBoxRow;

  static constexpr Color Slope = Rgb(0, 0, 192);
  static constexpr Color Plateau = Rgb(128, 0, 128);
  static constexpr std::array<std::string_view, 7> PresetTexts{
      "01 fast perc", "02 slow perc", "03 standard", "04 synth",
      "05 slow env",  "06 fast pad",  "07 slow pad"};

  void AttachLeftBoxes();
  void AttachThirdPanel();
  void AttachPresets();
  static void LeftBox_Change(const LeftBoxRow &row);
  void ThirdBox_Change(TextBox &box, Stage stage);
  bool ShowsEnvelope3() const;
  static void MoveLines(const Panel &panel, Stage stage, double value);

  Form &form;

public:
  // clang-format off
  // Amp envelope.
  Shape ShapeEnv1{form, "ShapeEnv1", {60, 5985, 2535, 2535}, ShapeKind::Panel};
  Shape ShapeEnv1picture{form, "ShapeEnv1picture", {105, 6420, 2445, 615}, ShapeKind::Inset};
  Label LabelEnv1{form, "LabelEnv1", {150, 6105, 885, 240}, {.caption = "Amp env", .style = LabelStyle::Heading}};
  ComboBox ComboEnv1{form, "ComboEnv1", {1035, 6075, 1515, 300}, {.items = PresetTexts, .text = "-select preset-", .toolTip = "A preselction of standard envelopes", .says = "Amp envelope preset"}};
  Line LinieEnv1T1{form, "LinieEnv1T1", { 270, 6965,  745, 6495}, Slope};
  Line LinieEnv1T2{form, "LinieEnv1T2", { 735, 6495, 1335, 6735}, Slope};
  Line LinieEnv1L2{form, "LinieEnv1L2", {1335, 6735, 2055, 6735}, Plateau};
  Line LinieEnv1T3{form, "LinieEnv1T3", {2055, 6735, 2535, 6965}, Slope};
  Label LabelEnv1attack{form, "LabelEnv1attack", {127, 7155, 600, 195}, {.caption = "attack", .align = LabelAlign::Center}};
  Image knobEnvAmp1{form, "knobEnvAmp1", {127, 7350, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Amp envelope attack knob"}};
  TextBox TextEnv1T1{form, "TextEnv1T1", {187, 8025, 480, 300}, {.says = "Amp envelope attack"}};
  Label LabelEnv1decay{form, "LabelEnv1decay", {727, 7155, 600, 195}, {.caption = "decay", .align = LabelAlign::Center}};
  Image knobEnvAmp2{form, "knobEnvAmp2", {727, 7350, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Amp envelope decay knob"}};
  TextBox TextEnv1T2{form, "TextEnv1T2", {787, 8025, 480, 300}, {.says = "Amp envelope decay"}};
  Label LabelEnv1sustain{form, "LabelEnv1sustain", {1327, 7155, 600, 195}, {.caption = "sustain", .align = LabelAlign::Center}};
  Image knobEnvAmp3{form, "knobEnvAmp3", {1327, 7350, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Amp envelope sustain knob"}};
  TextBox TextEnv1L2{form, "TextEnv1L2", {1387, 8025, 480, 300}, {.says = "Amp envelope sustain"}};
  Label LabelEnv1release{form, "LabelEnv1release", {1927, 7155, 600, 195}, {.caption = "release", .align = LabelAlign::Center}};
  Image knobEnvAmp4{form, "knobEnvAmp4", {1927, 7350, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Amp envelope release knob"}};
  TextBox TextEnv1T3{form, "TextEnv1T3", {1987, 8025, 480, 300}, {.says = "Amp envelope release"}};

  // Filter envelope.
  Shape ShapeEnv2{form, "ShapeEnv2", {2640, 5985, 2535, 2535}, ShapeKind::Panel};
  Shape ShapeEnv2picture{form, "ShapeEnv2picture", {2685, 6420, 2445, 615}, ShapeKind::Inset};
  Label LabelEnv2{form, "LabelEnv2", {2730, 6105, 855, 240}, {.caption = "Filter env", .style = LabelStyle::Heading}};
  ComboBox ComboEnvFilter{form, "ComboEnvFilter", {3615, 6075, 1515, 300}, {.items = PresetTexts, .text = "-select preset-", .toolTip = "A preselction of standard envelopes", .says = "Filter envelope preset"}};
  Line LinieEnv2T1{form, "LinieEnv2T1", {2835, 6965, 3315, 6495}, Slope};
  Line LinieEnv2T2{form, "LinieEnv2T2", {3300, 6495, 3900, 6735}, Slope};
  Line LinieEnv2L2{form, "LinieEnv2L2", {3885, 6735, 4605, 6735}, Plateau};
  Line LinieEnv2T3{form, "LinieEnv2T3", {4605, 6735, 5085, 6965}, Slope};
  Label LabelEnv2attack{form, "LabelEnv2attack", {2707, 7155, 600, 195}, {.caption = "attack", .align = LabelAlign::Center}};
  Image knobEnvFilt1{form, "knobEnvFilt1", {2707, 7350, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter envelope attack knob"}};
  TextBox TextEnv2T1{form, "TextEnv2T1", {2767, 8025, 480, 300}, {.says = "Filter envelope attack"}};
  Label LabelEnv2decay{form, "LabelEnv2decay", {3307, 7155, 600, 195}, {.caption = "decay", .align = LabelAlign::Center}};
  Image knobEnvFilt2{form, "knobEnvFilt2", {3307, 7350, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter envelope decay knob"}};
  TextBox TextEnv2T2{form, "TextEnv2T2", {3367, 8025, 480, 300}, {.says = "Filter envelope decay"}};
  Label LabelEnv2sustain{form, "LabelEnv2sustain", {3907, 7155, 600, 195}, {.caption = "sustain", .align = LabelAlign::Center}};
  Image knobEnvFilt3{form, "knobEnvFilt3", {3907, 7350, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter envelope sustain knob"}};
  TextBox TextEnv2L2{form, "TextEnv2L2", {3967, 8025, 480, 300}, {.says = "Filter envelope sustain"}};
  Label LabelEnv2release{form, "LabelEnv2release", {4507, 7155, 600, 195}, {.caption = "release", .align = LabelAlign::Center}};
  Image knobEnvFilt4{form, "knobEnvFilt4", {4507, 7350, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter envelope release knob"}};
  TextBox TextEnv2T3{form, "TextEnv2T3", {4567, 8025, 480, 300}, {.says = "Filter envelope release"}};

  // Envelope 3 or 4.
  Shape ShapeEnv3{form, "ShapeEnv3", {5220, 5985, 2535, 2535}, ShapeKind::Panel};
  Shape ShapeEnv3picture{form, "ShapeEnv3picture", {5265, 6420, 2445, 615}, ShapeKind::Inset};
  Label LabelEnv3{form, "LabelEnv3", {5310, 6105, 390, 240}, {.caption = "Env", .style = LabelStyle::Heading}};
  CommandButton C_Envelope34{form, "C_Envelope34", {5700, 6075, 360, 300}, {.caption = "3", .says = "Envelope 3 or 4", .enabled = false}};
  Line LinieEnv3_A{form, "LinieEnv3_A", {5415, 6965, 5895, 6495}, Slope};
  Line LinieEnv3_D{form, "LinieEnv3_D", {5895, 6495, 6495, 6735}, Slope};
  Line LinieEnv3_S{form, "LinieEnv3_S", {6480, 6720, 7200, 6720}, Plateau};
  Line LinieEnv3_R{form, "LinieEnv3_R", {7200, 6735, 7680, 6965}, Slope};
  Label LabelEnv3attack{form, "LabelEnv3attack", {5287, 7155, 600, 195}, {.caption = "attack", .style = LabelStyle::Faded, .align = LabelAlign::Center}};
  Image knobEnv3_A{form, "knobEnv3_A", {5287, 7350, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Envelope 3 or 4 attack knob", .enabled = false}};
  TextBox TextEnv3_A{form, "TextEnv3_A", {5347, 8025, 480, 300}, {.says = "Envelope 3 or 4 attack", .enabled = false}};
  Label LabelEnv3decay{form, "LabelEnv3decay", {5887, 7155, 600, 195}, {.caption = "decay", .style = LabelStyle::Faded, .align = LabelAlign::Center}};
  Image knobEnv3_D{form, "knobEnv3_D", {5887, 7350, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Envelope 3 or 4 decay knob", .enabled = false}};
  TextBox TextEnv3_D{form, "TextEnv3_D", {5947, 8025, 480, 300}, {.says = "Envelope 3 or 4 decay", .enabled = false}};
  Label LabelEnv3sustain{form, "LabelEnv3sustain", {6487, 7155, 600, 195}, {.caption = "sustain", .style = LabelStyle::Faded, .align = LabelAlign::Center}};
  Image knobEnv3_S{form, "knobEnv3_S", {6487, 7350, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Envelope 3 or 4 sustain knob", .enabled = false}};
  TextBox TextEnv3_S{form, "TextEnv3_S", {6547, 8025, 480, 300}, {.says = "Envelope 3 or 4 sustain", .enabled = false}};
  Label LabelEnv3release{form, "LabelEnv3release", {7087, 7155, 600, 195}, {.caption = "release", .style = LabelStyle::Faded, .align = LabelAlign::Center}};
  Image knobEnv3_R{form, "knobEnv3_R", {7087, 7350, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Envelope 3 or 4 release knob", .enabled = false}};
  TextBox TextEnv3_R{form, "TextEnv3_R", {7147, 8025, 480, 300}, {.says = "Envelope 3 or 4 release", .enabled = false}};
  // clang-format on
};

} // namespace Tessoro
