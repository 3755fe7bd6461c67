#include "surface/FilterSection.hpp"

#include "shell/Application.hpp"
#include "surface/ComboFamilies.hpp"

namespace Tessoro {

using namespace BoxFamilies;
using namespace ValueLists;

namespace {

constexpr std::string_view WrongType = "Wrong filter type - please restart program";

// Takes the wire value of the centre for a text; the box finds it above its limit and stays there.
void ResetToMaximum(TextBox &box) {
  constexpr std::string_view highest = "63";
  constexpr std::string_view center = "64";
  if (box.Text() != highest)
    box.SetText(center);
}

struct FilterReset {
  ComboBox &type;
  std::string_view typeText;
  TextBox &cutoff;
  TextBox &reso;
  TextBox &drive;
  TextBox &keytrack;
  TextBox &envelopeAmount;
  TextBox &envelopeVelocity;
};

void ResetFilter_Click(const FilterReset &filter) {
  filter.type.SetText(filter.typeText);
  filter.cutoff.SetText("127");
  filter.reso.SetText("0");
  filter.drive.SetText("0");
  ResetToMaximum(filter.keytrack);
  ResetToMaximum(filter.envelopeAmount);
  ResetToMaximum(filter.envelopeVelocity);
}

} // namespace

FilterSection::FilterSection(Form &owner) : form(owner) {
  // clang-format off
  const BoxRow boxes[] = {
      // box              family         limits   number  bar      double click
      {TextF1_cutoff,    PlainUnipolar,   0, 127,  78,    nullptr, {{127}}},
      {TextF2_cutoff,    PlainUnipolar,   0, 127,  98,    nullptr, {{127}}},
      {TextF1_reso,      PlainUnipolar,   0, 127,  80,    nullptr, {{0}}},
      {TextF2_reso,      PlainUnipolar,   0, 127, 100,    nullptr, {{0}}},
      {TextF1_drive,     PlainUnipolar,   0, 127,  81,    nullptr, {{0}}},
      {TextF2_drive,     PlainUnipolar,   0, 127, 101,    nullptr, {{0}}},
      {TextF1_keytrack,  PlainBipolar,  -64,  63,  86,    nullptr, {{0}}},
      {TextF2_keytrack,  PlainBipolar,  -64,  63, 106,    nullptr, {{0}}},
      {TextF1_envamt,    PlainBipolar,  -64,  63,  87,    nullptr, {{0}}},
      {TextF2_envamt,    PlainBipolar,  -64,  63, 107,    nullptr, {{0}}},
      {TextF1_envvol,    PlainBipolar,  -64,  63,  88,    nullptr, {{0}}},
      {TextF2_envvel,    PlainBipolar,  -64,  63, 108,    nullptr, {{0}}},
      {TextF1_modamount, PlainBipolar,  -64,  63,  90,    nullptr, {{0}}},
      {TextF2_modamount, PlainBipolar,  -64,  63, 110,    nullptr, {{0}}},
      {TextF1_pan,       PlainBipolar,  -64,  63,  93,    nullptr, {{0}}},
      {TextF2_pan,       PlainBipolar,  -64,  63, 113,    nullptr, {{0}}},
  };
  const KnobRow knobs[] = {
      // knob            box               limits    double click
      {knobF1_cutoff,   TextF1_cutoff,      0, 127, 127},
      {knobF2_cutoff,   TextF2_cutoff,      0, 127, 127},
      {knobF1_reso,     TextF1_reso,        0, 127, 0},
      {knobF2_reso,     TextF2_reso,        0, 127, 0},
      {knobF1_drive,    TextF1_drive,       0, 127, 0},
      {knobF2_drive,    TextF2_drive,       0, 127, {}},
      {knobF1_keytrack, TextF1_keytrack,  -64,  63, 0},
      {knobF2_keytrack, TextF2_keytrack,  -64,  63, {}},
      {knobF1_envamt,   TextF1_envamt,    -64,  63, 0},
      {knobF2_envamt,   TextF2_envamt,    -64,  63, {}},
      {knobF1_envvol,   TextF1_envvol,    -64,  63, 0},
      {knobF2_envvel,   TextF2_envvel,    -64,  63, {}},
      {knobF1_modamt,   TextF1_modamount, -64,  63, 0},
      {knobF2_modamt,   TextF2_modamount, -64,  63, 0},
      {knobF1_pan,      TextF1_pan,       -64,  63, 0},
      {knobF2_pan,      TextF2_pan,       -64,  63, 0},
  };
  const ComboByTextRow types[] = {
      // list        road              number  texts             message
      {ComboFilter1, Road::Controller, 68, FilterTypeValues, WrongType},
      {ComboFilter2, Road::Controller, 79, FilterTypeValues, WrongType},
  };
  const ComboByIndexRow sources[] = {
      // list              parameter
      {ComboF1Modulation,  89},
      {ComboF2Modulation, 109},
  };
  // clang-format on
  AttachBoxes(boxes);
  AttachKnobs(knobs);
  AttachCombos(types);
  AttachCombos(sources);
  AttachRouting();
  AttachResets();
}

void FilterSection::AttachResets() {
  // clang-format off
  const FilterReset filter1{ComboFilter1, "\\_ Lowpass 24 dB", TextF1_cutoff, TextF1_reso, TextF1_drive,
                            TextF1_keytrack, TextF1_envamt, TextF1_envvol};
  const FilterReset filter2{ComboFilter2, "---- Bypass",        TextF2_cutoff, TextF2_reso, TextF2_drive,
                            TextF2_keytrack, TextF2_envamt, TextF2_envvel};
  // clang-format on
  ResetFilter1.onClick = [filter1] { ResetFilter_Click(filter1); };
  ResetFilter2.onClick = [filter2] { ResetFilter_Click(filter2); };
}

void FilterSection::AttachRouting() {
  TextFilterParSer.onChange = [this] { TextFilterParSer_Change(); };
  ImageParallel.onClick = [this] {
    ImageSeriell.SetVisible(true);
    ImageParallel.SetVisible(false);
    TextFilterParSer.SetText("1");
  };
  ImageSeriell.onClick = [this] {
    ImageParallel.SetVisible(true);
    ImageSeriell.SetVisible(false);
    TextFilterParSer.SetText("0");
  };
}

// Any number but 1 is parallel; the empty text fails.
void FilterSection::TextFilterParSer_Change() {
  const Application &app = form.App();
  if (app.StrictNumber(TextFilterParSer.Text()) != 1)
    TextFilterParSer.SetText("0");
  form.App().Module1.SendController(67, TextFilterParSer.Text());
  if (app.StrictNumber(TextFilterParSer.Text()) == 1) {
    ImageSeriell.SetVisible(true);
    ImageParallel.SetVisible(false);
  }
  if (app.StrictNumber(TextFilterParSer.Text()) == 0) {
    ImageSeriell.SetVisible(false);
    ImageParallel.SetVisible(true);
  }
}

} // namespace Tessoro
