// The two filters on the main form, and the routing between them.
#pragma once

#include "sound/ValueLists.hpp"
#include "surface/Controls.hpp"
#include "surface/Knobs.hpp"

namespace Tessoro {

// Filter 1 calls the box of its envelope velocity TextF1_envvol, filter 2 TextF2_envvel.
class FilterSection {
public:
  explicit FilterSection(Form &owner);

private:
  void AttachRouting();
  void TextFilterParSer_Change();
  void AttachResets();

  Form &form;

public:
  // clang-format off
  // Filter 1.
  Shape ShapeFilter1{form, "ShapeFilter1", {60, 3630, 5190, 2310}, ShapeKind::Panel};
  Label LabelFilter1{form, "LabelFilter1", {150, 3705, 900, 240}, {.caption = "Filter 1", .style = LabelStyle::Heading}};
  ComboBox ComboFilter1{form, "ComboFilter1", {1065, 3690, 2100, 315}, {.items = ValueLists::FilterTypeTexts, .toolTip = "Select a filter type (Lowpass is a typical filter type)", .says = "Filter 1 type"}};
  CommandButton ResetFilter1{form, "ResetFilter1", {3540, 3690, 1635, 315}, {.caption = "Reset to standard", .says = "Reset filter 1 to standard"}};
  Label LabelF1_cutoff{form, "LabelF1_cutoff", {120, 4095, 630, 195}, {.caption = "cutoff", .align = LabelAlign::Center}};
  Image knobF1_cutoff{form, "knobF1_cutoff", {135, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 cutoff knob"}};
  TextBox TextF1_cutoff{form, "TextF1_cutoff", {195, 4965, 480, 300}, {.says = "Filter 1 cutoff"}};
  Label LabelF1_reso{form, "LabelF1_reso", {750, 4095, 630, 195}, {.caption = "reso", .align = LabelAlign::Center}};
  Image knobF1_reso{form, "knobF1_reso", {765, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 resonance knob"}};
  TextBox TextF1_reso{form, "TextF1_reso", {825, 4965, 480, 300}, {.says = "Filter 1 resonance"}};
  Label LabelF1_drive{form, "LabelF1_drive", {1380, 4095, 630, 195}, {.caption = "drive", .align = LabelAlign::Center}};
  Image knobF1_drive{form, "knobF1_drive", {1395, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 drive knob"}};
  TextBox TextF1_drive{form, "TextF1_drive", {1455, 4965, 480, 300}, {.says = "Filter 1 drive"}};
  Label LabelF1_keytrack{form, "LabelF1_keytrack", {2010, 4095, 630, 195}, {.caption = "keytr.", .align = LabelAlign::Center}};
  Image knobF1_keytrack{form, "knobF1_keytrack", {2025, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 keytrack knob"}};
  TextBox TextF1_keytrack{form, "TextF1_keytrack", {2085, 4965, 480, 300}, {.says = "Filter 1 keytrack"}};
  Label LabelF1_envamt{form, "LabelF1_envamt", {2640, 4095, 630, 195}, {.caption = "env", .align = LabelAlign::Center}};
  Image knobF1_envamt{form, "knobF1_envamt", {2655, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 envelope amount knob"}};
  TextBox TextF1_envamt{form, "TextF1_envamt", {2715, 4965, 480, 300}, {.says = "Filter 1 envelope amount"}};
  Label LabelF1_envvel{form, "LabelF1_envvel", {3270, 4095, 630, 195}, {.caption = "env vel", .align = LabelAlign::Center}};
  Image knobF1_envvol{form, "knobF1_envvol", {3285, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 envelope velocity knob"}};
  TextBox TextF1_envvol{form, "TextF1_envvol", {3345, 4965, 480, 300}, {.says = "Filter 1 envelope velocity"}};
  Label LabelF1_modamount{form, "LabelF1_modamount", {3900, 4095, 630, 195}, {.caption = "mod", .align = LabelAlign::Center}};
  Image knobF1_modamt{form, "knobF1_modamt", {3915, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 modulation amount knob"}};
  TextBox TextF1_modamount{form, "TextF1_modamount", {3975, 4965, 480, 300}, {.says = "Filter 1 modulation amount"}};
  Label LabelF1_pan{form, "LabelF1_pan", {4530, 4095, 630, 195}, {.caption = "pan", .align = LabelAlign::Center}};
  Image knobF1_pan{form, "knobF1_pan", {4545, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 pan knob"}};
  TextBox TextF1_pan{form, "TextF1_pan", {4605, 4965, 480, 300}, {.says = "Filter 1 pan"}};
  Label LabelF1_modsource{form, "LabelF1_modsource", {2280, 5475, 1545, 195}, {.caption = "modulation source", .align = LabelAlign::Right}};
  ComboBox ComboF1Modulation{form, "ComboF1Modulation", {3915, 5415, 1260, 315}, {.items = ValueLists::FilterModSourceTexts, .toolTip = "Cutoff modulation source", .says = "Filter 1 modulation source"}};

  // Filter 2.
  Shape ShapeFilter2{form, "ShapeFilter2", {5280, 3630, 5190, 2310}, ShapeKind::Panel};
  Label LabelFilter2{form, "LabelFilter2", {5370, 3705, 900, 240}, {.caption = "Filter 2", .style = LabelStyle::Heading}};
  ComboBox ComboFilter2{form, "ComboFilter2", {6285, 3690, 2100, 315}, {.items = ValueLists::FilterTypeTexts, .toolTip = "Select a filter type (Lowpass is a typical filter type)", .says = "Filter 2 type"}};
  CommandButton ResetFilter2{form, "ResetFilter2", {8760, 3690, 1635, 315}, {.caption = "Reset to standard", .says = "Reset filter 2 to standard"}};
  Label LabelF2_cutoff{form, "LabelF2_cutoff", {5340, 4095, 630, 195}, {.caption = "cutoff", .align = LabelAlign::Center}};
  Image knobF2_cutoff{form, "knobF2_cutoff", {5355, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 cutoff knob"}};
  TextBox TextF2_cutoff{form, "TextF2_cutoff", {5415, 4965, 480, 300}, {.says = "Filter 2 cutoff"}};
  Label LabelF2_reso{form, "LabelF2_reso", {5970, 4095, 630, 195}, {.caption = "reso", .align = LabelAlign::Center}};
  Image knobF2_reso{form, "knobF2_reso", {5985, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 resonance knob"}};
  TextBox TextF2_reso{form, "TextF2_reso", {6045, 4965, 480, 300}, {.says = "Filter 2 resonance"}};
  Label LabelF2_drive{form, "LabelF2_drive", {6600, 4095, 630, 195}, {.caption = "drive", .align = LabelAlign::Center}};
  Image knobF2_drive{form, "knobF2_drive", {6615, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 drive knob"}};
  TextBox TextF2_drive{form, "TextF2_drive", {6675, 4965, 480, 300}, {.says = "Filter 2 drive"}};
  Label LabelF2_keytrack{form, "LabelF2_keytrack", {7230, 4095, 630, 195}, {.caption = "keytr.", .align = LabelAlign::Center}};
  Image knobF2_keytrack{form, "knobF2_keytrack", {7245, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 keytrack knob"}};
  TextBox TextF2_keytrack{form, "TextF2_keytrack", {7305, 4965, 480, 300}, {.says = "Filter 2 keytrack"}};
  Label LabelF2_envamt{form, "LabelF2_envamt", {7860, 4095, 630, 195}, {.caption = "env", .align = LabelAlign::Center}};
  Image knobF2_envamt{form, "knobF2_envamt", {7875, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 envelope amount knob"}};
  TextBox TextF2_envamt{form, "TextF2_envamt", {7935, 4965, 480, 300}, {.says = "Filter 2 envelope amount"}};
  Label LabelF2_envvel{form, "LabelF2_envvel", {8490, 4095, 630, 195}, {.caption = "env vel", .align = LabelAlign::Center}};
  Image knobF2_envvel{form, "knobF2_envvel", {8505, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 envelope velocity knob"}};
  TextBox TextF2_envvel{form, "TextF2_envvel", {8565, 4965, 480, 300}, {.says = "Filter 2 envelope velocity"}};
  Label LabelF2_modamount{form, "LabelF2_modamount", {9120, 4095, 630, 195}, {.caption = "mod", .align = LabelAlign::Center}};
  Image knobF2_modamt{form, "knobF2_modamt", {9135, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 modulation amount knob"}};
  TextBox TextF2_modamount{form, "TextF2_modamount", {9195, 4965, 480, 300}, {.toolTip = "Cutoff modulation amount by modulation source", .says = "Filter 2 modulation amount"}};
  Label LabelF2_pan{form, "LabelF2_pan", {9750, 4095, 630, 195}, {.caption = "pan", .align = LabelAlign::Center}};
  Image knobF2_pan{form, "knobF2_pan", {9765, 4290, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 pan knob"}};
  TextBox TextF2_pan{form, "TextF2_pan", {9825, 4965, 480, 300}, {.says = "Filter 2 pan"}};
  Label LabelF2_modsource{form, "LabelF2_modsource", {7500, 5475, 1545, 195}, {.caption = "modulation source", .align = LabelAlign::Right}};
  ComboBox ComboF2Modulation{form, "ComboF2Modulation", {9135, 5415, 1260, 315}, {.items = ValueLists::FilterModSourceTexts, .toolTip = "Cutoff modulation source", .says = "Filter 2 modulation source"}};

  // Routing: the hidden box is its state, and one of the two pictures shows it.
  Shape ShapeRouting{form, "ShapeRouting", {10500, 3630, 1605, 2310}, ShapeKind::Panel};
  Label LabelRouting{form, "LabelRouting", {10590, 3705, 1350, 240}, {.caption = "Routing", .style = LabelStyle::Heading}};
  TextBox TextFilterParSer{form, "TextFilterParSer", {10560, 3990, 0, 285}, {.says = "Filter routing"}};
  Image ImageParallel{form, "ImageParallel", {10552, 3975, 1500, 615}, {.picture = "parallel", .toolTip = "Selects parallel (4-pole) or serial (2x 2-pole) filter", .says = "Filters in parallel"}};
  Image ImageSeriell{form, "ImageSeriell", {10552, 3975, 1500, 615}, {.picture = "serial", .toolTip = "Selects parallel (4-pole) or serial (2x 2-pole) filter", .says = "Filters in series", .visible = false}};
  // clang-format on
};

} // namespace Tessoro
