// The three oscillators on the main form.
#pragma once

#include "sound/ValueLists.hpp"
#include "surface/Controls.hpp"
#include "surface/Knobs.hpp"

namespace Tessoro {

class OscillatorSection {
public:
  explicit OscillatorSection(Form &owner);

private:
  void AttachShapeCombos();
  void AttachButtons();
  void CheckSyncOn_Click();
  void C_octaveplus_Click();
  void C_octaveminus_Click();

  Form &form;

public:
  // clang-format off
  // Oscillator 1.
  Shape ShapeOSC1{form, "ShapeOSC1", {60, 60, 3585, 3510}, ShapeKind::Panel};
  Label TextOSC1{form, "TextOSC1", {165, 120, 735, 240}, {.caption = "OSC 1", .style = LabelStyle::Heading}};
  ComboBox ComboOSC1shape{form, "ComboOSC1shape", {585, 420, 1620, 300}, {.items = std::span(ValueLists::ShapeTexts).first(3), .toolTip = "Selects oscillator type (i.e. pulse or saw)", .says = "OSC 1 shape"}};
  ComboBox ComboOSC1oct{form, "ComboOSC1oct", {2265, 420, 1260, 300}, {.items = ValueLists::OctaveTexts, .toolTip = "Sets the octave in (historical) pipelenght. The bigger the value the deeper the octave!", .says = "OSC 1 octave"}};
  Label LabelOSC1semi{form, "LabelOSC1semi", {585, 780, 1440, 195}, {.caption = "semi", .align = LabelAlign::Center}};
  TextBox TextOSC1semi{form, "TextOSC1semi", {585, 975, 510, 300}, {.says = "OSC 1 semitone"}};
  HScrollBar HScrollOSC1semi{form, "HScrollOSC1semi", {1125, 975, 900, 300}, {.min = -12, .max = 12, .largeChange = 1, .says = "OSC 1 semitone bar"}};
  Label LabelOSC1detune{form, "LabelOSC1detune", {2085, 780, 1440, 195}, {.caption = "detune", .align = LabelAlign::Center}};
  TextBox TextOSC1detune{form, "TextOSC1detune", {2085, 975, 510, 300}, {.says = "OSC 1 detune"}};
  HScrollBar HScrollOSC1detune{form, "HScrollOSC1detune", {2625, 975, 900, 300}, {.min = -64, .max = 63, .largeChange = 10, .says = "OSC 1 detune bar"}};
  Label LabelOSC1keytrack{form, "LabelOSC1keytrack", {555, 1350, 600, 195}, {.caption = "keytr.", .align = LabelAlign::Center}};
  Image knobOSC1keytrack{form, "knobOSC1keytrack", {555, 1545, 600, 660}, {.picture = KnobPicture, .says = "OSC 1 keytrack knob"}};
  TextBox TextOSC1keytrack{form, "TextOSC1keytrack", {600, 2220, 510, 300}, {.toolTip = "Keytrack for notes. 2=100% for regular key pitch", .says = "OSC 1 keytrack"}};
  Label TextPW1{form, "TextPW1", {1155, 1350, 600, 195}, {.caption = "PW", .align = LabelAlign::Center}};
  Image knobOSC1pw{form, "knobOSC1pw", {1155, 1545, 600, 660}, {.picture = KnobPicture, .says = "OSC 1 pulse width or wave knob"}};
  TextBox TextOSC1pw{form, "TextOSC1pw", {1200, 2220, 510, 300}, {.says = "OSC 1 pulse width or wave"}};
  Label TextPWM1{form, "TextPWM1", {1755, 1350, 600, 195}, {.caption = "PWM", .align = LabelAlign::Center}};
  Image knobOSC1pwm{form, "knobOSC1pwm", {1755, 1545, 600, 660}, {.picture = KnobPicture, .says = "OSC 1 PWM or wave modulation amount knob"}};
  TextBox TextOSC1pwm{form, "TextOSC1pwm", {1800, 2220, 510, 300}, {.says = "OSC 1 PWM or wave modulation amount"}};
  Label LabelOSC1fmamt{form, "LabelOSC1fmamt", {2355, 1350, 600, 195}, {.caption = "FM", .align = LabelAlign::Center}};
  Image knobOSC1fmamt{form, "knobOSC1fmamt", {2355, 1545, 600, 660}, {.picture = KnobPicture, .says = "OSC 1 FM amount knob"}};
  TextBox TextOSC1FMamt{form, "TextOSC1FMamt", {2400, 2220, 510, 300}, {.toolTip = "FM amount sets how strong the FM source influences the OSC", .says = "OSC 1 FM amount"}};
  Label LabelOSC1sub{form, "LabelOSC1sub", {2955, 1350, 600, 195}, {.caption = "sub", .style = LabelStyle::Faded, .align = LabelAlign::Center}};
  Image knobSub1{form, "knobSub1", {2955, 1545, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "OSC 1 sub volume knob", .enabled = false}};
  TextBox TextSub1{form, "TextSub1", {3000, 2220, 510, 300}, {.toolTip = "Sub oscillator volume (works only for wavetable Alt1 or Alt2)", .says = "OSC 1 sub volume", .enabled = false}};
  Label TextPWMsrc1{form, "TextPWMsrc1", {585, 2595, 1215, 195}, {.caption = "PWM src", .align = LabelAlign::Center}};
  ComboBox ComboOSC1pwmsource{form, "ComboOSC1pwmsource", {585, 2790, 1215, 300}, {.items = ValueLists::ModSourceTexts, .toolTip = "Sets the source for pulsewith modulation (you have to set PWM to make this audible)", .says = "OSC 1 PWM source"}};
  Label LabelOSC1fmsrc{form, "LabelOSC1fmsrc", {1830, 2595, 1170, 195}, {.caption = "FM src", .align = LabelAlign::Center}};
  ComboBox ComboFMsrc1{form, "ComboFMsrc1", {1830, 2790, 1185, 300}, {.items = ValueLists::FmSourceTexts, .toolTip = "Sets the FM source", .says = "OSC 1 FM source"}};
  Label LabelOSC1subfreq{form, "LabelOSC1subfreq", {3000, 2595, 600, 195}, {.caption = "sub freq", .style = LabelStyle::Faded, .align = LabelAlign::Center}};
  ComboBox ComboSub1{form, "ComboSub1", {3045, 2790, 510, 300}, {.items = ValueLists::SubFrequencyTexts, .toolTip = "Sub oscillator frequency. (works only for wavetable Alt1 or Alt2)", .says = "OSC 1 sub frequency", .enabled = false}};
  Label LabelOSC1bend{form, "LabelOSC1bend", {585, 3232, 405, 195}, {.caption = "bend"}};
  CommandButton C_OSC1bendMinus{form, "C_OSC1bendMinus", {990, 3180, 255, 300}, {.caption = "-", .says = "OSC 1 bend range down"}};
  TextBox TextOSC1bendrange{form, "TextOSC1bendrange", {1260, 3180, 480, 300}, {.toolTip = "Bendrange for bendwheel. (Amount of pitch in octaves)", .says = "OSC 1 bend range"}};
  CommandButton C_OSC1bendPlus{form, "C_OSC1bendPlus", {1755, 3180, 255, 300}, {.caption = "+", .says = "OSC 1 bend range up"}};

  // Oscillator 2.
  Shape ShapeOSC2{form, "ShapeOSC2", {3690, 60, 3585, 3510}, ShapeKind::Panel};
  Label TextOSC2{form, "TextOSC2", {3795, 120, 735, 240}, {.caption = "OSC 2", .style = LabelStyle::Heading}};
  CheckBox CheckSyncOn{form, "CheckSyncOn", {6165, 105, 990, 270}, {.caption = "Sync", .toolTip = "Syncs OSC 2 to OSC 3. (OSC 2 restarts whenever OSC 3 starts a new cycle) Sync is audible if OSC 2 is detuned.", .says = "Sync OSC 2 to OSC 3", .backColor = Colors::DimGreen, .foreColor = Colors::Grey}};
  ComboBox ComboOSC2shape{form, "ComboOSC2shape", {4215, 420, 1620, 300}, {.items = ValueLists::ShapeTexts, .toolTip = "Selects oscillator type (i.e. pulse or saw)", .says = "OSC 2 shape"}};
  ComboBox ComboOSC2oct{form, "ComboOSC2oct", {5895, 420, 1260, 300}, {.items = ValueLists::OctaveTexts, .toolTip = "Sets the octave in (historical) pipelenght. The bigger the value the deeper the octave!", .says = "OSC 2 octave"}};
  Label LabelOSC2semi{form, "LabelOSC2semi", {4215, 780, 1440, 195}, {.caption = "semi", .align = LabelAlign::Center}};
  TextBox TextOSC2semi{form, "TextOSC2semi", {4215, 975, 510, 300}, {.says = "OSC 2 semitone"}};
  HScrollBar HScrollOSC2semi{form, "HScrollOSC2semi", {4755, 975, 900, 300}, {.min = -12, .max = 12, .largeChange = 1, .says = "OSC 2 semitone bar"}};
  Label LabelOSC2detune{form, "LabelOSC2detune", {5715, 780, 1440, 195}, {.caption = "detune", .align = LabelAlign::Center}};
  TextBox TextOSC2detune{form, "TextOSC2detune", {5715, 975, 510, 300}, {.says = "OSC 2 detune"}};
  HScrollBar HScrollOSC2detune{form, "HScrollOSC2detune", {6255, 975, 900, 300}, {.min = -64, .max = 63, .largeChange = 10, .says = "OSC 2 detune bar"}};
  Label LabelOSC2keytrack{form, "LabelOSC2keytrack", {4185, 1350, 600, 195}, {.caption = "keytr.", .align = LabelAlign::Center}};
  Image knobOSC2keytrack{form, "knobOSC2keytrack", {4185, 1545, 600, 660}, {.picture = KnobPicture, .says = "OSC 2 keytrack knob"}};
  TextBox TextOSC2keytrack{form, "TextOSC2keytrack", {4230, 2220, 510, 300}, {.toolTip = "Keytrack for notes. 2=100% for regular key pitch", .says = "OSC 2 keytrack"}};
  Label TextPW2{form, "TextPW2", {4785, 1350, 600, 195}, {.caption = "PW", .align = LabelAlign::Center}};
  Image knobOSC2pw{form, "knobOSC2pw", {4785, 1545, 600, 660}, {.picture = KnobPicture, .says = "OSC 2 pulse width or wave knob"}};
  TextBox TextOSC2pw{form, "TextOSC2pw", {4830, 2220, 510, 300}, {.says = "OSC 2 pulse width or wave"}};
  Label TextPWM2{form, "TextPWM2", {5385, 1350, 600, 195}, {.caption = "PWM", .align = LabelAlign::Center}};
  Image knobOSC2pwm{form, "knobOSC2pwm", {5385, 1545, 600, 660}, {.picture = KnobPicture, .says = "OSC 2 PWM or wave modulation amount knob"}};
  TextBox TextOSC2pwm{form, "TextOSC2pwm", {5430, 2220, 510, 300}, {.says = "OSC 2 PWM or wave modulation amount"}};
  Label LabelOSC2fmamt{form, "LabelOSC2fmamt", {5985, 1350, 600, 195}, {.caption = "FM", .style = LabelStyle::Faded, .align = LabelAlign::Center}};
  Image knobOSC2fmamt{form, "knobOSC2fmamt", {5985, 1545, 600, 660}, {.picture = KnobPicture, .says = "OSC 2 FM amount knob", .enabled = false}};
  TextBox TextOSC2FMamt{form, "TextOSC2FMamt", {6030, 2220, 510, 300}, {.toolTip = "FM amount sets how strong the FM source influences the OSC", .says = "OSC 2 FM amount", .enabled = false}};
  Label LabelOSC2sub{form, "LabelOSC2sub", {6585, 1350, 600, 195}, {.caption = "sub", .style = LabelStyle::Faded, .align = LabelAlign::Center}};
  Image knobSub2{form, "knobSub2", {6585, 1545, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "OSC 2 sub volume knob", .enabled = false}};
  TextBox TextSub2{form, "TextSub2", {6630, 2220, 510, 300}, {.toolTip = "Sub oscillator volume (works only for wavetable Alt1 or Alt2)", .says = "OSC 2 sub volume", .enabled = false}};
  Label TextPWMsrc2{form, "TextPWMsrc2", {4215, 2595, 1215, 195}, {.caption = "PWM src", .align = LabelAlign::Center}};
  ComboBox ComboOSC2pwmsource{form, "ComboOSC2pwmsource", {4215, 2790, 1215, 300}, {.items = ValueLists::ModSourceTexts, .toolTip = "Sets the source for pulsewith modulation (you have to set PWM to make this audible)", .says = "OSC 2 PWM source"}};
  Label LabelOSC2fmsrc{form, "LabelOSC2fmsrc", {5460, 2595, 1170, 195}, {.caption = "FM src", .style = LabelStyle::Faded, .align = LabelAlign::Center}};
  ComboBox ComboFMsrc2{form, "ComboFMsrc2", {5460, 2790, 1185, 300}, {.items = ValueLists::FmSourceTexts, .toolTip = "Sets the FM source", .says = "OSC 2 FM source", .enabled = false}};
  Label LabelOSC2subfreq{form, "LabelOSC2subfreq", {6630, 2595, 600, 195}, {.caption = "sub freq", .style = LabelStyle::Faded, .align = LabelAlign::Center}};
  ComboBox ComboSub2{form, "ComboSub2", {6675, 2790, 510, 300}, {.items = ValueLists::SubFrequencyTexts, .toolTip = "Sub oscillator frequency. (works only for wavetable Alt1 or Alt2)", .says = "OSC 2 sub frequency", .enabled = false}};
  Label LabelOSC2bend{form, "LabelOSC2bend", {4215, 3232, 405, 195}, {.caption = "bend"}};
  CommandButton C_OSC2bendMinus{form, "C_OSC2bendMinus", {4620, 3180, 255, 300}, {.caption = "-", .says = "OSC 2 bend range down"}};
  TextBox TextOSC2bendrange{form, "TextOSC2bendrange", {4890, 3180, 480, 300}, {.toolTip = "Bendrange for bendwheel. (Amount of pitch in octaves)", .says = "OSC 2 bend range"}};
  CommandButton C_OSC2bendPlus{form, "C_OSC2bendPlus", {5385, 3180, 255, 300}, {.caption = "+", .says = "OSC 2 bend range up"}};

  // Oscillator 3.
  Shape ShapeOSC3{form, "ShapeOSC3", {7320, 60, 3585, 3510}, ShapeKind::Panel};
  Label TextOSC3{form, "TextOSC3", {7425, 120, 735, 240}, {.caption = "OSC 3", .style = LabelStyle::Heading}};
  ComboBox ComboOSC3shape{form, "ComboOSC3shape", {7845, 420, 1620, 300}, {.items = std::span(ValueLists::ShapeTexts).first(5), .toolTip = "Selects oscillator type (i.e. pulse or saw)", .says = "OSC 3 shape"}};
  ComboBox ComboOSC3oct{form, "ComboOSC3oct", {9525, 420, 1260, 300}, {.items = ValueLists::OctaveTexts, .toolTip = "Sets the octave in (historical) pipelenght. The bigger the value the deeper the octave!", .says = "OSC 3 octave"}};
  Label LabelOSC3semi{form, "LabelOSC3semi", {7845, 780, 1440, 195}, {.caption = "semi", .align = LabelAlign::Center}};
  TextBox TextOSC3semi{form, "TextOSC3semi", {7845, 975, 510, 300}, {.says = "OSC 3 semitone"}};
  HScrollBar HScrollOSC3semi{form, "HScrollOSC3semi", {8385, 975, 900, 300}, {.min = -12, .max = 12, .largeChange = 1, .says = "OSC 3 semitone bar"}};
  Label LabelOSC3detune{form, "LabelOSC3detune", {9345, 780, 1440, 195}, {.caption = "detune", .align = LabelAlign::Center}};
  TextBox TextOSC3detune{form, "TextOSC3detune", {9345, 975, 510, 300}, {.says = "OSC 3 detune"}};
  HScrollBar HScrollOSC3detune{form, "HScrollOSC3detune", {9885, 975, 900, 300}, {.min = -64, .max = 63, .largeChange = 10, .says = "OSC 3 detune bar"}};
  Label LabelOSC3keytrack{form, "LabelOSC3keytrack", {7815, 1350, 600, 195}, {.caption = "keytr.", .align = LabelAlign::Center}};
  Image knobOSC3keytrack{form, "knobOSC3keytrack", {7815, 1545, 600, 660}, {.picture = KnobPicture, .says = "OSC 3 keytrack knob"}};
  TextBox TextOSC3keytrack{form, "TextOSC3keytrack", {7860, 2220, 510, 300}, {.toolTip = "Keytrack for notes. 2=100% for regular key pitch", .says = "OSC 3 keytrack"}};
  Label TextPW3{form, "TextPW3", {8415, 1350, 600, 195}, {.caption = "PW", .align = LabelAlign::Center}};
  Image knobOSC3pw{form, "knobOSC3pw", {8415, 1545, 600, 660}, {.picture = KnobPicture, .says = "OSC 3 pulse width or wave knob"}};
  TextBox TextOSC3pw{form, "TextOSC3pw", {8460, 2220, 510, 300}, {.says = "OSC 3 pulse width or wave"}};
  Label TextPWM3{form, "TextPWM3", {9015, 1350, 600, 195}, {.caption = "PWM", .align = LabelAlign::Center}};
  Image knobOSC3pwm{form, "knobOSC3pwm", {9015, 1545, 600, 660}, {.picture = KnobPicture, .says = "OSC 3 PWM or wave modulation amount knob"}};
  TextBox TextOSC3pwm{form, "TextOSC3pwm", {9060, 2220, 510, 300}, {.says = "OSC 3 PWM or wave modulation amount"}};
  Label LabelOSC3fmamt{form, "LabelOSC3fmamt", {9615, 1350, 600, 195}, {.caption = "FM", .style = LabelStyle::Faded, .align = LabelAlign::Center}};
  Image knobOSC3fmamt{form, "knobOSC3fmamt", {9615, 1545, 600, 660}, {.picture = KnobPicture, .says = "OSC 3 FM amount knob", .enabled = false}};
  TextBox TextOSC3FMamt{form, "TextOSC3FMamt", {9660, 2220, 510, 300}, {.toolTip = "FM amount sets how strong the FM source influences the OSC", .says = "OSC 3 FM amount", .enabled = false}};
  Label TextPWMsrc3{form, "TextPWMsrc3", {7845, 2595, 1215, 195}, {.caption = "PWM src", .align = LabelAlign::Center}};
  ComboBox ComboOSC3pwmsource{form, "ComboOSC3pwmsource", {7845, 2790, 1215, 300}, {.items = ValueLists::ModSourceTexts, .toolTip = "Sets the source for pulsewith modulation (you have to set PWM to make this audible)", .says = "OSC 3 PWM source"}};
  Label LabelOSC3fmsrc{form, "LabelOSC3fmsrc", {9090, 2595, 1170, 195}, {.caption = "FM src", .style = LabelStyle::Faded, .align = LabelAlign::Center}};
  ComboBox ComboFMsrc3{form, "ComboFMsrc3", {9090, 2790, 1185, 300}, {.items = ValueLists::FmSourceTexts, .toolTip = "Sets the FM source", .says = "OSC 3 FM source", .enabled = false}};
  Label LabelOSC3bend{form, "LabelOSC3bend", {7845, 3232, 405, 195}, {.caption = "bend"}};
  CommandButton C_OSC3bendMinus{form, "C_OSC3bendMinus", {8250, 3180, 255, 300}, {.caption = "-", .says = "OSC 3 bend range down"}};
  TextBox TextOSC3bendrange{form, "TextOSC3bendrange", {8520, 3180, 480, 300}, {.toolTip = "Bendrange for bendwheel. (Amount of pitch in octaves)", .says = "OSC 3 bend range"}};
  CommandButton C_OSC3bendPlus{form, "C_OSC3bendPlus", {9015, 3180, 255, 300}, {.caption = "+", .says = "OSC 3 bend range up"}};

  // All oscillators.
  Shape ShapeAllOSCs{form, "ShapeAllOSCs", {10500, 4710, 1605, 1230}, ShapeKind::Panel};
  Label LabelAllOSCs{form, "LabelAllOSCs", {10605, 4800, 1350, 240}, {.caption = "All OSCs", .style = LabelStyle::Heading}};
  Label LabelOctaves{form, "LabelOctaves", {10605, 5137, 600, 195}, {.caption = "octave"}};
  CommandButton C_octaveminus{form, "C_octaveminus", {11220, 5085, 375, 300}, {.caption = "-", .toolTip = "Decreases all OSCs about one octave.", .says = "All octaves down"}};
  CommandButton C_octaveplus{form, "C_octaveplus", {11610, 5085, 375, 300}, {.caption = "+", .toolTip = "Increases all OSCs about one octave.", .says = "All octaves up"}};
  // clang-format on
};

} // namespace Tessoro
