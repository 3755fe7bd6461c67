// The form for what belongs to the sound as a whole: glide, poly or mono, unisono, ring modulator.
#pragma once

#include "sound/ValueLists.hpp"
#include "surface/Controls.hpp"
#include "surface/Form.hpp"
#include "surface/Knobs.hpp"

namespace Tessoro {

// Holds no state: it fills its controls from the shadows as it loads, which sends every value that
// differs from the design, and each handler sends and writes its shadow.
class F_General : public Form {
public:
  explicit F_General(Application &app);

  // clang-format off
  // Glide.
  Shape ShapeGlide{*this, "ShapeGlide", {90, 90, 2550, 2310}, ShapeKind::Panel};
  CheckBox CheckGlideOn{*this, "CheckGlideOn", {195, 195, 1050, 300}, {.caption = "Glide", .toolTip = "Enable / disable glide-mode. (Typically used when 'Monophony' is selected)", .backColor = Colors::DimGreen, .foreColor = Colors::Grey}};
  ComboBox ComboGlideMode{*this, "ComboGlideMode", {195, 600, 2325, 315}, {.items = ValueLists::GlideModeTexts, .toolTip = "Glidemode types (standard = portamento)", .says = "Glide mode"}};
  Label LabelGliderate{*this, "LabelGliderate", {315, 1050, 2100, 195}, {.caption = "Gliderate", .align = LabelAlign::Center}};
  Image knobGliderate{*this, "knobGliderate", {1065, 1260, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Glide rate knob"}};
  TextBox TextGlideRate{*this, "TextGlideRate", {1125, 1935, 480, 300}, {.says = "Glide rate"}};

  // Voices.
  Shape ShapeVoices{*this, "ShapeVoices", {2700, 90, 2550, 2310}, ShapeKind::Panel};
  CheckBox CheckPolyOn{*this, "CheckPolyOn", {2805, 195, 1050, 300}, {.caption = "Poly", .toolTip = "Selects polyphony or - typical for vintage analog synths - monophony. (Mono is often used with the 'Glide' feature)", .backColor = PolyColor, .foreColor = Colors::Grey}};
  ComboBox ComboUnisonoMode{*this, "ComboUnisonoMode", {2805, 600, 2325, 315}, {.items = ValueLists::UnisonoModeTexts, .toolTip = "Doubles, triples ... voices. Be aware that this uses the double, triple ... amount of synth voices!", .says = "Unisono mode"}};
  Label LabelUnisono{*this, "LabelUnisono", {2925, 1050, 2100, 195}, {.caption = "Unisono", .align = LabelAlign::Center}};
  Image knobUnisonoDetune{*this, "knobUnisonoDetune", {3675, 1260, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Unisono detune knob"}};
  TextBox TextUnisonoDetune{*this, "TextUnisonoDetune", {3735, 1935, 480, 300}, {.toolTip = "Unisono detune. This detunes multiple voices used by Unisono. (Typical is an amount of 2 - 10)", .says = "Unisono detune"}};

  // Ring modulator.
  Shape ShapeRingmod{*this, "ShapeRingmod", {5310, 90, 2550, 2310}, ShapeKind::Panel};
  Label LabelRingmod{*this, "LabelRingmod", {5415, 225, 1500, 240}, {.caption = "Ringmod", .style = LabelStyle::Heading}};
  Label LabelRingmodLevel{*this, "LabelRingmodLevel", {5535, 1050, 2100, 195}, {.caption = "Level", .align = LabelAlign::Center}};
  Image knobRingmodLevel{*this, "knobRingmodLevel", {6285, 1260, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Ring modulator level knob"}};
  TextBox TextRingmodLevel{*this, "TextRingmodLevel", {6345, 1935, 480, 300}, {.says = "Ring modulator level"}};
  Label LabelRingmodBal{*this, "LabelRingmodBal", {5415, 660, 690, 195}, {.caption = "Balance"}};
  TextBox TextRingmodBal{*this, "TextRingmodBal", {6120, 607, 480, 300}, {.toolTip = BalanceTip, .says = "Ring modulator balance"}};
  HScrollBar HScrollRingmodBal{*this, "HScrollRingmodBal", {6645, 607, 1095, 300}, {.min = -64, .max = 63, .largeChange = 10, .toolTip = BalanceTip, .says = "Ring modulator balance bar"}};

  CommandButton Command1{*this, "Command1", {6540, 2520, 1320, 420}, {.caption = "&Close"}};
  // clang-format on

protected:
  void Form_Load() override;

private:
  static constexpr std::string_view BalanceTip =
      "Filter balance (-64 routes OSC to F1, +64 routes OSC to F2) ";
  static constexpr Color PolyColor = 16448;
  static constexpr Color MonoColor = 8454143;

  void AttachFamilies();
  void CheckPolyOn_Click();
  void ComboUnisonoMode_Click();
  void TextGlideRate_Change();
};

} // namespace Tessoro
