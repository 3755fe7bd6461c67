#include "editors/F_General.hpp"

#include "shell/Application.hpp"
#include "surface/ComboFamilies.hpp"
#include "surface/Conversions.hpp"
#include "surface/LitCheckBox.hpp"

namespace Tessoro {

using namespace BoxFamilies;

namespace {

constexpr int HighestValue = 127;
// Number 58 holds the unisono mode, times this, and the mono flag.
constexpr int UnisonoStep = 16;
constexpr int AllocationNumber = 58;

} // namespace

F_General::F_General(Application &app)
    : Form(app, "F_General", {.caption = "General sound settings", .width = 7950, .height = 3030}) {
  AttachFamilies();
  CheckPolyOn.onClick = [this] { CheckPolyOn_Click(); };
  TextGlideRate.onChange = [this] { TextGlideRate_Change(); };
  TextGlideRate.onDblClick = [this] { TextGlideRate.SetText("0"); };
  Command1.onClick = [this] { Unload(); };
}

void F_General::AttachFamilies() {
  Module1 &globals = App().Module1;
  // clang-format off
  const BoxRow boxes[] = {
      // box                family         limits   number  bar                 double click  store
      {TextUnisonoDetune, PlainUnipolar,    0, 127,  59,   nullptr,            {{0}},        StoreWire(PlainUnipolar, globals.UnisonoDetune)},
      {TextRingmodLevel,  PlainUnipolar,    0, 127,  71,   nullptr,            {{0}},        [&globals](const TextBox &box) { globals.RingmodLevel.SetText(box.Text(), '.'); }},
      {TextRingmodBal,    PlainBipolar,   -64,  63,  72,   &HScrollRingmodBal, {},           [&globals](const TextBox &box) { globals.RingmodBalance = box.Text(); }},
  };
  const KnobRow knobs[] = {
      // knob              box                limits  double click  fine steps raise
      {knobGliderate,     TextGlideRate,     0, 127, 0,           false},
      {knobRingmodLevel,  TextRingmodLevel,  0, 127, 0,           false},
      {knobUnisonoDetune, TextUnisonoDetune, 0, 127, 0},
  };
  const LitCheckBoxRow checks[] = {
      {CheckGlideOn, 53, [&globals](int value) { globals.GlideOn.SetNumber(value == 1 ? 1 : 0); }},
  };
  const ComboByIndexRow combos[] = {
      {ComboGlideMode, 56, [&globals](int index) { globals.GlideMode.SetNumber(index); }},
  };
  // clang-format on
  AttachBoxes(boxes);
  AttachKnobs(knobs);
  AttachLitCheckBoxes(checks);
  AttachCombos(combos);
  ComboUnisonoMode.onChange = [this] { ComboUnisonoMode_Click(); };
  ComboUnisonoMode.onClick = ComboUnisonoMode.onChange;
}

void F_General::Form_Load() {
  const Module1 &globals = App().Module1;
  const char sign = App().System().decimalSign;
  CheckGlideOn.SetValue(RoundInteger(globals.GlideOn.Number(sign)));
  ComboGlideMode.SetListIndex(RoundInteger(globals.GlideMode.Number(sign)));
  TextGlideRate.SetText(IntegerText(globals.GlideRate));
  CheckPolyOn.SetValue(RoundInteger(globals.MonoOn.Number(sign)));
  TextUnisonoDetune.SetText(IntegerText(globals.UnisonoDetune));
  ComboUnisonoMode.SetListIndex(RoundInteger(globals.UnisonoMode.Number(sign)));
  TextRingmodBal.SetText(globals.RingmodBalance);
  TextRingmodLevel.SetText(globals.RingmodLevel.Text());
}

// Takes the list's half from the shadow; the list takes this box's half from the control.
void F_General::CheckPolyOn_Click() {
  Module1 &globals = App().Module1;
  const bool mono = CheckPolyOn.Value() == 1;
  CheckPolyOn.SetBackColor(mono ? MonoColor : PolyColor);
  CheckPolyOn.SetForeColor(mono ? Colors::Black : Colors::Grey);
  CheckPolyOn.SetCaption(mono ? "Mono" : "Poly");
  globals.MonoOn.SetNumber(mono ? 1 : 0);
  const double unisono = globals.UnisonoMode.Number(App().System().decimalSign);
  globals.SendSoundParam(AllocationNumber, RoundInteger(UnisonoStep * unisono + (mono ? 1 : 0)));
}

void F_General::ComboUnisonoMode_Click() {
  Module1 &globals = App().Module1;
  const int mode = ComboUnisonoMode.ListIndex();
  const int mono = CheckPolyOn.Value() == 1 ? 1 : 0;
  globals.SendSoundParam(AllocationNumber, static_cast<std::int16_t>(UnisonoStep * mode + mono));
  globals.UnisonoMode.SetNumber(mode);
}

// No check for empty text here, and a rate that is too high falls to 0.
void F_General::TextGlideRate_Change() {
  if (NumericPrefix(TextGlideRate.Text()) == 0)
    TextGlideRate.SetText("0");
  if (NumericPrefix(TextGlideRate.Text()) < 0 || NumericPrefix(TextGlideRate.Text()) > HighestValue)
    TextGlideRate.SetText("0");
  App().Module1.SendSoundParam(57, App().StrictInteger(TextGlideRate.Text()));
  App().Module1.GlideRate = App().StrictInteger(TextGlideRate.Text());
}

} // namespace Tessoro
