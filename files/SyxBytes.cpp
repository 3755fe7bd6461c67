#include "files/SyxBytes.hpp"

#include "shell/Application.hpp"

namespace Tessoro {

namespace {

using enum SyxRule;

constexpr std::string_view Filter1Input =
    "The imported sound uses an external input other than 'Noise' for filter 1! Tessoro supports "
    "'Noise' input only. The original input value has been dumped to the microQ now. (You may "
    "change this value manualy later)";
constexpr std::string_view Filter2Input =
    "The imported sound uses an external input other than 'Noise' for filter 2! Tessoro supports "
    "'Noise' input only. The original input value has been dumped to the microQ now. (You may "
    "change this value manualy later)";
constexpr std::string_view FilterEnvelopeMode =
    "The imported sound uses an unsupported filter envelope. (Tessoro supports ADSR only) You may "
    "continue normaly but the filter envelope parameters probably can not be changed correctly. It "
    "is recommended not to change them in Tessoro as long as you do not manualy change the "
    "envelope to ADSR. The original envelope value has been dumped to the microQ now.";
constexpr std::string_view AmpEnvelopeMode =
    "The imported sound uses an unsupported amp envelope. (Tessoro supports ADSR only) You may "
    "continue normaly but the filter envelope parameters probably can not be changed correctly. It "
    "is recommended not to change them in Tessoro as long as you do not manualy change the "
    "envelope to ADSR. The original envelope value has been dumped to the microQ now.";

void Append(std::vector<SyxByte> &bytes, std::initializer_list<SyxByte> more) {
  bytes.insert(bytes.end(), more.begin(), more.end());
}

void SkipBytes(std::vector<SyxByte> &bytes, std::size_t count) {
  bytes.resize(bytes.size() + count);
}

// clang-format off
void AppendOscillators(std::vector<SyxByte> &bytes, F_Tessoro &main) {
  Append(bytes, {
      {Octave, &main.ComboOSC1oct},
      {Signed, &main.TextOSC1semi},
      {Signed, &main.TextOSC1detune},
      {Signed, &main.TextOSC1bendrange},
      {Signed, &main.TextOSC1keytrack},
      {Plain, &main.ComboFMsrc1},
      {Plain, &main.TextOSC1FMamt},
      {Plain, &main.ComboOSC1shape},
      {Plain, &main.TextOSC1pw},
      {Plain, &main.ComboOSC1pwmsource},
      {Signed, &main.TextOSC1pwm},
      {Plain, &main.ComboSub1},
      {Plain, &main.TextSub1},
  });
  SkipBytes(bytes, 3);
  Append(bytes, {
      {Octave, &main.ComboOSC2oct},
      {Signed, &main.TextOSC2semi},
      {Signed, &main.TextOSC2detune},
      {Signed, &main.TextOSC2bendrange},
      {Signed, &main.TextOSC2keytrack},
      {Plain, &main.ComboFMsrc2},
      {Plain, &main.TextOSC2FMamt},
      {Plain, &main.ComboOSC2shape},
      {Plain, &main.TextOSC2pw},
      {Plain, &main.ComboOSC2pwmsource},
      {Signed, &main.TextOSC2pwm},
      {Plain, &main.ComboSub2},
      {Plain, &main.TextSub2},
  });
  SkipBytes(bytes, 3);
  Append(bytes, {
      {Octave, &main.ComboOSC3oct},
      {Signed, &main.TextOSC3semi},
      {Signed, &main.TextOSC3detune},
      {Signed, &main.TextOSC3bendrange},
      {Signed, &main.TextOSC3keytrack},
      {Plain, &main.ComboFMsrc3},
      {Plain, &main.TextOSC3FMamt},
      {Plain, &main.ComboOSC3shape},
      {Plain, &main.TextOSC3pw},
      {Plain, &main.ComboOSC3pwmsource},
      {Signed, &main.TextOSC3pwm},
  });
  SkipBytes(bytes, 5);
}

void AppendGeneral(std::vector<SyxByte> &bytes, F_Tessoro &main, Module1 &globals) {
  Append(bytes, {
      {Plain, &main.CheckSyncOn},
      {ShadowSend, &globals.PitchModSource},
      {ShadowSend, &globals.PitchModAmount},
      {},
      {ShadowSend, &globals.GlideOn},
      {},
      {},
      {ShadowSend, &globals.GlideMode},
      {ShadowSend, &globals.GlideRate},
      {SyxRule::Allocation},
      {ShadowSend, &globals.UnisonoDetune},
      {},
  });
  Append(bytes, {
      {Plain, &main.VScrollOSC1vol},
      {Signed, &main.TextOSC1fbalance},
      {Plain, &main.VScrollOSC2vol},
      {Signed, &main.TextOSC2fbalance},
      {Plain, &main.VScrollOSC3vol},
      {Signed, &main.TextOSC3fbalance},
      {NoiseLevel, &main.VScrollNoiseVol, 0, nullptr, &main.CheckNoisemute},
      {Signed, &main.TextNoisefbalance},
      {},
      {},
      {ShadowSend, &globals.RingmodLevel},
      {ShadowSend, &globals.RingmodBalance, -64},
      {},
      {},
      {SendAndTell, {}, 0, nullptr, nullptr, Filter1Input},
      {SendAndTell, {}, 0, nullptr, nullptr, Filter2Input},
  });
}

void AppendFilters(std::vector<SyxByte> &bytes, F_Tessoro &main) {
  Append(bytes, {
      {Plain, &main.ComboFilter1},
      {Plain, &main.TextF1_cutoff},
      {},
      {Plain, &main.TextF1_reso},
      {Plain, &main.TextF1_drive},
      {},
      {},
      {},
      {},
      {Signed, &main.TextF1_keytrack},
      {Signed, &main.TextF1_envamt},
      {Signed, &main.TextF1_envvol},
      {Plain, &main.ComboF1Modulation},
      {Signed, &main.TextF1_modamount},
      {},
      {},
      {Signed, &main.TextF1_pan},
      {},
      {},
      {},
  });
  Append(bytes, {
      {Plain, &main.ComboFilter2},
      {Plain, &main.TextF2_cutoff},
      {},
      {Plain, &main.TextF2_reso},
      {Plain, &main.TextF2_drive},
      {},
      {},
      {},
      {},
      {Signed, &main.TextF2_keytrack},
      {Signed, &main.TextF2_envamt},
      {Signed, &main.TextF2_envvel},
      {Plain, &main.ComboF2Modulation},
      {Signed, &main.TextF2_modamount},
      {},
      {},
      {Signed, &main.TextF2_pan},
      {},
      {},
      {},
  });
  Append(bytes, {{Plain, &main.TextFilterParSer}});
  SkipBytes(bytes, 3);
}

void AppendAmplifierAndEffects(std::vector<SyxByte> &bytes, F_Tessoro &main, Module1 &globals) {
  Append(bytes, {
      {Plain, &main.TextAmpVolume},
      {Plain, &main.TextAmpVelocity},
      {ShadowSend, &globals.AmpModSource},
      {ShadowSend, &globals.AmpModAmount, -64},
  });
  SkipBytes(bytes, 3);
  for (int number = FxShadows::FirstNumber; number <= FxShadows::LastNumber; ++number)
    Append(bytes, {{ShadowSend, &globals.FxParam[number]}});
}

void AppendLfos(std::vector<SyxByte> &bytes, Module1 &globals) {
  for (std::size_t n = 1; n <= 3; ++n)
    Append(bytes, {
        {ShadowSend, &globals.LfoShape[n]},
        {ShadowSend, &globals.LfoSpeed[n]},
        {},
        {ShadowSend, &globals.LfoSync[n]},
        {ShadowSend, &globals.LfoClocked[n]},
        {ShadowSend, &globals.LfoPhase[n]},
        {ShadowSend, &globals.LfoDelay[n]},
        {ShadowSend, &globals.LfoFade[n]},
        {},
        {},
        {ShadowSend, &globals.LfoKeytrack[n]},
        {},
    });
}

struct ShownEnvelope {
  TextBox &attack;
  TextBox &decay;
  TextBox &sustain;
  TextBox &release;
  std::string_view modeMessage;
};

void AppendShownEnvelope(std::vector<SyxByte> &bytes, const ShownEnvelope &envelope) {
  Append(bytes, {
      {SendAndTell, {}, 0, nullptr, nullptr, envelope.modeMessage},
      {},
      {},
      {Plain, &envelope.attack},
      {SyxRule::Send},
      {Plain, &envelope.decay},
      {Plain, &envelope.sustain},
      {SyxRule::Send},
      {SyxRule::Send},
      {Plain, &envelope.release},
      {},
      {},
  });
}

void AppendEnvelopes(std::vector<SyxByte> &bytes, F_Tessoro &main, Module1 &globals) {
  AppendShownEnvelope(bytes, {main.TextEnv2T1, main.TextEnv2T2, main.TextEnv2L2, main.TextEnv2T3, FilterEnvelopeMode});
  AppendShownEnvelope(bytes, {main.TextEnv1T1, main.TextEnv1T2, main.TextEnv1L2, main.TextEnv1T3, AmpEnvelopeMode});
  Append(bytes, {
      // Envelope 3, whichever of 3 and 4 its panel shows.
      {SendZero},
      {},
      {},
      {PlainShadowSend, &main.TextEnv3_A, 0, &globals.Env3Attack},
      {SyxRule::Send},
      {PlainShadowSend, &main.TextEnv3_D, 0, &globals.Env3Decay},
      {PlainShadowSend, &main.TextEnv3_S, 0, &globals.Env3Sustain},
      {SyxRule::Send},
      {SyxRule::Send},
      {PlainShadowSend, &main.TextEnv3_R, 0, &globals.Env3Release},
      {},
      {},
      // Envelope 4.
      {SendZero},
      {},
      {},
      {ShadowSend, &globals.Env4Attack},
      {SyxRule::Send},
      {ShadowSend, &globals.Env4Decay},
      {ShadowSend, &globals.Env4Sustain},
      {SyxRule::Send},
      {SyxRule::Send},
      {ShadowSend, &globals.Env4Release},
      {},
      {},
      {},
  });
}

void AppendModulation(std::vector<SyxByte> &bytes, Module1 &globals) {
  for (std::size_t n = 1; n <= 4; ++n)
    Append(bytes, {
        {ShadowSend, &globals.ModifierA[n]},
        {ShadowSend, &globals.ModifierB[n]},
        {ShadowSend, &globals.ModifierC[n]},
        {ShadowSend, &globals.ModifierD[n]},
    });
  for (std::size_t bank = 1; bank <= 2; ++bank)
    for (std::size_t slot = 1; slot <= 8; ++slot)
      Append(bytes, {
          {ShadowSend, &globals.ModSlotA[bank][slot]},
          {ShadowSend, &globals.ModSlotB[bank][slot]},
          {ShadowSend, &globals.ModSlotAmount[bank][slot]},
      });
  SkipBytes(bytes, 2);
}

void AppendArpeggiator(std::vector<SyxByte> &bytes, Module1 &globals) {
  for (int number = 312; number <= 324; ++number)
    Append(bytes, {{ShadowSend, &globals.ArpParam[number], number == 315 ? 3 : number == 316 ? 1 : 0}});
  SkipBytes(bytes, 3);
  for (std::size_t s = 1; s <= 16; ++s)
    Append(bytes, {{StepFirstByte, {}, 0, nullptr, nullptr, {}, s}});
  for (std::size_t s = 1; s <= 16; ++s)
    Append(bytes, {{StepSecondByte, {}, 0, nullptr, nullptr, {}, s}});
  SkipBytes(bytes, 4);
}

void AppendName(std::vector<SyxByte> &bytes) {
  bytes.insert(bytes.end(), 16, {NameCharacter});
  bytes.insert(bytes.end(), 4, {CategoryCharacter});
}
// clang-format on

} // namespace

std::vector<SyxByte> SyxBytes(Application &app) {
  std::vector<SyxByte> bytes;
  AppendOscillators(bytes, app.F_Tessoro);
  AppendGeneral(bytes, app.F_Tessoro, app.Module1);
  AppendFilters(bytes, app.F_Tessoro);
  AppendAmplifierAndEffects(bytes, app.F_Tessoro, app.Module1);
  AppendLfos(bytes, app.Module1);
  AppendEnvelopes(bytes, app.F_Tessoro, app.Module1);
  AppendModulation(bytes, app.Module1);
  AppendArpeggiator(bytes, app.Module1);
  AppendName(bytes);
  return bytes;
}

} // namespace Tessoro
