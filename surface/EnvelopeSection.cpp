#include "surface/EnvelopeSection.hpp"

#include "shell/Application.hpp"
#include "surface/BoxFamilies.hpp"
#include "surface/Conversions.hpp"

#include <algorithm>

namespace Tessoro {

struct EnvelopeSection::Panel {
  Line &attack;
  Line &decay;
  Line &sustain;
  Line &release;
  const float &attackBase;
  const float &decayBase;
  const float &sustainBase;
  const std::int16_t &releaseBase;
};

struct EnvelopeSection::LeftBoxRow {
  TextBox &box;
  Panel panel;
  Stage stage;
  Shadow &shadow;
  Road road;
  // Of the parameter or of the controller, as the road says.
  int number;
};

namespace {

constexpr int HighestValue = 127;

// First the two digits that a preset's name begins with, then what it stands for.
struct Preset {
  int number;
  int attack;
  int decay;
  int sustain;
  int release;
};

// clang-format off
constexpr std::array<Preset, 8> AmpPresets{{
    // number  attack  decay  sustain  release
    {1,   5, 35,   0, 35},
    {2,   9, 50,   0, 45},
    {3,  15,  0, 127, 45},
    {4,  20, 55, 110, 48},
    {5,  45, 60, 110, 55},
    {6,  70, 55, 120, 70},
    {7,  83, 55, 127, 82},
    {0,  10,  0, 127, 40}, // any other text
}};

constexpr std::array<Preset, 8> FilterPresets{{
    {1,   5, 35,   0, 35},
    {2,   9, 50,   0, 45},
    {3,  12, 58,  90, 48},
    {4,  15, 60,  80, 48},
    {5,  35, 55,  85, 55},
    {6,  70, 55,  90, 75},
    {7,  75, 60,  90, 80},
    {0,   3,  0, 127, 50},
}};
// clang-format on

struct EnvelopeBoxes {
  TextBox &attack;
  TextBox &decay;
  TextBox &sustain;
  TextBox &release;
};

void Preset_Click(const ComboBox &combo, const std::array<Preset, 8> &presets,
                  const EnvelopeBoxes &boxes) {
  const double number = NumericPrefix(std::string_view(combo.Text()).substr(0, 2));
  const auto *found = std::find_if(presets.begin(), presets.end() - 1,
                                   [&](const Preset &preset) { return preset.number == number; });
  boxes.attack.SetText(IntegerText(found->attack));
  boxes.decay.SetText(IntegerText(found->decay));
  boxes.sustain.SetText(IntegerText(found->sustain));
  boxes.release.SetText(IntegerText(found->release));
}

} // namespace

EnvelopeSection::EnvelopeSection(Form &owner) : form(owner) {
  // clang-format off
  const KnobRow knobs[] = {
      // knob          box         limits  double click
      {knobEnvAmp1,  TextEnv1T1, 0, 127, 0},
      {knobEnvAmp2,  TextEnv1T2, 0, 127, 0},
      {knobEnvAmp3,  TextEnv1L2, 0, 127, 0},
      {knobEnvAmp4,  TextEnv1T3, 0, 127, 0},
      {knobEnvFilt1, TextEnv2T1, 0, 127, 0},
      {knobEnvFilt2, TextEnv2T2, 0, 127, 0},
      {knobEnvFilt3, TextEnv2L2, 0, 127, 0},
      {knobEnvFilt4, TextEnv2T3, 0, 127, 0},
      {knobEnv3_A,   TextEnv3_A, 0, 127, 0},
      {knobEnv3_D,   TextEnv3_D, 0, 127, 0},
      {knobEnv3_S,   TextEnv3_S, 0, 127, 0},
      {knobEnv3_R,   TextEnv3_R, 0, 127, 0},
  };
  // clang-format on
  AttachKnobs(knobs);
  AttachLeftBoxes();
  AttachThirdPanel();
  AttachPresets();
}

void EnvelopeSection::AttachLeftBoxes() {
  const Panel amp{LinieEnv1T1,     LinieEnv1T2,     LinieEnv1L2,     LinieEnv1T3,
                  LineBaseEnv1T1X, LineBaseEnv1T2X, LineBaseEnv1L2Y, LineBaseEnv1T3X};
  const Panel filter{LinieEnv2T1,     LinieEnv2T2,     LinieEnv2L2,     LinieEnv2T3,
                     LineBaseEnv2T1X, LineBaseEnv2T2X, LineBaseEnv2L2Y, LineBaseEnv2T3X};
  EnvelopeShadow &ampShadow = form.App().Module1.Env1Shadow;
  EnvelopeShadow &filterShadow = form.App().Module1.Env2Shadow;
  // clang-format off
  const LeftBoxRow rows[] = {
      // box         panel   stage           shadow                road              number
      {TextEnv1T1, amp,    Stage::Attack,  ampShadow.attack,     Road::Controller, 101},
      {TextEnv1T2, amp,    Stage::Decay,   ampShadow.decay,      Road::Controller, 102},
      {TextEnv1L2, amp,    Stage::Sustain, ampShadow.sustain,    Road::Controller, 103},
      {TextEnv1T3, amp,    Stage::Release, ampShadow.release,    Road::Controller, 106},
      {TextEnv2T1, filter, Stage::Attack,  filterShadow.attack,  Road::Controller,  95},
      {TextEnv2T2, filter, Stage::Decay,   filterShadow.decay,   Road::Controller,  96},
      // The synthesizer has no controller for this one.
      {TextEnv2L2, filter, Stage::Sustain, filterShadow.sustain, Road::Parameter,  202},
      {TextEnv2T3, filter, Stage::Release, filterShadow.release, Road::Controller, 100},
  };
  // clang-format on
  for (const LeftBoxRow &row : rows) {
    row.box.onChange = [row] { LeftBox_Change(row); };
    row.box.onDblClick = [row] { row.box.SetText("0"); };
  }
}

// An empty text counts as 0 here.
void EnvelopeSection::LeftBox_Change(const LeftBoxRow &row) {
  TextBox &box = row.box;
  if (NumericPrefix(box.Text()) <= 0)
    box.SetText("0");
  if (NumericPrefix(box.Text()) > HighestValue)
    box.SetText(IntegerText(HighestValue));
  row.shadow.SetNumber(NumericPrefix(box.Text()));
  MoveLines(row.panel, row.stage, NumericPrefix(box.Text()));
  Module1 &globals = box.App().Module1;
  if (row.road == Road::Controller)
    globals.SendController(row.number, box.Text());
  else
    globals.SendSoundParam(row.number, box.App().StrictInteger(box.Text()));
}

void EnvelopeSection::AttachThirdPanel() {
  TextEnv3_A.onChange = [this] { ThirdBox_Change(TextEnv3_A, Stage::Attack); };
  TextEnv3_D.onChange = [this] { ThirdBox_Change(TextEnv3_D, Stage::Decay); };
  TextEnv3_S.onChange = [this] { ThirdBox_Change(TextEnv3_S, Stage::Sustain); };
  TextEnv3_R.onChange = [this] { ThirdBox_Change(TextEnv3_R, Stage::Release); };
  C_Envelope34.onClick = [this] { C_Envelope34_Click(); };
}

bool EnvelopeSection::ShowsEnvelope3() const {
  return form.App().StrictNumber(C_Envelope34.Caption()) == 3;
}

void EnvelopeSection::ThirdBox_Change(TextBox &box, Stage stage) {
  Application &app = form.App();
  Module1 &globals = app.Module1;
  const bool third = ShowsEnvelope3();
  if (box.Text().empty())
    return;
  if (NumericPrefix(box.Text()) == 0)
    box.SetText("0");
  if (NumericPrefix(box.Text()) <= 0)
    box.SetText("0");
  if (NumericPrefix(box.Text()) > HighestValue)
    box.SetText(IntegerText(HighestValue));

  struct StageRow {
    Shadow *shadow3;
    Shadow *shadow4;
    int number3;
    int number4;
  };
  // clang-format off
  const StageRow rows[] = {
      // shadows of 3 and 4                          numbers
      {&globals.Env3Attack,  &globals.Env4Attack,  223, 235},
      {&globals.Env3Decay,   &globals.Env4Decay,   225, 237},
      {&globals.Env3Sustain, &globals.Env4Sustain, 226, 238},
      {&globals.Env3Release, &globals.Env4Release, 229, 241},
  };
  // clang-format on
  const StageRow &row = rows[static_cast<std::size_t>(stage)];
  Shadow &shadow = third ? *row.shadow3 : *row.shadow4;
  shadow.SetText(box.Text(), app.System().decimalSign);
  const Panel panel3{LinieEnv3_A,    LinieEnv3_D,    LinieEnv3_S,    LinieEnv3_R,
                     LineBaseEnv3AX, LineBaseEnv3DX, LineBaseEnv3SY, LineBaseEnv3RX};
  const Panel panel4{LinieEnv3_A,    LinieEnv3_D,    LinieEnv3_S,    LinieEnv3_R,
                     LineBaseEnv4AX, LineBaseEnv4DX, LineBaseEnv4SY, LineBaseEnv4RX};
  MoveLines(third ? panel3 : panel4, stage, shadow.Number(app.System().decimalSign));
  globals.SendSoundParam(third ? row.number3 : row.number4, app.StrictInteger(box.Text()));
}

// The caption goes first, so that each box that changes works on the envelope now shown.
void EnvelopeSection::C_Envelope34_Click() {
  const Module1 &globals = form.App().Module1;
  if (!ShowsEnvelope3()) {
    C_Envelope34.SetCaption("3");
    TextEnv3_A.SetText(globals.Env3Attack.Text());
    TextEnv3_D.SetText(globals.Env3Decay.Text());
    TextEnv3_S.SetText(globals.Env3Sustain.Text());
    TextEnv3_R.SetText(globals.Env3Release.Text());
  } else {
    C_Envelope34.SetCaption("4");
    TextEnv3_A.SetText(globals.Env4Attack.Text());
    TextEnv3_D.SetText(globals.Env4Decay.Text());
    TextEnv3_S.SetText(globals.Env4Sustain.Text());
    TextEnv3_R.SetText(globals.Env4Release.Text());
  }
}

// These lists answer to Click alone.
void EnvelopeSection::AttachPresets() {
  ComboEnv1.onClick = [this] {
    Preset_Click(ComboEnv1, AmpPresets, {TextEnv1T1, TextEnv1T2, TextEnv1L2, TextEnv1T3});
  };
  ComboEnvFilter.onClick = [this] {
    Preset_Click(ComboEnvFilter, FilterPresets, {TextEnv2T1, TextEnv2T2, TextEnv2L2, TextEnv2T3});
  };
}

// Attack pulls away to the left of the fixed peak, decay and release run to the right.
void EnvelopeSection::MoveLines(const Panel &panel, Stage stage, double value) {
  const double time = 6 * value;
  const auto decayEnd = static_cast<float>(panel.decayBase + time);
  const auto height = static_cast<float>(panel.sustainBase + 200 - 3 * value);
  switch (stage) {
  case Stage::Attack:
    panel.attack.SetX1(static_cast<float>(panel.attackBase - time));
    break;
  case Stage::Decay:
    panel.decay.SetX2(decayEnd);
    panel.sustain.SetX1(decayEnd);
    break;
  case Stage::Sustain:
    panel.sustain.SetY1(height);
    panel.sustain.SetY2(height);
    panel.decay.SetY2(height);
    panel.release.SetY1(height);
    break;
  case Stage::Release:
    panel.release.SetX2(static_cast<float>(panel.releaseBase + time));
    break;
  }
}

void EnvelopeSection::ReadLineBases() {
  LineBaseEnv1T1X = LinieEnv1T1.Ends().x2;
  LineBaseEnv1T2X = LinieEnv1T2.Ends().x1;
  LineBaseEnv1L2Y = LinieEnv1L2.Ends().y1;
  LineBaseEnv1T3X = RoundInteger(LinieEnv1T3.Ends().x1);
  LineBaseEnv2T1X = LinieEnv2T1.Ends().x2;
  LineBaseEnv2T2X = LinieEnv2T2.Ends().x1;
  LineBaseEnv2L2Y = LinieEnv2L2.Ends().y1;
  LineBaseEnv2T3X = RoundInteger(LinieEnv2T3.Ends().x1);
  LineBaseEnv3AX = LineBaseEnv4AX = LinieEnv3_A.Ends().x2;
  LineBaseEnv3DX = LineBaseEnv4DX = LinieEnv3_D.Ends().x1;
  LineBaseEnv3SY = LineBaseEnv4SY = LinieEnv3_S.Ends().y1;
  LineBaseEnv3RX = LineBaseEnv4RX = RoundInteger(LinieEnv3_R.Ends().x1);
}

} // namespace Tessoro
