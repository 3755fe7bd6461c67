// The init of what the main form shows.
#include "shell/Application.hpp"
#include "sound/InitStep.hpp"

namespace Tessoro {

// Sends and assigns in turn, row by row; the order of the rows is the order on the wire.
void F_Tessoro::InitPanelParams() {
  InitAmplifierAndPitch();
  InitOscillator1();
  InitOscillator2();
  InitOscillator3();
  InitFilters();
  InitEnvelopes();
  App().Module1.InitHiddenParams();
}

void F_Tessoro::InitAmplifierAndPitch() {
  Module1 &globals = App().Module1;
  // clang-format off
  const InitStep steps[] = {
      // number, wire value, assignment
      {121, 110, TextAmpVolume, "110"},
      {122, 109, TextAmpVelocity, "109"},
      {123, 5, globals.AmpModSource, 5},
      {124, 64, globals.AmpModAmount, 0},
      {50, 2, globals.PitchModSource, 2},
      {51, 84, globals.PitchModAmount, 84},
  };
  // clang-format on
  RunInitSteps(steps, globals);
}

void F_Tessoro::InitOscillator1() {
  using NoSend = InitStep::NoSend;
  // clang-format off
  const InitStep steps[] = {
      // Oscillator 1.
      {8, 1, ComboOSC1shape, 1},
      {1, 64, ComboOSC1oct, 4},
      {2, 64, TextOSC1semi, "0"},
      {3, 64, TextOSC1detune, "0"},
      {9, 127, TextOSC1pw, "127"},
      {10, 1, ComboOSC1pwmsource, 1},
      {11, 64, TextOSC1pwm, "0"},
      {6, 0, ComboFMsrc1, 0},
      {7, 0, TextOSC1FMamt, "0"},
      {5, 96, TextOSC1keytrack, "32"},
      {4, 66, TextOSC1bendrange, "2"},
      {61, 127, VScrollOSC1vol, 127},
      {NoSend(), CheckOSC1mute, 0},
      {62, 0, TextOSC1fbalance, "-64"},
      {12, 0, ComboSub1, 0},
      {13, 0, TextSub1, "0"},
  };
  // clang-format on
  RunInitSteps(steps, App().Module1);
}

void F_Tessoro::InitOscillator2() {
  using NoSend = InitStep::NoSend;
  // clang-format off
  const InitStep steps[] = {
      // Oscillator 2.
      {24, 0, ComboOSC2shape, 0},
      {17, 64, ComboOSC2oct, 4},
      {18, 64, TextOSC2semi, "0"},
      {19, 64, TextOSC2detune, "0"},
      {25, 127, TextOSC2pw, "127"},
      {26, 3, ComboOSC2pwmsource, 3},
      {27, 92, TextOSC2pwm, "28"},
      {22, 0, ComboFMsrc2, 0},
      {23, 0, TextOSC2FMamt, "0"},
      {21, 96, TextOSC2keytrack, "32"},
      {20, 66, TextOSC2bendrange, "2"},
      {63, 0, VScrollOSC2vol, 0},
      {NoSend(), CheckOSC2mute, 1},
      {64, 0, TextOSC2fbalance, "-64"},
      {28, 0, ComboSub2, 0},
      {29, 0, TextSub2, "0"},
  };
  // clang-format on
  RunInitSteps(steps, App().Module1);
}

void F_Tessoro::InitOscillator3() {
  using NoSend = InitStep::NoSend;
  // clang-format off
  const InitStep steps[] = {
      // Oscillator 3.
      {40, 0, ComboOSC3shape, 0},
      {33, 64, ComboOSC3oct, 4},
      {34, 64, TextOSC3semi, "0"},
      {35, 64, TextOSC3detune, "0"},
      {41, 127, TextOSC3pw, "127"},
      {42, 5, ComboOSC3pwmsource, 5},
      {43, 64, TextOSC3pwm, "0"},
      {38, 0, ComboFMsrc3, 0},
      {39, 0, TextOSC3FMamt, "0"},
      {37, 96, TextOSC3keytrack, "32"},
      {36, 66, TextOSC3bendrange, "2"},
      {65, 0, VScrollOSC3vol, 0},
      {NoSend(), CheckOSC3mute, 1},
      {66, 0, TextOSC3fbalance, "-64"},
  };
  // clang-format on
  RunInitSteps(steps, App().Module1);
}

void F_Tessoro::InitFilters() {
  using NoSend = InitStep::NoSend;
  // clang-format off
  const InitStep steps[] = {
      // Noise, which has no number of its own here.
      {NoSend(), VScrollNoiseVol, 0},
      {NoSend(), CheckNoisemute, 1},
      {NoSend(), TextNoisefbalance, "0"},
      // Filters. The type of filter 1 has no number either and takes that of filter 2 for a moment.
      {75, 0},
      {76, 0},
      {97, 1, ComboFilter1, 1},
      {97, 0, ComboFilter2, 0},
      {78, 127, TextF1_cutoff, "127"},
      {80, 0, TextF1_reso, "0"},
      {81, 0, TextF1_drive, "0"},
      {86, 64, TextF1_keytrack, "0"},
      {87, 64, TextF1_envamt, "0"},
      {88, 64, TextF1_envvol, "0"},
      {93, 64, TextF1_pan, "0"},
      {89, 0, ComboF1Modulation, 0},
      {90, 64, TextF1_modamount, "0"},
      {94, 0},
      {95, 64},
      {98, 127, TextF2_cutoff, "127"},
      {100, 0, TextF2_reso, "0"},
      {101, 0, TextF2_drive, "0"},
      {106, 64, TextF2_keytrack, "0"},
      {107, 64, TextF2_envamt, "0"},
      {108, 64, TextF2_envvel, "0"},
      {113, 64, TextF2_pan, "0"},
      {109, 0, ComboF2Modulation, 0},
      {110, 64, TextF2_modamount, "0"},
      {114, 0},
      {115, 64},
      {117, 0, TextFilterParSer, "0"},
  };
  // clang-format on
  RunInitSteps(steps, App().Module1);
}

void F_Tessoro::InitEnvelopes() {
  using NoSend = InitStep::NoSend;
  Module1 &globals = App().Module1;
  // clang-format off
  const InitStep steps[] = {
      // Amp envelope.
      {208, 0},
      {211, 0, TextEnv1T1, "0"},
      {212, 0},
      {213, 0, TextEnv1T2, "0"},
      {214, 127, TextEnv1L2, "127"},
      {215, 0},
      {216, 0},
      {217, 0, TextEnv1T3, "0"},
      // Filter envelope.
      {196, 0},
      {199, 0, TextEnv2T1, "0"},
      {200, 0},
      {201, 0, TextEnv2T2, "0"},
      {202, 127, TextEnv2L2, "127"},
      {203, 0},
      {204, 0},
      {205, 0, TextEnv2T3, "0"},
      // Envelope 3, whichever of 3 and 4 its panel shows.
      {220, 0},
      {223, 0, TextEnv3_A, "0"},
      {NoSend(), globals.Env3Attack, 0},
      {224, 0},
      {225, 0, TextEnv3_D, "0"},
      {NoSend(), globals.Env3Decay, 0},
      {226, 127, TextEnv3_S, "127"},
      {NoSend(), globals.Env3Sustain, 127},
      {227, 0},
      {228, 0},
      {229, 0, TextEnv3_R, "0"},
      {NoSend(), globals.Env3Release, 0},
  };
  // clang-format on
  RunInitSteps(steps, globals);
}

void F_Tessoro::InitSnd_Click() {
  if (TextAmpVolume.Text() != "?") {
    const MsgBoxButton answer =
        App().MsgBox("Are you sure to reset this sound to Waldorf init defaults?",
                     MsgBoxFlags::OkCancel + MsgBoxFlags::Question, "Confirm init");
    if (answer != MsgBoxButton::Ok)
      return;
    InitPanelParams();
  } else {
    InitPanelParams();
    Menu_General.SetEnabled(true);
    Menu_SaveSound.SetEnabled(true);
  }
  ShowInitTitle();
}

} // namespace Tessoro
