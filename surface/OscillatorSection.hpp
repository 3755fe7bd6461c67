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
  Shape ShapeOSC1{form, "ShapeOSC1", {60, 60, 3600, 3510}, ShapeKind::Panel};
  Label TextOSC1{form, "TextOSC1", {150, 135, 735, 240}, {.caption = "OSC 1", .style = LabelStyle::Heading}};
  ComboBox ComboOSC1shape{form, "ComboOSC1shape", {630, 525, 1620, 315}, {.items = std::span(ValueLists::ShapeTexts).first(3), .toolTip = "Selects oscillator type (i.e. pulse or saw)", .says = "OSC 1 shape"}};
  ComboBox ComboOSC1oct{form, "ComboOSC1oct", {2310, 525, 1260, 315}, {.items = ValueLists::OctaveTexts, .toolTip = "Sets the octave in (historical) pipelenght. The bigger the value the deeper the octave!", .says = "OSC 1 octave"}};
  Label LabelOSC1semi{form, "LabelOSC1semi", {600, 900, 600, 195}, {.caption = "semi", .align = LabelAlign::Center}};
  TextBox TextOSC1semi{form, "TextOSC1semi", {630, 1110, 510, 300}, {.says = "OSC 1 semitone"}};
  HScrollBar HScrollOSC1semi{form, "HScrollOSC1semi", {1170, 1110, 900, 300}, {.min = -12, .max = 12, .largeChange = 1, .says = "OSC 1 semitone bar"}};
  Label LabelOSC1detune{form, "LabelOSC1detune", {2100, 900, 600, 195}, {.caption = "detune", .align = LabelAlign::Center}};
  TextBox TextOSC1detune{form, "TextOSC1detune", {2130, 1110, 510, 300}, {.says = "OSC 1 detune"}};
  HScrollBar HScrollOSC1detune{form, "HScrollOSC1detune", {2670, 1110, 900, 300}, {.min = -64, .max = 63, .largeChange = 10, .says = "OSC 1 detune bar"}};
  Label LabelOSC1keytrack{form, "LabelOSC1keytrack", {600, 1470, 600, 195}, {.caption = "keytr.", .align = LabelAlign::Center}};
  Image knobOSC1keytrack{form, "knobOSC1keytrack", {600, 1665, 600, 660}, {.picture = KnobPicture, .says = "OSC 1 keytrack knob"}};
  TextBox TextOSC1keytrack{form, "TextOSC1keytrack", {645, 2340, 510, 300}, {.toolTip = "Keytrack for notes. 2=100% for regular key pitch", .says = "OSC 1 keytrack"}};
  Label TextPW1{form, "TextPW1", {1200, 1470, 600, 195}, {.caption = "PW", .align = LabelAlign::Center}};
  Image knobOSC1pw{form, "knobOSC1pw", {1200, 1665, 600, 660}, {.picture = KnobPicture, .says = "OSC 1 pulse width or wave knob"}};
  TextBox TextOSC1pw{form, "TextOSC1pw", {1245, 2340, 510, 300}, {.says = "OSC 1 pulse width or wave"}};
  Label TextPWM1{form, "TextPWM1", {1800, 1470, 600, 195}, {.caption = "PWM", .align = LabelAlign::Center}};
  Image knobOSC1pwm{form, "knobOSC1pwm", {1800, 1665, 600, 660}, {.picture = KnobPicture, .says = "OSC 1 PWM or wave modulation amount knob"}};
  TextBox TextOSC1pwm{form, "TextOSC1pwm", {1845, 2340, 510, 300}, {.says = "OSC 1 PWM or wave modulation amount"}};
  Label LabelOSC1fmamt{form, "LabelOSC1fmamt", {2400, 1470, 600, 195}, {.caption = "FM", .align = LabelAlign::Center}};
  Image knobOSC1fmamt{form, "knobOSC1fmamt", {2400, 1665, 600, 660}, {.picture = KnobPicture, .says = "OSC 1 FM amount knob"}};
  TextBox TextOSC1FMamt{form, "TextOSC1FMamt", {2445, 2340, 510, 300}, {.toolTip = "FM amount sets how strong the FM source influences the OSC", .says = "OSC 1 FM amount"}};
  Label LabelOSC1sub{form, "LabelOSC1sub", {3000, 1470, 600, 195}, {.caption = "sub", .align = LabelAlign::Center}};
  Image knobSub1{form, "knobSub1", {3000, 1665, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "OSC 1 sub volume knob", .enabled = false}};
  TextBox TextSub1{form, "TextSub1", {3045, 2340, 510, 300}, {.toolTip = "Sub oscillator volume (works only for wavetable Alt1 or Alt2)", .says = "OSC 1 sub volume", .enabled = false}};
  Label TextPWMsrc1{form, "TextPWMsrc1", {630, 2685, 960, 195}, {.caption = "PWM src"}};
  ComboBox ComboOSC1pwmsource{form, "ComboOSC1pwmsource", {630, 2880, 1080, 300}, {.items = ValueLists::ModSourceTexts, .toolTip = "Sets the source for pulsewith modulation (you have to set PWM to make this audible)", .says = "OSC 1 PWM source"}};
  Label LabelOSC1fmsrc{form, "LabelOSC1fmsrc", {1755, 2685, 960, 195}, {.caption = "FM src"}};
  ComboBox ComboFMsrc1{form, "ComboFMsrc1", {1755, 2880, 1110, 300}, {.items = ValueLists::FmSourceTexts, .toolTip = "Sets the FM source", .says = "OSC 1 FM source"}};
  Label LabelOSC1subfreq{form, "LabelOSC1subfreq", {2910, 2685, 660, 195}, {.caption = "sub freq"}};
  ComboBox ComboSub1{form, "ComboSub1", {2910, 2880, 660, 300}, {.items = ValueLists::SubFrequencyTexts, .toolTip = "Sub oscillator frequency. (works only for wavetable Alt1 or Alt2)", .says = "OSC 1 sub frequency", .enabled = false}};
  Label LabelOSC1bend{form, "LabelOSC1bend", {630, 3270, 420, 195}, {.caption = "bend"}};
  CommandButton C_OSC1bendMinus{form, "C_OSC1bendMinus", {1050, 3225, 255, 300}, {.caption = "-", .says = "OSC 1 bend range down"}};
  TextBox TextOSC1bendrange{form, "TextOSC1bendrange", {1320, 3225, 450, 300}, {.toolTip = "Bendrange for bendwheel. (Amount of pitch in octaves)", .says = "OSC 1 bend range"}};
  CommandButton C_OSC1bendPlus{form, "C_OSC1bendPlus", {1785, 3225, 255, 300}, {.caption = "+", .says = "OSC 1 bend range up"}};

  // Oscillator 2.
  Shape ShapeOSC2{form, "ShapeOSC2", {3690, 60, 3600, 3510}, ShapeKind::Panel};
  Label TextOSC2{form, "TextOSC2", {3780, 135, 735, 240}, {.caption = "OSC 2", .style = LabelStyle::Heading}};
  CheckBox CheckSyncOn{form, "CheckSyncOn", {6180, 120, 990, 255}, {.caption = "Sync", .toolTip = "Syncs OSC 2 to OSC 3. (OSC 2 restarts whenever OSC 3 starts a new cycle) Sync is audible if OSC 2 is detuned.", .says = "Sync OSC 2 to OSC 3", .backColor = Colors::DimGreen, .foreColor = Colors::Grey}};
  ComboBox ComboOSC2shape{form, "ComboOSC2shape", {4260, 525, 1620, 315}, {.items = ValueLists::ShapeTexts, .toolTip = "Selects oscillator type (i.e. pulse or saw)", .says = "OSC 2 shape"}};
  ComboBox ComboOSC2oct{form, "ComboOSC2oct", {5940, 525, 1260, 315}, {.items = ValueLists::OctaveTexts, .toolTip = "Sets the octave in (historical) pipelenght. The bigger the value the deeper the octave!", .says = "OSC 2 octave"}};
  Label LabelOSC2semi{form, "LabelOSC2semi", {4230, 900, 600, 195}, {.caption = "semi", .align = LabelAlign::Center}};
  TextBox TextOSC2semi{form, "TextOSC2semi", {4260, 1110, 510, 300}, {.says = "OSC 2 semitone"}};
  HScrollBar HScrollOSC2semi{form, "HScrollOSC2semi", {4800, 1110, 900, 300}, {.min = -12, .max = 12, .largeChange = 1, .says = "OSC 2 semitone bar"}};
  Label LabelOSC2detune{form, "LabelOSC2detune", {5730, 900, 600, 195}, {.caption = "detune", .align = LabelAlign::Center}};
  TextBox TextOSC2detune{form, "TextOSC2detune", {5760, 1110, 510, 300}, {.says = "OSC 2 detune"}};
  HScrollBar HScrollOSC2detune{form, "HScrollOSC2detune", {6300, 1110, 900, 300}, {.min = -64, .max = 63, .largeChange = 10, .says = "OSC 2 detune bar"}};
  Label LabelOSC2keytrack{form, "LabelOSC2keytrack", {4230, 1470, 600, 195}, {.caption = "keytr.", .align = LabelAlign::Center}};
  Image knobOSC2keytrack{form, "knobOSC2keytrack", {4230, 1665, 600, 660}, {.picture = KnobPicture, .says = "OSC 2 keytrack knob"}};
  TextBox TextOSC2keytrack{form, "TextOSC2keytrack", {4275, 2340, 510, 300}, {.toolTip = "Keytrack for notes. 2=100% for regular key pitch", .says = "OSC 2 keytrack"}};
  Label TextPW2{form, "TextPW2", {4830, 1470, 600, 195}, {.caption = "PW", .align = LabelAlign::Center}};
  Image knobOSC2pw{form, "knobOSC2pw", {4830, 1665, 600, 660}, {.picture = KnobPicture, .says = "OSC 2 pulse width or wave knob"}};
  TextBox TextOSC2pw{form, "TextOSC2pw", {4875, 2340, 510, 300}, {.says = "OSC 2 pulse width or wave"}};
  Label TextPWM2{form, "TextPWM2", {5430, 1470, 600, 195}, {.caption = "PWM", .align = LabelAlign::Center}};
  Image knobOSC2pwm{form, "knobOSC2pwm", {5430, 1665, 600, 660}, {.picture = KnobPicture, .says = "OSC 2 PWM or wave modulation amount knob"}};
  TextBox TextOSC2pwm{form, "TextOSC2pwm", {5475, 2340, 510, 300}, {.says = "OSC 2 PWM or wave modulation amount"}};
  Label LabelOSC2fmamt{form, "LabelOSC2fmamt", {6030, 1470, 600, 195}, {.caption = "FM", .align = LabelAlign::Center}};
  Image knobOSC2fmamt{form, "knobOSC2fmamt", {6030, 1665, 600, 660}, {.picture = KnobPicture, .says = "OSC 2 FM amount knob", .enabled = false}};
  TextBox TextOSC2FMamt{form, "TextOSC2FMamt", {6075, 2340, 510, 300}, {.toolTip = "FM amount sets how strong the FM source influences the OSC", .says = "OSC 2 FM amount", .enabled = false}};
  Label LabelOSC2sub{form, "LabelOSC2sub", {6630, 1470, 600, 195}, {.caption = "sub", .align = LabelAlign::Center}};
  Image knobSub2{form, "knobSub2", {6630, 1665, 600, 660}, {.picture = KnobPicture, .toolTip = FinetuningTip, .says = "OSC 2 sub volume knob", .enabled = false}};
  TextBox TextSub2{form, "TextSub2", {6675, 2340, 510, 300}, {.toolTip = "Sub oscillator volume (works only for wavetable Alt1 or Alt2)", .says = "OSC 2 sub volume", .enabled = false}};
  Label TextPWMsrc2{form, "TextPWMsrc2", {4260, 2685, 960, 195}, {.caption = "PWM src"}};
  ComboBox ComboOSC2pwmsource{form, "ComboOSC2pwmsource", {4260, 2880, 1080, 300}, {.items = ValueLists::ModSourceTexts, .toolTip = "Sets the source for pulsewith modulation (you have to set PWM to make this audible)", .says = "OSC 2 PWM source"}};
  Label LabelOSC2fmsrc{form, "LabelOSC2fmsrc", {5385, 2685, 960, 195}, {.caption = "FM src"}};
  ComboBox ComboFMsrc2{form, "ComboFMsrc2", {5385, 2880, 1110, 300}, {.items = ValueLists::FmSourceTexts, .toolTip = "Sets the FM source", .says = "OSC 2 FM source", .enabled = false}};
  Label LabelOSC2subfreq{form, "LabelOSC2subfreq", {6540, 2685, 660, 195}, {.caption = "sub freq"}};
  ComboBox ComboSub2{form, "ComboSub2", {6540, 2880, 660, 300}, {.items = ValueLists::SubFrequencyTexts, .toolTip = "Sub oscillator frequency. (works only for wavetable Alt1 or Alt2)", .says = "OSC 2 sub frequency", .enabled = false}};
  Label LabelOSC2bend{form, "LabelOSC2bend", {4260, 3270, 420, 195}, {.caption = "bend"}};
  CommandButton C_OSC2bendMinus{form, "C_OSC2bendMinus", {4680, 3225, 255, 300}, {.caption = "-", .says = "OSC 2 bend range down"}};
  TextBox TextOSC2bendrange{form, "TextOSC2bendrange", {4950, 3225, 450, 300}, {.toolTip = "Bendrange for bendwheel. (Amount of pitch in octaves)", .says = "OSC 2 bend range"}};
  CommandButton C_OSC2bendPlus{form, "C_OSC2bendPlus", {5415, 3225, 255, 300}, {.caption = "+", .says = "OSC 2 bend range up"}};

  // Oscillator 3.
  Shape ShapeOSC3{form, "ShapeOSC3", {7320, 60, 3600, 3510}, ShapeKind::Panel};
  Label TextOSC3{form, "TextOSC3", {7410, 135, 735, 240}, {.caption = "OSC 3", .style = LabelStyle::Heading}};
  ComboBox ComboOSC3shape{form, "ComboOSC3shape", {7890, 525, 1620, 315}, {.items = std::span(ValueLists::ShapeTexts).first(5), .toolTip = "Selects oscillator type (i.e. pulse or saw)", .says = "OSC 3 shape"}};
  ComboBox ComboOSC3oct{form, "ComboOSC3oct", {9570, 525, 1260, 315}, {.items = ValueLists::OctaveTexts, .toolTip = "Sets the octave in (historical) pipelenght. The bigger the value the deeper the octave!", .says = "OSC 3 octave"}};
  Label LabelOSC3semi{form, "LabelOSC3semi", {7860, 900, 600, 195}, {.caption = "semi", .align = LabelAlign::Center}};
  TextBox TextOSC3semi{form, "TextOSC3semi", {7890, 1110, 510, 300}, {.says = "OSC 3 semitone"}};
  HScrollBar HScrollOSC3semi{form, "HScrollOSC3semi", {8430, 1110, 900, 300}, {.min = -12, .max = 12, .largeChange = 1, .says = "OSC 3 semitone bar"}};
  Label LabelOSC3detune{form, "LabelOSC3detune", {9360, 900, 600, 195}, {.caption = "detune", .align = LabelAlign::Center}};
  TextBox TextOSC3detune{form, "TextOSC3detune", {9390, 1110, 510, 300}, {.says = "OSC 3 detune"}};
  HScrollBar HScrollOSC3detune{form, "HScrollOSC3detune", {9930, 1110, 900, 300}, {.min = -64, .max = 63, .largeChange = 10, .says = "OSC 3 detune bar"}};
  Label LabelOSC3keytrack{form, "LabelOSC3keytrack", {7860, 1470, 600, 195}, {.caption = "keytr.", .align = LabelAlign::Center}};
  Image knobOSC3keytrack{form, "knobOSC3keytrack", {7860, 1665, 600, 660}, {.picture = KnobPicture, .says = "OSC 3 keytrack knob"}};
  TextBox TextOSC3keytrack{form, "TextOSC3keytrack", {7905, 2340, 510, 300}, {.toolTip = "Keytrack for notes. 2=100% for regular key pitch", .says = "OSC 3 keytrack"}};
  Label TextPW3{form, "TextPW3", {8460, 1470, 600, 195}, {.caption = "PW", .align = LabelAlign::Center}};
  Image knobOSC3pw{form, "knobOSC3pw", {8460, 1665, 600, 660}, {.picture = KnobPicture, .says = "OSC 3 pulse width or wave knob"}};
  TextBox TextOSC3pw{form, "TextOSC3pw", {8505, 2340, 510, 300}, {.says = "OSC 3 pulse width or wave"}};
  Label TextPWM3{form, "TextPWM3", {9060, 1470, 600, 195}, {.caption = "PWM", .align = LabelAlign::Center}};
  Image knobOSC3pwm{form, "knobOSC3pwm", {9060, 1665, 600, 660}, {.picture = KnobPicture, .says = "OSC 3 PWM or wave modulation amount knob"}};
  TextBox TextOSC3pwm{form, "TextOSC3pwm", {9105, 2340, 510, 300}, {.says = "OSC 3 PWM or wave modulation amount"}};
  Label LabelOSC3fmamt{form, "LabelOSC3fmamt", {9660, 1470, 600, 195}, {.caption = "FM", .align = LabelAlign::Center}};
  Image knobOSC3fmamt{form, "knobOSC3fmamt", {9660, 1665, 600, 660}, {.picture = KnobPicture, .says = "OSC 3 FM amount knob", .enabled = false}};
  TextBox TextOSC3FMamt{form, "TextOSC3FMamt", {9705, 2340, 510, 300}, {.toolTip = "FM amount sets how strong the FM source influences the OSC", .says = "OSC 3 FM amount", .enabled = false}};
  Label TextPWMsrc3{form, "TextPWMsrc3", {7890, 2685, 960, 195}, {.caption = "PWM src"}};
  ComboBox ComboOSC3pwmsource{form, "ComboOSC3pwmsource", {7890, 2880, 1080, 300}, {.items = ValueLists::ModSourceTexts, .toolTip = "Sets the source for pulsewith modulation (you have to set PWM to make this audible)", .says = "OSC 3 PWM source"}};
  Label LabelOSC3fmsrc{form, "LabelOSC3fmsrc", {9015, 2685, 960, 195}, {.caption = "FM src"}};
  ComboBox ComboFMsrc3{form, "ComboFMsrc3", {9015, 2880, 1110, 300}, {.items = ValueLists::FmSourceTexts, .toolTip = "Sets the FM source", .says = "OSC 3 FM source", .enabled = false}};
  Label LabelOSC3bend{form, "LabelOSC3bend", {7890, 3270, 420, 195}, {.caption = "bend"}};
  CommandButton C_OSC3bendMinus{form, "C_OSC3bendMinus", {8310, 3225, 255, 300}, {.caption = "-", .says = "OSC 3 bend range down"}};
  TextBox TextOSC3bendrange{form, "TextOSC3bendrange", {8580, 3225, 450, 300}, {.toolTip = "Bendrange for bendwheel. (Amount of pitch in octaves)", .says = "OSC 3 bend range"}};
  CommandButton C_OSC3bendPlus{form, "C_OSC3bendPlus", {9045, 3225, 255, 300}, {.caption = "+", .says = "OSC 3 bend range up"}};

  // All oscillators.
  Label LabelOctaves{form, "LabelOctaves", {10575, 4665, 1455, 195}, {.caption = "all octaves", .align = LabelAlign::Center}};
  CommandButton C_octaveminus{form, "C_octaveminus", {10800, 4875, 480, 315}, {.caption = "-", .toolTip = "Decreases all OSCs about one octave.", .says = "All octaves down"}};
  CommandButton C_octaveplus{form, "C_octaveplus", {11325, 4875, 480, 315}, {.caption = "+", .toolTip = "Increases all OSCs about one octave.", .says = "All octaves up"}};
  // clang-format on
};

} // namespace Tessoro
