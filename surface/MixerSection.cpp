#include "surface/MixerSection.hpp"

#include "shell/Application.hpp"
#include "surface/BoxFamilies.hpp"

namespace Tessoro {

using namespace BoxFamilies;

namespace {

struct SourceRow {
  ScrollBar &volume;
  CheckBox &mute;
  Road road;
  // Of the parameter or of the controller, as the road says.
  int number;
};

void SendVolume(const SourceRow &row, int volume) {
  Module1 &globals = row.volume.App().Module1;
  if (row.road == Road::Controller)
    globals.SendController(row.number, volume);
  else
    globals.SendSoundParam(row.number, static_cast<std::int16_t>(volume));
}

// Touching the volume always ends the mute, which then sends once more.
void Volume_Change(const SourceRow &row) {
  SendVolume(row, row.volume.Value());
  row.mute.SetValue(0);
}

void Mute_Click(const SourceRow &row) {
  const bool muted = row.mute.Value() == 1;
  row.mute.SetBackColor(muted ? Colors::Red : Colors::LitGreen);
  SendVolume(row, muted ? 0 : row.volume.Value());
}

} // namespace

MixerSection::MixerSection(Form &owner) : form(owner) {
  // clang-format off
  const SourceRow sources[] = {
      // volume          mute            road              number
      {VScrollOSC1vol,  CheckOSC1mute,  Road::Controller, 52},
      {VScrollOSC2vol,  CheckOSC2mute,  Road::Controller, 56},
      {VScrollOSC3vol,  CheckOSC3mute,  Road::Controller, 58},
      {VScrollNoiseVol, CheckNoisemute, Road::Parameter,  67},
  };
  const BoxRow balances[] = {
      // box              family               limits  number  bar
      {TextOSC1fbalance,  BipolarOnController, -64, 63,  53,   &HScrollOSC1fbalance},
      {TextOSC2fbalance,  BipolarOnController, -64, 63,  57,   &HScrollOSC2fbalance},
      {TextOSC3fbalance,  BipolarOnController, -64, 63,  59,   &HScrollOSC3fbalance},
      {TextNoisefbalance, PlainBipolar,        -64, 63,  68,   &HScrollNoisefbalance},
  };
  // clang-format on
  for (const SourceRow &row : sources) {
    row.volume.onChange = [row] { Volume_Change(row); };
    row.mute.onClick = [row] { Mute_Click(row); };
  }
  AttachBoxes(balances);
}

} // namespace Tessoro
