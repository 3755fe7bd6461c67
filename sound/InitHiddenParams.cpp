// The init of what no control of the main form shows.
#include "shell/Application.hpp"
#include "sound/InitStep.hpp"
#include "sound/SoundText.hpp"
#include "surface/Conversions.hpp"

#include <array>

namespace Tessoro {

namespace {

// Each modifier's first to fourth field; the third lies across the gap at 256.
constexpr std::array<std::array<int, 4>, 4> ModifierNumbers{{
    {245, 246, 247, 248},
    {249, 250, 251, 252},
    {253, 254, 255, 257},
    {258, 259, 260, 261},
}};

} // namespace

void Module1::InitHiddenParams() {
  InitEnvelope4();
  InitName();
  InitLfos();
  InitModulation();
  InitOscillatorFm();
  InitGeneral();
  InitEffects();
  InitArpeggiator();
}

void Module1::InitEnvelope4() {
  // clang-format off
  const InitStep steps[] = {
      {232, 0}, {235, 0}, {236, 0}, {237, 0}, {238, 127}, {239, 0}, {240, 0}, {241, 0},
      {InitStep::NoSend(), Env4Attack, 0},
      {InitStep::NoSend(), Env4Decay, 0},
      {InitStep::NoSend(), Env4Sustain, 127},
      {InitStep::NoSend(), Env4Release, 0},
      // Both filters' inputs, and a value that nothing else touches.
      {75, 0}, {76, 0}, {125, 0},
  };
  // clang-format on
  RunInitSteps(steps, *this);
}

void Module1::InitName() {
  constexpr int firstNumber = 364;
  SoundName = "Tessoro V2.0 Tes";
  SoundCategory = "Init";
  int number = firstNumber;
  for (const char character : SoundName + SoundCategory)
    SendSoundParam(number++, static_cast<std::int16_t>(SoundCharacter(character)));
}

void Module1::InitLfos() {
  constexpr std::array<std::int16_t, 4> speeds{0, 50, 40, 30};
  constexpr int firstNumber = 160;
  constexpr int numbersPerLfo = 12;
  for (std::size_t n = 1; n <= 3; ++n) {
    LfoShapeName[n] = "Sine";
    LfoShape[n] = "0";
    LfoSpeed[n] = speeds[n];
    LfoDelay[n] = 0;
    LfoFade[n] = 64;
    LfoKeytrack[n] = 64;
    LfoSync[n] = 0;
    LfoClocked[n] = 0;
    LfoPhase[n] = 0;
  }
  for (std::size_t n = 1; n <= 3; ++n) {
    const int base = firstNumber + numbersPerLfo * (static_cast<int>(n) - 1);
    SendSoundParam(base, StrictInteger(LfoShape[n], '.'));
    SendSoundParam(base + 1, LfoSpeed[n]);
    SendSoundParam(base + 6, LfoDelay[n]);
    SendSoundParam(base + 7, LfoFade[n]);
    SendSoundParam(base + 10, LfoKeytrack[n]);
    SendSoundParam(base + 3, LfoSync[n]);
    SendSoundParam(base + 4, LfoClocked[n]);
    SendSoundParam(base + 5, LfoPhase[n]);
  }
}

void Module1::InitModulation() {
  constexpr std::int16_t center = 64;
  for (std::size_t bank = 1; bank <= 2; ++bank)
    for (std::size_t n = 1; n <= 8; ++n) {
      ModSlotA[bank][n].SetNumber(0);
      ModSlotB[bank][n].SetNumber(0);
      ModSlotAmount[bank][n] = center;
    }
  for (std::size_t n = 1; n <= 4; ++n) {
    ModifierA[n].SetNumber(0);
    ModifierB[n].SetNumber(0);
    ModifierC[n].SetNumber(0);
    ModifierD[n] = center;
  }
  SendModulation();
}

// All fields hold their init values here, so the order alone matters.
void Module1::SendModulation() {
  constexpr int firstSlot = 262;
  constexpr int lastSlot = 309;
  for (int number = firstSlot; number <= lastSlot; number += 3)
    for (const InitStep &step : {InitStep{number, 0}, {number + 1, 0}, {number + 2, 64}})
      step.Run(*this);
  for (const std::array<int, 4> &modifier : ModifierNumbers) {
    for (std::size_t field = 0; field < 3; ++field)
      SendSoundParam(modifier[field], 0);
    SendSoundParam(modifier[3], 64);
  }
}

void Module1::InitOscillatorFm() {
  for (const int number : {6, 7, 22, 23, 38, 39}) {
    OscFmShadow[number].SetNumber(0);
    SendSoundParam(number, 0);
  }
  SendSoundParam(49, 0);
  app.F_Tessoro.CheckSyncOn.SetValue(0);
}

void Module1::InitGeneral() {
  // clang-format off
  const InitStep steps[] = {
      {53, 0, GlideOn, 0},
      {56, 0, GlideMode, 0},
      {57, 0, GlideRate, 0},
      {58, 0, MonoOn, 0},
      {InitStep::NoSend(), UnisonoMode, 0},
      {71, 0, RingmodLevel, 0},
      {72, 0},
  };
  // clang-format on
  UnisonoDetune = 0; // number 59 isn't sent: the synthesizer keeps its last detune
  RunInitSteps(steps, *this);
  RingmodBalance = "-64";
}

void Module1::InitEffects() {
  for (int number = FxShadows::FirstNumber; number <= FxShadows::LastNumber; ++number) {
    const int value = number == 150 || number == 151 ? 100 : number == 156 ? 15 : 0;
    FxParam[number].SetNumber(value);
    SendSoundParam(number, static_cast<std::int16_t>(value));
  }
}

void Module1::InitArpeggiator() {
  constexpr int firstByte = 327;
  constexpr int secondByte = 343;
  for (std::size_t i = 1; i <= 16; ++i) {
    ArpStepA[i].SetNumber(0);
    ArpStepB[i].SetNumber(0);
    ArpStepC[i].SetNumber(4);
    SendSoundParam(firstByte + static_cast<int>(i), 4);
    ArpStepD[i].SetNumber(4);
    ArpStepE[i] = 4;
    SendSoundParam(secondByte + static_cast<int>(i), 16 * 4 + 4);
  }
  // clang-format off
  const InitStep steps[] = {
      // number, wire value, assignment
      {312,  0, ArpParam[312],  0},
      {313,  0, ArpParam[313],  0},
      {314, 15, ArpParam[314], 15},
      {315,  9, ArpParam[315], 12}, // the wire value + 3
      {317,  0, ArpParam[317],  0},
      {318,  0, ArpParam[318],  0},
      {319,  0, ArpParam[319],  0},
      {316, 11, ArpParam[316], 12}, // the wire value + 1
      {320,  0, ArpParam[320],  0},
      {321,  0, ArpParam[321],  0},
      {324, 15, ArpParam[324], 15},
      {323,  0, ArpParam[323],  0},
      {322,  0, ArpParam[322],  0},
  };
  // clang-format on
  RunInitSteps(steps, *this);
}

} // namespace Tessoro
