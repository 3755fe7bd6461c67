#include "surface/OscillatorSection.hpp"

#include "shell/Application.hpp"
#include "surface/ComboFamilies.hpp"
#include "surface/Conversions.hpp"
#include "surface/LitCheckBox.hpp"

#include <array>

namespace Tessoro {

using namespace BoxFamilies;
using namespace ValueLists;

namespace {

constexpr BoxDoubleClick SendsItself(int text) { return {text, true}; }

// What the labels under a shape say; every shape that isn't named here has nothing to set.
struct ShapeCaptions {
  std::string_view width = "-";
  std::string_view modulation = "-";
  std::string_view source = "-";
};

ShapeCaptions CaptionsOf(int shape) {
  constexpr int pulse = 1;
  constexpr int firstWave = 5;
  if (shape == pulse)
    return {"PW", "PWM", "PWM src"};
  if (shape >= firstWave)
    return {"wave", "wtm", "wtm src"};
  return {};
}

constexpr int LowestBend = -24;
constexpr int HighestBend = 24;

void BendMinus_Click(TextBox &box) {
  const double bend = box.App().StrictNumber(box.Text());
  if (bend > LowestBend)
    box.SetText(NumberText(bend - 1));
}

void BendPlus_Click(TextBox &box) {
  const double bend = box.App().StrictNumber(box.Text());
  if (bend < HighestBend)
    box.SetText(NumberText(bend + 1));
}

} // namespace

OscillatorSection::OscillatorSection(Form &owner) : form(owner) {
  // clang-format off
  const BoxRow boxes[] = {
      // box               family               limits   number  bar                 double click
      {TextOSC1semi,      PlainBipolar,        -12,  12,   2,   &HScrollOSC1semi,   {}},
      {TextOSC2semi,      PlainBipolar,        -12,  12,  18,   &HScrollOSC2semi,   {}},
      {TextOSC3semi,      PlainBipolar,        -12,  12,  34,   &HScrollOSC3semi,   {}},
      {TextOSC1detune,    BipolarOnController, -64,  63,  29,   &HScrollOSC1detune, SendsItself(0)},
      {TextOSC2detune,    BipolarOnController, -64,  63,  37,   &HScrollOSC2detune, {}},
      {TextOSC3detune,    BipolarOnController, -64,  63,  44,   &HScrollOSC3detune, {}},
      {TextOSC1keytrack,  PlainBipolar,        -64,  63,   5,   nullptr,            {{0}}},
      {TextOSC2keytrack,  PlainBipolar,        -64,  63,  21,   nullptr,            {{0}}},
      {TextOSC3keytrack,  PlainBipolar,        -64,  63,  37,   nullptr,            {{0}}},
      {TextOSC1bendrange, PlainBipolar,        LowestBend, HighestBend, 4, nullptr, SendsItself(2)},
      {TextOSC2bendrange, PlainBipolar,        LowestBend, HighestBend, 20, nullptr, {}},
      {TextOSC3bendrange, PlainBipolar,        LowestBend, HighestBend, 36, nullptr, {}},
      {TextOSC1FMamt,     PlainUnipolar,         0, 127,   7,   nullptr,            {{0}}},
      {TextOSC2FMamt,     PlainUnipolar,         0, 127,  23,   nullptr,            {{0}}},
      {TextOSC3FMamt,     PlainUnipolar,         0, 127,  39,   nullptr,            {{0}}},
      {TextOSC1pw,        PlainUnipolar,         0, 127,   9,   nullptr,            {{0}}},
      {TextOSC2pw,        PlainUnipolar,         0, 127,  25,   nullptr,            {{0}}},
      {TextOSC3pw,        PlainUnipolar,         0, 127,  41,   nullptr,            {{0}}},
      {TextOSC1pwm,       PlainBipolar,        -64,  63,  11,   nullptr,            {{0}}},
      {TextOSC2pwm,       PlainBipolar,        -64,  63,  27,   nullptr,            {{0}}},
      {TextOSC3pwm,       PlainBipolar,        -64,  63,  43,   nullptr,            {{0}}},
      {TextSub1,          PlainUnipolar,         0, 127,  13,   nullptr,            {{0}}},
      {TextSub2,          PlainUnipolar,         0, 127,  29,   nullptr,            {{0}}},
  };
  const KnobRow knobs[] = {
      // knob             box               limits    double click
      {knobOSC1pw,       TextOSC1pw,         0, 127, 0},
      {knobOSC2pw,       TextOSC2pw,         0, 127, 0},
      {knobOSC3pw,       TextOSC3pw,         0, 127, 0},
      {knobOSC1pwm,      TextOSC1pwm,      -64,  63, 0},
      {knobOSC2pwm,      TextOSC2pwm,      -64,  63, 0},
      {knobOSC3pwm,      TextOSC3pwm,      -64,  63, 0},
      {knobOSC1keytrack, TextOSC1keytrack, -64,  63, 0},
      {knobOSC2keytrack, TextOSC2keytrack, -64,  63, 0},
      {knobOSC3keytrack, TextOSC3keytrack, -64,  63, 0},
      {knobOSC1fmamt,    TextOSC1FMamt,      0, 127, 0},
      {knobOSC2fmamt,    TextOSC2FMamt,      0, 127, 0},
      {knobOSC3fmamt,    TextOSC3FMamt,      0, 127, 0},
      // The boxes run from 0 to 127, so these two stop in the middle of them.
      {knobSub1,         TextSub1,         -64,  63, 0},
      {knobSub2,         TextSub2,         -64,  63, 0},
  };
  const ComboByIndexRow combosByIndex[] = {
      // list       parameter
      {ComboFMsrc1,  6},
      {ComboFMsrc2, 22},
      {ComboFMsrc3, 38},
      {ComboSub1,   12},
      {ComboSub2,   28},
  };
  const ComboByTextRow combosByText[] = {
      // list                road              number  texts            message
      {ComboOSC1oct,       Road::Controller, 27, OctaveValues,    "Wrong octave!"},
      {ComboOSC2oct,       Road::Controller, 35, OctaveValues,    "Wrong octave!"},
      {ComboOSC3oct,       Road::Controller, 42, OctaveValues,    "Wrong octave!"},
      {ComboOSC1pwmsource, Road::Parameter,  10, ModSourceValues, "Wrong PWM source!"},
      {ComboOSC2pwmsource, Road::Parameter,  26, ModSourceValues, "Wrong PWM source!"},
      {ComboOSC3pwmsource, Road::Parameter,  42, ModSourceValues, "Wrong PWM source!"},
  };
  // clang-format on
  AttachBoxes(boxes);
  AttachKnobs(knobs);
  AttachCombos(combosByIndex);
  AttachCombos(combosByText);
  AttachShapeCombos();
  AttachButtons();
}

void OscillatorSection::AttachShapeCombos() {
  struct ShapeRow {
    ComboBox &combo;
    int controller;
    // How many shapes the handler knows, whatever the list offers.
    std::size_t known;
    Label &width;
    Label &modulation;
    Label &source;
  };
  // clang-format off
  const ShapeRow rows[] = {
      {ComboOSC1shape, 31, 7, TextPW1, TextPWM1, TextPWMsrc1},
      {ComboOSC2shape, 39, 7, TextPW2, TextPWM2, TextPWMsrc2},
      {ComboOSC3shape, 46, 5, TextPW3, TextPWM3, TextPWMsrc3},
  };
  // clang-format on
  for (const ShapeRow &row : rows) {
    const ComboByTextRow combo[] = {{row.combo, Road::Controller, row.controller,
                                     std::span(ShapeValues).first(row.known), "Wrong OSC type!",
                                     [row](int shape) {
                                       const ShapeCaptions captions = CaptionsOf(shape);
                                       row.width.SetCaption(captions.width);
                                       row.modulation.SetCaption(captions.modulation);
                                       row.source.SetCaption(captions.source);
                                     }}};
    AttachCombos(combo);
  }
}

void OscillatorSection::AttachButtons() {
  C_OSC1bendMinus.onClick = [this] { BendMinus_Click(TextOSC1bendrange); };
  C_OSC2bendMinus.onClick = [this] { BendMinus_Click(TextOSC2bendrange); };
  C_OSC3bendMinus.onClick = [this] { BendMinus_Click(TextOSC3bendrange); };
  C_OSC1bendPlus.onClick = [this] { BendPlus_Click(TextOSC1bendrange); };
  C_OSC2bendPlus.onClick = [this] { BendPlus_Click(TextOSC2bendrange); };
  C_OSC3bendPlus.onClick = [this] { BendPlus_Click(TextOSC3bendrange); };
  C_octaveplus.onClick = [this] { C_octaveplus_Click(); };
  C_octaveminus.onClick = [this] { C_octaveminus_Click(); };
  CheckSyncOn.onClick = [this] { CheckSyncOn_Click(); };
}

// At the ends of its list each oscillator stops on its own.
void OscillatorSection::C_octaveplus_Click() {
  for (ComboBox *octave : {&ComboOSC1oct, &ComboOSC2oct, &ComboOSC3oct})
    if (octave->ListIndex() > 0)
      octave->SetListIndex(octave->ListIndex() - 1);
}

void OscillatorSection::C_octaveminus_Click() {
  constexpr int lowestOctave = static_cast<int>(OctaveValues.size()) - 1;
  for (ComboBox *octave : {&ComboOSC1oct, &ComboOSC2oct, &ComboOSC3oct})
    if (octave->ListIndex() < lowestOctave)
      octave->SetListIndex(octave->ListIndex() + 1);
}

void OscillatorSection::CheckSyncOn_Click() {
  const bool synced = CheckSyncOn.Value() == 1;
  ShowLit(CheckSyncOn, synced);
  TextOSC3.SetCaption(synced ? "OSC 3 (master)" : "OSC 3");
  TextOSC3.SetWidth(synced ? 1480 : 735);
  TextOSC2.SetCaption(synced ? "OSC 2 (slave)" : "OSC 2");
  TextOSC2.SetWidth(synced ? 1360 : 735);
  form.App().Module1.SendSoundParam(49, synced ? 1 : 0);
}

} // namespace Tessoro
