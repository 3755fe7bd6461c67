// The form for the three LFOs.
#pragma once

#include "sound/ValueLists.hpp"
#include "surface/Controls.hpp"
#include "surface/Form.hpp"
#include "surface/Knobs.hpp"

namespace Tessoro {

class Module1;

// Holds no state: it fills its controls from the shadows as it loads, which sends every value that
// differs from the design, and each handler sends and writes its shadow.
class F_LFO : public Form {
public:
  explicit F_LFO(Application &app);

  // clang-format off
  // LFO 1.
  Shape ShapeLFO1{*this, "ShapeLFO1", {90, 90, 3030, 2970}, ShapeKind::Panel};
  Label LabelLFO1{*this, "LabelLFO1", {180, 180, 900, 240}, {.caption = "LFO 1", .style = LabelStyle::Heading}};
  ComboBox ComboLFO1shape{*this, "ComboLFO1shape", {180, 480, 2475, 315}, {.items = ValueLists::LfoShapeTexts, .toolTip = "Low Frecuency Oscillator type", .says = "LFO 1 shape"}};
  Label LabelLFO1speed{*this, "LabelLFO1speed", {150, 930, 630, 195}, {.caption = "Speed", .align = LabelAlign::Center}};
  Image knobLFO1speed{*this, "knobLFO1speed", {165, 1140, 600, 660}, {.picture = KnobPicture, .says = "LFO 1 speed knob"}};
  TextBox TextLFO1speed{*this, "TextLFO1speed", {225, 1845, 480, 300}, {.says = "LFO 1 speed"}};
  Label LabelLFO1delay{*this, "LabelLFO1delay", {780, 930, 630, 195}, {.caption = "Delay", .align = LabelAlign::Center}};
  Image knobLFO1delay{*this, "knobLFO1delay", {795, 1140, 600, 660}, {.picture = KnobPicture, .says = "LFO 1 delay knob"}};
  TextBox TextLFO1delay{*this, "TextLFO1delay", {855, 1845, 480, 300}, {.says = "LFO 1 delay"}};
  Label LabelLFO1fade{*this, "LabelLFO1fade", {1455, 930, 540, 195}, {.caption = "Fade", .align = LabelAlign::Center}};
  Image knobLFO1fade{*this, "knobLFO1fade", {1425, 1140, 600, 660}, {.picture = KnobPicture, .says = "LFO 1 fade knob"}};
  TextBox TextLFO1fade{*this, "TextLFO1fade", {1485, 1845, 480, 300}, {.says = "LFO 1 fade"}};
  Label LabelLFO1keytrack{*this, "LabelLFO1keytrack", {1995, 930, 720, 195}, {.caption = "Keytrack", .align = LabelAlign::Center}};
  Image knobLFO1keytrack{*this, "knobLFO1keytrack", {2055, 1140, 600, 660}, {.picture = KnobPicture, .says = "LFO 1 keytrack knob"}};
  TextBox TextLFO1keytrack{*this, "TextLFO1keytrack", {2115, 1845, 480, 300}, {.says = "LFO 1 keytrack"}};
  VScrollBar VScrollLFO1phase{*this, "VScrollLFO1phase", {2760, 480, 270, 1665}, {.min = 127, .max = 0, .largeChange = 5, .value = 1, .says = "LFO 1 start phase"}};
  CheckBox CheckLFO1sync{*this, "CheckLFO1sync", {180, 2280, 1200, 300}, {.caption = "Sync", .toolTip = "LFO sync", .says = "LFO 1 sync", .backColor = Colors::DimGreen, .foreColor = Colors::Grey}};
  CheckBox CheckLFO1clocked{*this, "CheckLFO1clocked", {1455, 2280, 1200, 300}, {.caption = "clocked", .toolTip = "Syncs OSC 2 to OSC 3. (OSC 2 restarts whenever OSC 3 starts a new cycle) Sync is audible if OSC 2 is detuned.", .says = "LFO 1 clocked", .backColor = Colors::DimGreen, .foreColor = Colors::Grey}};
  Label LabelOSC1phase{*this, "LabelOSC1phase", {180, 2700, 2850, 255}, {.caption = "Startphase: free", .align = LabelAlign::Right}};

  // LFO 2.
  Shape ShapeLFO2{*this, "ShapeLFO2", {3180, 90, 3030, 2970}, ShapeKind::Panel};
  Label LabelLFO2{*this, "LabelLFO2", {3270, 180, 900, 240}, {.caption = "LFO 2", .style = LabelStyle::Heading}};
  ComboBox ComboLFO2shape{*this, "ComboLFO2shape", {3270, 480, 2475, 315}, {.items = ValueLists::LfoShapeTexts, .toolTip = "Low Frecuency Oscillator type", .says = "LFO 2 shape"}};
  Label LabelLFO2speed{*this, "LabelLFO2speed", {3240, 930, 630, 195}, {.caption = "Speed", .align = LabelAlign::Center}};
  Image knobLFO2speed{*this, "knobLFO2speed", {3255, 1140, 600, 660}, {.picture = KnobPicture, .says = "LFO 2 speed knob"}};
  TextBox TextLFO2speed{*this, "TextLFO2speed", {3315, 1845, 480, 300}, {.says = "LFO 2 speed"}};
  Label LabelLFO2delay{*this, "LabelLFO2delay", {3870, 930, 630, 195}, {.caption = "Delay", .align = LabelAlign::Center}};
  Image knobLFO2delay{*this, "knobLFO2delay", {3885, 1140, 600, 660}, {.picture = KnobPicture, .says = "LFO 2 delay knob"}};
  TextBox TextLFO2delay{*this, "TextLFO2delay", {3945, 1845, 480, 300}, {.says = "LFO 2 delay"}};
  Label LabelLFO2fade{*this, "LabelLFO2fade", {4545, 930, 540, 195}, {.caption = "Fade", .align = LabelAlign::Center}};
  Image knobLFO2fade{*this, "knobLFO2fade", {4515, 1140, 600, 660}, {.picture = KnobPicture, .says = "LFO 2 fade knob"}};
  TextBox TextLFO2fade{*this, "TextLFO2fade", {4575, 1845, 480, 300}, {.says = "LFO 2 fade"}};
  Label LabelLFO2keytrack{*this, "LabelLFO2keytrack", {5085, 930, 720, 195}, {.caption = "Keytrack", .align = LabelAlign::Center}};
  Image knobLFO2keytrack{*this, "knobLFO2keytrack", {5145, 1140, 600, 660}, {.picture = KnobPicture, .says = "LFO 2 keytrack knob"}};
  TextBox TextLFO2keytrack{*this, "TextLFO2keytrack", {5205, 1845, 480, 300}, {.says = "LFO 2 keytrack"}};
  VScrollBar VScrollLFO2phase{*this, "VScrollLFO2phase", {5850, 480, 270, 1665}, {.min = 7, .max = 0, .says = "LFO 2 start phase"}};
  CheckBox CheckLFO2sync{*this, "CheckLFO2sync", {3270, 2280, 1200, 300}, {.caption = "Sync", .toolTip = "LFO sync", .says = "LFO 2 sync", .backColor = Colors::DimGreen, .foreColor = Colors::Grey}};
  CheckBox CheckLFO2clocked{*this, "CheckLFO2clocked", {4545, 2280, 1200, 300}, {.caption = "clocked", .toolTip = "sync to clock", .says = "LFO 2 clocked", .backColor = Colors::DimGreen, .foreColor = Colors::Grey}};
  Label LabelOSC2phase{*this, "LabelOSC2phase", {3270, 2700, 2850, 255}, {.caption = "Startphase: free", .align = LabelAlign::Right}};

  // LFO 3.
  Shape ShapeLFO3{*this, "ShapeLFO3", {6270, 90, 3030, 2970}, ShapeKind::Panel};
  Label LabelLFO3{*this, "LabelLFO3", {6360, 180, 900, 240}, {.caption = "LFO 3", .style = LabelStyle::Heading}};
  ComboBox ComboLFO3shape{*this, "ComboLFO3shape", {6360, 480, 2475, 315}, {.items = ValueLists::LfoShapeTexts, .toolTip = "Low Frecuency Oscillator type", .says = "LFO 3 shape"}};
  Label LabelLFO3speed{*this, "LabelLFO3speed", {6330, 930, 630, 195}, {.caption = "Speed", .align = LabelAlign::Center}};
  Image knobLFO3speed{*this, "knobLFO3speed", {6345, 1140, 600, 660}, {.picture = KnobPicture, .says = "LFO 3 speed knob"}};
  TextBox TextLFO3speed{*this, "TextLFO3speed", {6405, 1845, 480, 300}, {.says = "LFO 3 speed"}};
  Label LabelLFO3delay{*this, "LabelLFO3delay", {6960, 930, 630, 195}, {.caption = "Delay", .align = LabelAlign::Center}};
  Image knobLFO3delay{*this, "knobLFO3delay", {6975, 1140, 600, 660}, {.picture = KnobPicture, .says = "LFO 3 delay knob"}};
  TextBox TextLFO3delay{*this, "TextLFO3delay", {7035, 1845, 480, 300}, {.says = "LFO 3 delay"}};
  Label LabelLFO3fade{*this, "LabelLFO3fade", {7635, 930, 540, 195}, {.caption = "Fade", .align = LabelAlign::Center}};
  Image knobLFO3fade{*this, "knobLFO3fade", {7605, 1140, 600, 660}, {.picture = KnobPicture, .says = "LFO 3 fade knob"}};
  TextBox TextLFO3fade{*this, "TextLFO3fade", {7665, 1845, 480, 300}, {.says = "LFO 3 fade"}};
  Label LabelLFO3keytrack{*this, "LabelLFO3keytrack", {8175, 930, 720, 195}, {.caption = "Keytrack", .align = LabelAlign::Center}};
  Image knobLFO3keytrack{*this, "knobLFO3keytrack", {8235, 1140, 600, 660}, {.picture = KnobPicture, .says = "LFO 3 keytrack knob"}};
  TextBox TextLFO3keytrack{*this, "TextLFO3keytrack", {8295, 1845, 480, 300}, {.says = "LFO 3 keytrack"}};
  VScrollBar VScrollLFO3phase{*this, "VScrollLFO3phase", {8940, 480, 270, 1665}, {.min = 7, .max = 0, .says = "LFO 3 start phase"}};
  CheckBox CheckLFO3sync{*this, "CheckLFO3sync", {6360, 2280, 1200, 300}, {.caption = "Sync", .toolTip = "sync to clock", .says = "LFO 3 sync", .backColor = Colors::DimGreen, .foreColor = Colors::Grey}};
  CheckBox CheckLFO3clocked{*this, "CheckLFO3clocked", {7635, 2280, 1200, 300}, {.caption = "clocked", .toolTip = "sync to clock", .says = "LFO 3 clocked", .backColor = Colors::DimGreen, .foreColor = Colors::Grey}};
  Label LabelOSC3phase{*this, "LabelOSC3phase", {6360, 2700, 2850, 255}, {.caption = "Startphase: free", .align = LabelAlign::Right}};

  CommandButton Command1{*this, "Command1", {8010, 3180, 1290, 420}, {.caption = "&Close"}};
  // clang-format on

protected:
  void Form_Load() override;
  void Form_KeyDown(int keyCode, int shift) override;
  void Form_KeyUp(int keyCode, int shift) override;

private:
  struct Column;

  static void AttachColumn(const Column &column, Module1 &globals);
  static void LoadColumn(const Column &column, const Module1 &globals);
  static void Phase_Change(const Column &column);
  Column ColumnOf(std::size_t lfo);
};

} // namespace Tessoro
