#include "editors/F_LFO.hpp"

#include "shell/Application.hpp"
#include "surface/ComboFamilies.hpp"
#include "surface/Conversions.hpp"
#include "surface/KeyCodes.hpp"
#include "surface/LitCheckBox.hpp"

#include <array>
#include <cmath>

namespace Tessoro {

using namespace BoxFamilies;

// The controls of one LFO with the numbers that they send.
struct F_LFO::Column {
  std::size_t lfo;
  ComboBox &shape;
  TextBox &speed;
  TextBox &delay;
  TextBox &fade;
  TextBox &keytrack;
  Image &speedKnob;
  Image &delayKnob;
  Image &fadeKnob;
  Image &keytrackKnob;
  CheckBox &sync;
  CheckBox &clocked;
  ScrollBar &phase;
  Label &phaseLabel;
  int shapeNumber;
  int speedNumber;
  int syncNumber;
  int clockedNumber;
  int phaseNumber;
  int delayNumber;
  int fadeNumber;
  int keytrackNumber;
};

F_LFO::Column F_LFO::ColumnOf(std::size_t lfo) {
  // clang-format off
  const std::array<Column, 3> columns{{
      {1, ComboLFO1shape, TextLFO1speed, TextLFO1delay, TextLFO1fade, TextLFO1keytrack,
       knobLFO1speed, knobLFO1delay, knobLFO1fade, knobLFO1keytrack,
       CheckLFO1sync, CheckLFO1clocked, VScrollLFO1phase, LabelOSC1phase,
       160, 161, 163, 164, 165, 166, 167, 170},
      {2, ComboLFO2shape, TextLFO2speed, TextLFO2delay, TextLFO2fade, TextLFO2keytrack,
       knobLFO2speed, knobLFO2delay, knobLFO2fade, knobLFO2keytrack,
       CheckLFO2sync, CheckLFO2clocked, VScrollLFO2phase, LabelOSC2phase,
       172, 173, 175, 176, 177, 178, 179, 182},
      // The clocked box sends the number of the sync box; no control reaches 188.
      {3, ComboLFO3shape, TextLFO3speed, TextLFO3delay, TextLFO3fade, TextLFO3keytrack,
       knobLFO3speed, knobLFO3delay, knobLFO3fade, knobLFO3keytrack,
       CheckLFO3sync, CheckLFO3clocked, VScrollLFO3phase, LabelOSC3phase,
       184, 185, 187, 187, 189, 190, 191, 194},
  }};
  // clang-format on
  return columns.at(lfo - 1);
}

F_LFO::F_LFO(Application &app)
    : Form(app, "F_LFO", {.caption = "LFO settings", .width = 9390, .height = 3690}) {
  for (std::size_t lfo = 1; lfo <= 3; ++lfo)
    AttachColumn(ColumnOf(lfo), App().Module1);
  Command1.onClick = [this] { Unload(); };
}

void F_LFO::AttachColumn(const Column &column, Module1 &globals) {
  const std::size_t n = column.lfo;
  // clang-format off
  const BoxRow boxes[] = {
      // box              family         limits   number               stored as
      {column.speed,    PlainUnipolar,   0, 127, column.speedNumber,    nullptr, {}, StoreWire(PlainUnipolar, globals.LfoSpeed[n])},
      {column.delay,    PlainUnipolar,   0, 127, column.delayNumber,    nullptr, {}, StoreWire(PlainUnipolar, globals.LfoDelay[n])},
      {column.fade,     PlainBipolar,  -64,  63, column.fadeNumber,     nullptr, {}, StoreWire(PlainBipolar, globals.LfoFade[n])},
      {column.keytrack, PlainBipolar,  -64,  63, column.keytrackNumber, nullptr, {}, StoreWire(PlainBipolar, globals.LfoKeytrack[n])},
  };
  const KnobRow knobs[] = {
      // knob                box            limits    double click
      {column.speedKnob,    column.speed,      0, 127, {}},
      {column.delayKnob,    column.delay,      0, 127, {}},
      {column.fadeKnob,     column.fade,     -64,  63, {}},
      {column.keytrackKnob, column.keytrack, -64,  63, {}},
  };
  const LitCheckBoxRow checks[] = {
      // box            number                store
      {column.sync,    column.syncNumber,    [&shadow = globals.LfoSync[n]](int value) { shadow = static_cast<std::int16_t>(value); }},
      {column.clocked, column.clockedNumber, [&shadow = globals.LfoClocked[n]](int value) { shadow = static_cast<std::int16_t>(value); }},
  };
  const ComboByIndexRow combos[] = {
      {column.shape, column.shapeNumber, [&shadow = globals.LfoShape[n]](int index) { shadow = IntegerText(index); }},
  };
  // clang-format on
  AttachBoxes(boxes);
  AttachKnobs(knobs);
  AttachLitCheckBoxes(checks);
  AttachCombos(combos);
  column.phase.onChange = [column] { Phase_Change(column); };
}

// Sends the phase and shows it in degrees. It writes no shadow, so a phase set here isn't kept.
void F_LFO::Phase_Change(const Column &column) {
  constexpr double degreesPerStep = 2.8571;
  const int phase = column.phase.Value();
  if (phase == 0) {
    column.phaseLabel.SetCaption("Startphase: free");
  } else {
    const std::string digits = "000" + NumberText(std::floor((phase - 1) * degreesPerStep + 0.4));
    column.phaseLabel.SetCaption("Startphase: " + digits.substr(digits.size() - 3) + "\xB0");
  }
  column.phase.App().Module1.SendSoundParam(column.phaseNumber, static_cast<std::int16_t>(phase));
}

void F_LFO::Form_Load() {
  App().Module1.ShiftHeld = 0;
  for (std::size_t lfo = 1; lfo <= 3; ++lfo)
    LoadColumn(ColumnOf(lfo), App().Module1);
}

void F_LFO::LoadColumn(const Column &column, const Module1 &globals) {
  constexpr int center = 64;
  const std::size_t n = column.lfo;
  column.shape.SetListIndex(column.shape.App().StrictInteger(globals.LfoShape[n]));
  column.speed.SetText(IntegerText(globals.LfoSpeed[n]));
  column.delay.SetText(IntegerText(globals.LfoDelay[n]));
  column.fade.SetText(IntegerText(globals.LfoFade[n] - center));
  column.keytrack.SetText(IntegerText(globals.LfoKeytrack[n] - center));
  column.sync.SetValue(globals.LfoSync[n]);
  column.clocked.SetValue(globals.LfoClocked[n]);
  column.phase.SetValue(globals.LfoPhase[n]);
}

void F_LFO::Form_KeyDown(int keyCode, int /*shift*/) {
  if (keyCode == KeyCodes::Shift)
    App().Module1.ShiftHeld = -1;
}

void F_LFO::Form_KeyUp(int keyCode, int /*shift*/) {
  if (keyCode == KeyCodes::Shift)
    App().Module1.ShiftHeld = 0;
}

} // namespace Tessoro
