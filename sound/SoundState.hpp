// What belongs to the sound and no control of the main form shows.
#pragma once

#include "sound/Shadow.hpp"
#include "surface/Failure.hpp"
#include "surface/Property.hpp"

#include <array>
#include <cstdint>
#include <string>

namespace Tessoro {

// An array that is used from 1 and fails with 9 beyond its bound; element 0 stays unused.
template <typename Element, std::size_t Last> class BoundedArray {
public:
  Element &operator[](std::size_t index) { return elements[Checked(index)]; }
  const Element &operator[](std::size_t index) const { return elements[Checked(index)]; }
  static constexpr std::size_t LastIndex = Last;

private:
  static std::size_t Checked(std::size_t index) {
    if (index > Last)
      throw Failure(FailureCode::SubscriptOutOfRange);
    return index;
  }

  std::array<Element, Last + 1> elements{};
};

// Shadows that go by the parameter's number.
template <int First, int Last> class NumberedShadows {
public:
  // The numbers that are 16-bit.
  explicit NumberedShadows(std::initializer_list<int> integers) {
    for (const int number : integers)
      (*this)[number] = Shadow::Integer16();
  }
  Shadow &operator[](int number) { return shadows.at(static_cast<std::size_t>(number - First)); }
  const Shadow &operator[](int number) const {
    return shadows.at(static_cast<std::size_t>(number - First));
  }
  static constexpr int FirstNumber = First;
  static constexpr int LastNumber = Last;

private:
  std::array<Shadow, static_cast<std::size_t>(Last - First + 1)> shadows;
};

// By the parameter numbers of the effects.
using FxShadows = NumberedShadows<128, 159>;

// Attack, decay, sustain and release; the last is 16-bit.
struct EnvelopeShadow {
  Shadow attack;
  Shadow decay;
  Shadow sustain;
  Shadow release = Shadow::Integer16();
};

struct SoundState {
  Shadow PitchModSource;
  // Wire value.
  std::int16_t PitchModAmount = 0;
  Shadow AmpModSource;
  // Display value.
  std::int16_t AmpModAmount = 0;

  Shadow MonoOn;
  Shadow UnisonoMode;
  std::int16_t UnisonoDetune = 0;
  Shadow GlideOn;
  Shadow GlideMode;
  std::int16_t GlideRate = 0;
  Shadow RingmodLevel;
  // Display value.
  std::string RingmodBalance;

  // The numbers 6, 7, 22, 23, 38 and 39.
  NumberedShadows<6, 39> OscFmShadow{39};

  BoundedArray<std::string, 3> LfoShapeName;
  // List index as digits.
  BoundedArray<std::string, 3> LfoShape;
  BoundedArray<std::int16_t, 3> LfoSpeed;
  BoundedArray<std::int16_t, 3> LfoDelay;
  // Wire values.
  BoundedArray<std::int16_t, 3> LfoFade;
  BoundedArray<std::int16_t, 3> LfoKeytrack;
  BoundedArray<std::int16_t, 3> LfoSync;
  BoundedArray<std::int16_t, 3> LfoClocked;
  BoundedArray<std::int16_t, 3> LfoPhase;

  BoundedArray<Shadow, 4> ModifierA;
  BoundedArray<Shadow, 4> ModifierB;
  BoundedArray<Shadow, 4> ModifierC;
  BoundedArray<std::int16_t, 4> ModifierD;

  // By bank, 1 and 2, then by slot.
  BoundedArray<BoundedArray<Shadow, 8>, 2> ModSlotA;
  BoundedArray<BoundedArray<Shadow, 8>, 2> ModSlotB;
  BoundedArray<BoundedArray<std::int16_t, 8>, 2> ModSlotAmount;

  // 315 holds the wire value + 3, 316 the wire value + 1.
  NumberedShadows<312, 324> ArpParam{319, 322};
  BoundedArray<Shadow, 16> ArpStepA;
  BoundedArray<Shadow, 16> ArpStepB;
  BoundedArray<Shadow, 16> ArpStepC;
  BoundedArray<Shadow, 16> ArpStepD;
  BoundedArray<std::int16_t, 16> ArpStepE;

  FxShadows FxParam{135, 143, 151, 159};

  // Written by the boxes, read by nothing.
  EnvelopeShadow Env1Shadow;
  EnvelopeShadow Env2Shadow;

  Shadow Env3Attack;
  Shadow Env3Decay;
  Shadow Env3Sustain;
  Shadow Env3Release = Shadow::Integer16();
  Shadow Env4Attack;
  Shadow Env4Decay;
  Shadow Env4Sustain;
  Shadow Env4Release = Shadow::Integer16();

  // Every shadow by name, an index in brackets behind it where it has one.
  PropertyEntries Shadows();
};

} // namespace Tessoro
