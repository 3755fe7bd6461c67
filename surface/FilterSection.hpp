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
  Shape ShapeFilter1{form, "ShapeFilter1", {60, 3615, 5175, 2325}, ShapeKind::Panel};
  Label LabelFilter1{form, "LabelFilter1", {165, 3735, 810, 240}, {.caption = "Filter 1", .style = LabelStyle::Heading}};
  ComboBox ComboFilter1{form, "ComboFilter1", {1020, 3705, 2520, 300}, {.items = ValueLists::FilterTypeTexts, .toolTip = "Select a filter type (Lowpass is a typical filter type)", .says = "Filter 1 type"}};
  CommandButton ResetFilter1{form, "ResetFilter1", {180, 5505, 1695, 300}, {.caption = "Reset to standard", .says = "Reset filter 1 to standard"}};
  Label LabelF1_cutoff{form, "LabelF1_cutoff", {171, 4125, 619, 195}, {.caption = "cutoff", .align = LabelAlign::Center}};
  Image knobF1_cutoff{form, "knobF1_cutoff", {180, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 cutoff knob"}};
  TextBox TextF1_cutoff{form, "TextF1_cutoff", {240, 4995, 480, 300}, {.says = "Filter 1 cutoff"}};
  Label LabelF1_reso{form, "LabelF1_reso", {790, 4125, 619, 195}, {.caption = "reso", .align = LabelAlign::Center}};
  Image knobF1_reso{form, "knobF1_reso", {799, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 resonance knob"}};
  TextBox TextF1_reso{form, "TextF1_reso", {859, 4995, 480, 300}, {.says = "Filter 1 resonance"}};
  Label LabelF1_drive{form, "LabelF1_drive", {1409, 4125, 619, 195}, {.caption = "drive", .align = LabelAlign::Center}};
  Image knobF1_drive{form, "knobF1_drive", {1418, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 drive knob"}};
  TextBox TextF1_drive{form, "TextF1_drive", {1478, 4995, 480, 300}, {.says = "Filter 1 drive"}};
  Label LabelF1_keytrack{form, "LabelF1_keytrack", {2028, 4125, 619, 195}, {.caption = "keytr.", .align = LabelAlign::Center}};
  Image knobF1_keytrack{form, "knobF1_keytrack", {2037, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 keytrack knob"}};
  TextBox TextF1_keytrack{form, "TextF1_keytrack", {2097, 4995, 480, 300}, {.says = "Filter 1 keytrack"}};
  Label LabelF1_envamt{form, "LabelF1_envamt", {2647, 4125, 619, 195}, {.caption = "env", .align = LabelAlign::Center}};
  Image knobF1_envamt{form, "knobF1_envamt", {2656, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 envelope amount knob"}};
  TextBox TextF1_envamt{form, "TextF1_envamt", {2716, 4995, 480, 300}, {.says = "Filter 1 envelope amount"}};
  Label LabelF1_envvel{form, "LabelF1_envvel", {3266, 4125, 619, 195}, {.caption = "env vel", .align = LabelAlign::Center}};
  Image knobF1_envvol{form, "knobF1_envvol", {3275, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 envelope velocity knob"}};
  TextBox TextF1_envvol{form, "TextF1_envvol", {3335, 4995, 480, 300}, {.says = "Filter 1 envelope velocity"}};
  Label LabelF1_modamount{form, "LabelF1_modamount", {3885, 4125, 619, 195}, {.caption = "mod", .align = LabelAlign::Center}};
  Image knobF1_modamt{form, "knobF1_modamt", {3894, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 modulation amount knob"}};
  TextBox TextF1_modamount{form, "TextF1_modamount", {3954, 4995, 480, 300}, {.says = "Filter 1 modulation amount"}};
  Label LabelF1_pan{form, "LabelF1_pan", {4504, 4125, 619, 195}, {.caption = "pan", .align = LabelAlign::Center}};
  Image knobF1_pan{form, "knobF1_pan", {4513, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 1 pan knob"}};
  TextBox TextF1_pan{form, "TextF1_pan", {4573, 4995, 480, 300}, {.says = "Filter 1 pan"}};
  Label LabelF1_modsource{form, "LabelF1_modsource", {2070, 5557, 1710, 195}, {.caption = "modulation source", .align = LabelAlign::Right}};
  ComboBox ComboF1Modulation{form, "ComboF1Modulation", {3855, 5505, 1260, 300}, {.items = ValueLists::FilterModSourceTexts, .toolTip = "Cutoff modulation source", .says = "Filter 1 modulation source"}};

  // Filter 2.
  Shape ShapeFilter2{form, "ShapeFilter2", {5280, 3615, 5175, 2325}, ShapeKind::Panel};
  Label LabelFilter2{form, "LabelFilter2", {5385, 3735, 810, 240}, {.caption = "Filter 2", .style = LabelStyle::Heading}};
  ComboBox ComboFilter2{form, "ComboFilter2", {6240, 3705, 2520, 300}, {.items = ValueLists::FilterTypeTexts, .toolTip = "Select a filter type (Lowpass is a typical filter type)", .says = "Filter 2 type"}};
  CommandButton ResetFilter2{form, "ResetFilter2", {5400, 5505, 1695, 300}, {.caption = "Reset to standard", .says = "Reset filter 2 to standard"}};
  Label LabelF2_cutoff{form, "LabelF2_cutoff", {5391, 4125, 619, 195}, {.caption = "cutoff", .align = LabelAlign::Center}};
  Image knobF2_cutoff{form, "knobF2_cutoff", {5400, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 cutoff knob"}};
  TextBox TextF2_cutoff{form, "TextF2_cutoff", {5460, 4995, 480, 300}, {.says = "Filter 2 cutoff"}};
  Label LabelF2_reso{form, "LabelF2_reso", {6010, 4125, 619, 195}, {.caption = "reso", .align = LabelAlign::Center}};
  Image knobF2_reso{form, "knobF2_reso", {6019, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 resonance knob"}};
  TextBox TextF2_reso{form, "TextF2_reso", {6079, 4995, 480, 300}, {.says = "Filter 2 resonance"}};
  Label LabelF2_drive{form, "LabelF2_drive", {6629, 4125, 619, 195}, {.caption = "drive", .align = LabelAlign::Center}};
  Image knobF2_drive{form, "knobF2_drive", {6638, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 drive knob"}};
  TextBox TextF2_drive{form, "TextF2_drive", {6698, 4995, 480, 300}, {.says = "Filter 2 drive"}};
  Label LabelF2_keytrack{form, "LabelF2_keytrack", {7248, 4125, 619, 195}, {.caption = "keytr.", .align = LabelAlign::Center}};
  Image knobF2_keytrack{form, "knobF2_keytrack", {7257, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 keytrack knob"}};
  TextBox TextF2_keytrack{form, "TextF2_keytrack", {7317, 4995, 480, 300}, {.says = "Filter 2 keytrack"}};
  Label LabelF2_envamt{form, "LabelF2_envamt", {7867, 4125, 619, 195}, {.caption = "env", .align = LabelAlign::Center}};
  Image knobF2_envamt{form, "knobF2_envamt", {7876, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 envelope amount knob"}};
  TextBox TextF2_envamt{form, "TextF2_envamt", {7936, 4995, 480, 300}, {.says = "Filter 2 envelope amount"}};
  Label LabelF2_envvel{form, "LabelF2_envvel", {8486, 4125, 619, 195}, {.caption = "env vel", .align = LabelAlign::Center}};
  Image knobF2_envvel{form, "knobF2_envvel", {8495, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 envelope velocity knob"}};
  TextBox TextF2_envvel{form, "TextF2_envvel", {8555, 4995, 480, 300}, {.says = "Filter 2 envelope velocity"}};
  Label LabelF2_modamount{form, "LabelF2_modamount", {9105, 4125, 619, 195}, {.caption = "mod", .align = LabelAlign::Center}};
  Image knobF2_modamt{form, "knobF2_modamt", {9114, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 modulation amount knob"}};
  TextBox TextF2_modamount{form, "TextF2_modamount", {9174, 4995, 480, 300}, {.toolTip = "Cutoff modulation amount by modulation source", .says = "Filter 2 modulation amount"}};
  Label LabelF2_pan{form, "LabelF2_pan", {9724, 4125, 619, 195}, {.caption = "pan", .align = LabelAlign::Center}};
  Image knobF2_pan{form, "knobF2_pan", {9733, 4320, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "Filter 2 pan knob"}};
  TextBox TextF2_pan{form, "TextF2_pan", {9793, 4995, 480, 300}, {.says = "Filter 2 pan"}};
  Label LabelF2_modsource{form, "LabelF2_modsource", {7290, 5557, 1710, 195}, {.caption = "modulation source", .align = LabelAlign::Right}};
  ComboBox ComboF2Modulation{form, "ComboF2Modulation", {9075, 5505, 1260, 300}, {.items = ValueLists::FilterModSourceTexts, .toolTip = "Cutoff modulation source", .says = "Filter 2 modulation source"}};

  // Routing: the hidden box is its state, and one of the two pictures shows it.
  Shape ShapeRouting{form, "ShapeRouting", {10500, 3615, 1605, 1050}, ShapeKind::Panel};
  Label LabelRouting{form, "LabelRouting", {10605, 3705, 1350, 240}, {.caption = "Routing", .style = LabelStyle::Heading}};
  TextBox TextFilterParSer{form, "TextFilterParSer", {10560, 3990, 0, 285}, {.says = "Filter routing"}};
  Image ImageParallel{form, "ImageParallel", {10552, 3975, 1500, 615}, {.picture = "parallel", .toolTip = "Selects parallel (4-pole) or serial (2x 2-pole) filter", .says = "Filters in parallel", .accessKey = "Alt+R"}};
  Image ImageSeriell{form, "ImageSeriell", {10552, 3975, 1500, 615}, {.picture = "serial", .toolTip = "Selects parallel (4-pole) or serial (2x 2-pole) filter", .says = "Filters in series", .visible = false, .accessKey = "Alt+R"}};
  // clang-format on
};

} // namespace Tessoro
