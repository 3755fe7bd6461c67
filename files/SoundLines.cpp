#include "files/SoundLines.hpp"

#include "shell/Application.hpp"

namespace Tessoro {

namespace {

using enum LoadRule;

void Append(std::vector<SoundLine> &lines, std::initializer_list<SoundLine> more) {
  lines.insert(lines.end(), more.begin(), more.end());
}

void AppendReserved(std::vector<SoundLine> &lines, std::size_t count) {
  lines.resize(lines.size() + count);
}

// clang-format off
std::vector<SoundLine> PanelLines(Application &app) {
  F_Tessoro &main = app.F_Tessoro;
  Module1 &globals = app.Module1;
  return {
      // target, rule, parameter sent, offset
      {},
      {&globals.SoundName, Name},
      {&globals.SoundCategory, Category},
      // Oscillator 1.
      {&main.ComboOSC1shape, Strict},
      {&main.ComboOSC1oct, Strict},
      {&main.TextOSC1semi, Field},
      {&main.TextOSC1detune, Field},
      {&main.TextOSC1pw, Field},
      {&main.TextOSC1pwm, Prefix},
      {&main.ComboOSC1pwmsource, Strict},
      {&main.ComboFMsrc1, Strict},
      {&main.TextOSC1FMamt, Field},
      {&main.TextOSC1keytrack, Field},
      {&main.TextOSC1bendrange, Field},
      {&main.ComboSub1, Strict},
      {&main.VScrollOSC1vol, Strict},
      {&main.CheckOSC1mute, Strict},
      {&main.TextOSC1fbalance, Field},
      // Oscillator 2.
      {&main.ComboOSC2shape, Strict},
      {&main.ComboOSC2oct, Strict},
      {&main.TextOSC2semi, Field},
      {&main.TextOSC2detune, Field},
      {&main.TextOSC2pw, Field},
      {&main.TextOSC2pwm, Prefix},
      {&main.ComboOSC2pwmsource, Strict},
      {&main.ComboFMsrc2, Strict},
      {&main.TextOSC2FMamt, Field},
      {&main.TextOSC2keytrack, Field},
      {&main.TextOSC2bendrange, Field},
      {&main.ComboSub2, Strict},
      {&main.VScrollOSC2vol, Strict},
      {&main.CheckOSC2mute, Strict},
      {&main.TextOSC2fbalance, Field},
      // Oscillator 3.
      {&main.ComboOSC3shape, Strict},
      {&main.ComboOSC3oct, Strict},
      {&main.TextOSC3semi, Field},
      {&main.TextOSC3detune, Field},
      {&main.TextOSC3pw, Field},
      {&main.TextOSC3pwm, Prefix},
      {&main.ComboOSC3pwmsource, Strict},
      {&main.ComboFMsrc3, Strict},
      {&main.TextOSC3FMamt, Field},
      {&main.TextOSC3keytrack, Field},
      {&main.TextOSC3bendrange, Field},
      {},
      {&main.VScrollOSC3vol, Strict},
      {&main.CheckOSC3mute, Strict},
      {&main.TextOSC3fbalance, Field},
      // Noise and sub oscillators.
      {&main.VScrollNoiseVol, Strict},
      {&main.CheckNoisemute, Strict},
      {&main.TextNoisefbalance, Field},
      {&main.TextSub1, Field},
      {&main.TextSub2, Field},
      // General: stored and not sent.
      {&globals.UnisonoMode, ShadowPrefix},
      {&globals.UnisonoDetune, ShadowStrict},
      {&main.CheckSyncOn, StrictFlag},
      {&globals.MonoOn, ShadowFlag},
      {&globals.GlideOn, ShadowText},
      {&globals.GlideMode, ShadowGlideMode},
      {&globals.GlideRate, ShadowStrict},
      {&globals.RingmodLevel, ShadowText},
      {&globals.RingmodBalance, ShadowText},
      // Pitch modulation and amplifier.
      {&globals.PitchModSource, ShadowTextSendPrefix, 50},
      {&globals.PitchModAmount, ShadowStrictSendPrefix, PitchModAmountNumber},
      {},
      {&main.TextAmpVolume, Field},
      {&main.TextAmpVelocity, Field},
      {&globals.AmpModSource, ShadowTextSendPrefix, 123},
      {&globals.AmpModAmount, ShadowStrictSendPrefix, 124, 64},
      {},
      // Filter 1.
      {&main.ComboFilter1, Strict},
      {&main.TextF1_cutoff, Field},
      {&main.TextF1_reso, Field},
      {&main.TextF1_drive, Field},
      {&main.TextF1_keytrack, Field},
      {&main.TextF1_envamt, Field},
      {&main.TextF1_envvol, Field},
      {&main.TextF1_pan, Field},
      {&main.TextF1_modamount, Field},
      {&main.ComboF1Modulation, Strict},
      {},
      // Filter 2.
      {&main.ComboFilter2, Strict},
      {&main.TextF2_cutoff, Field},
      {&main.TextF2_reso, Field},
      {&main.TextF2_drive, Field},
      {&main.TextF2_keytrack, Field},
      {&main.TextF2_envamt, Field},
      {&main.TextF2_envvel, Field},
      {&main.TextFilterParSer, Field},
      {&main.TextF2_pan, Field},
      {&main.TextF2_modamount, Field},
      {&main.ComboF2Modulation, Strict},
      {},
  };
}

void AppendLfos(std::vector<SoundLine> &lines, Module1 &globals) {
  for (std::size_t n = 1; n <= 3; ++n) {
    const int base = 160 + 12 * (static_cast<int>(n) - 1);
    Append(lines, {
        {&globals.LfoShape[n],    ShapeSendPrefix,        base},
        {&globals.LfoSpeed[n],    ShadowStrictSendPrefix, base + 1},
        {&globals.LfoDelay[n],    ShadowStrictSendPrefix, base + 6},
        {&globals.LfoFade[n],     ShadowStrictSendPrefix, base + 7},
        {&globals.LfoKeytrack[n], ShadowStrictSendPrefix, base + 10},
        {&globals.LfoSync[n],     ShadowStrictSendPrefix, base + 3},
        {&globals.LfoClocked[n],  ShadowStrictSendPrefix, base + 4},
        {&globals.LfoPhase[n],    ShadowStrictSendPrefix, base + 5},
    });
  }
}

SoundLine EnvelopeLine(Shadow &shadow, int number, TextBox &box, int envelope) {
  return {&shadow, Envelope, number, 0, false, &box, envelope};
}

void AppendEnvelopes(std::vector<SoundLine> &lines, F_Tessoro &main, Module1 &globals) {
  Append(lines, {
      {&main.TextEnv1T1, Field},
      {&main.TextEnv1T2, Field},
      {&main.TextEnv1L2, Field},
      {&main.TextEnv1T3, Field},
  });
  AppendReserved(lines, 5);
  Append(lines, {
      {&main.TextEnv2T1, Field},
      {&main.TextEnv2T2, Field},
      {&main.TextEnv2L2, Field},
      {&main.TextEnv2T3, Field},
  });
  AppendReserved(lines, 4);
  Append(lines, {
      EnvelopeLine(globals.Env3Attack,  223, main.TextEnv3_A, 3),
      EnvelopeLine(globals.Env3Decay,   225, main.TextEnv3_D, 3),
      EnvelopeLine(globals.Env3Sustain, 226, main.TextEnv3_S, 3),
      EnvelopeLine(globals.Env3Release, 229, main.TextEnv3_R, 3),
  });
  AppendReserved(lines, 4);
  Append(lines, {
      EnvelopeLine(globals.Env4Attack,  235, main.TextEnv3_A, 4),
      EnvelopeLine(globals.Env4Decay,   237, main.TextEnv3_D, 4),
      EnvelopeLine(globals.Env4Sustain, 238, main.TextEnv3_S, 4),
      EnvelopeLine(globals.Env4Release, 241, main.TextEnv3_R, 4),
  });
  AppendReserved(lines, 4);
}

void AppendModulation(std::vector<SoundLine> &lines, Module1 &globals) {
  int number = 262;
  for (std::size_t bank = 1; bank <= 2; ++bank)
    for (std::size_t slot = 1; slot <= 8; ++slot, number += 3)
      Append(lines, {
          {&globals.ModSlotA[bank][slot],      OwnSendPrefix,          number},
          {&globals.ModSlotB[bank][slot],      OwnSendPrefix,          number + 1},
          {&globals.ModSlotAmount[bank][slot], ShadowStrictSendPrefix, number + 2},
      });
  const auto appendModifier = [&](std::size_t n, int first, int second, int third, int fourth) {
    Append(lines, {
        {&globals.ModifierA[n], OwnSendPrefix,          first},
        {&globals.ModifierB[n], OwnSendPrefix,          second},
        {&globals.ModifierC[n], OwnSendPrefix,          third},
        {&globals.ModifierD[n], ShadowStrictSendPrefix, fourth},
    });
  };
  appendModifier(1, 245, 246, 247, 248);
  appendModifier(2, 249, 250, 251, 252);
  appendModifier(3, 253, 254, 255, 257);
  appendModifier(4, 258, 259, 260, 261);
}

void AppendArpeggiator(std::vector<SoundLine> &lines, Module1 &globals) {
  Append(lines, {
      {&globals.ArpParam[312], OwnSendStrict, 312},
      {&globals.ArpParam[313], OwnSendStrict, 313},
      {&globals.ArpParam[314], OwnSendStrict, 314},
      {&globals.ArpParam[315], OwnSendStrict, 315, -3},
      {&globals.ArpParam[317], OwnSendStrict, 317},
      {&globals.ArpParam[318], OwnSendStrict, 318},
      {&globals.ArpParam[319], StrictSend,    319},
      {&globals.ArpParam[316], OwnSendStrict, 316, -1},
      {&globals.ArpParam[320], OwnSendStrict, 320},
      {&globals.ArpParam[321], OwnSendStrict, 321},
      {&globals.ArpParam[324], OwnSendStrict, 324},
      {&globals.ArpParam[323], OwnSendStrict, 323},
      {&globals.ArpParam[322], StrictSend,    322},
  });
  AppendReserved(lines, 2);
  for (std::size_t s = 1; s <= 16; ++s) {
    const int place = static_cast<int>(s);
    Append(lines, {
        {&globals.ArpStepA[s], Own},
        {&globals.ArpStepB[s], Own},
        {&globals.ArpStepC[s], StepFirstByte,  327 + place, 0, false, nullptr, 0, s},
        {&globals.ArpStepD[s], Own},
        {&globals.ArpStepE[s], StepSecondByte, 343 + place, 0, false, nullptr, 0, s},
    });
  }
}

// The last three values of each effect are written as 0, so that a saved sound loses them.
void AppendEffects(std::vector<SoundLine> &lines, Module1 &globals) {
  const auto appendEffect = [&](int first, int firstLost, int last) {
    for (int number = first; number <= last; ++number) {
      const bool integer = number == 135 || number == 143 || number == 151 || number == 159;
      lines.push_back({&globals.FxParam[number], integer ? StrictSend : OwnSendStrict, number, 0,
                       number >= firstLost});
    }
    AppendReserved(lines, 1);
  };
  appendEffect(128, 141, 143);
  appendEffect(144, 157, 159);
}
// clang-format on

} // namespace

std::vector<SoundLine> SoundLines(Application &app) {
  std::vector<SoundLine> lines = PanelLines(app);
  AppendLfos(lines, app.Module1);
  AppendEnvelopes(lines, app.F_Tessoro, app.Module1);
  AppendModulation(lines, app.Module1);
  AppendArpeggiator(lines, app.Module1);
  AppendEffects(lines, app.Module1);
  return lines;
}

} // namespace Tessoro
