#include "sound/SoundState.hpp"

#include "sound/GlobalEntries.hpp"
#include "surface/Conversions.hpp"

namespace Tessoro {

namespace {

std::string Indexed(std::string_view name, std::size_t index) {
  return std::string(name) + "(" + IntegerText(static_cast<int>(index)) + ")";
}

template <typename Element, std::size_t Last>
void AddArray(PropertyEntries &entries, std::string_view name, BoundedArray<Element, Last> &array) {
  for (std::size_t i = 1; i <= Last; ++i)
    entries.push_back(Global(Indexed(name, i), array[i]));
}

template <typename Element>
void AddBanks(PropertyEntries &entries, std::string_view name,
              BoundedArray<BoundedArray<Element, 8>, 2> &banks) {
  for (std::size_t bank = 1; bank <= 2; ++bank)
    for (std::size_t slot = 1; slot <= 8; ++slot)
      entries.push_back(Global(std::string(name) + "(" + IntegerText(static_cast<int>(bank)) + "," +
                                   IntegerText(static_cast<int>(slot)) + ")",
                               banks[bank][slot]));
}

template <int First, int Last>
void AddNumbered(PropertyEntries &entries, std::string_view name,
                 NumberedShadows<First, Last> &shadows) {
  for (int number = First; number <= Last; ++number)
    entries.push_back(Global(Indexed(name, static_cast<std::size_t>(number)), shadows[number]));
}

void AddEnvelope(PropertyEntries &entries, std::string_view name, EnvelopeShadow &shadow) {
  std::size_t index = 0;
  for (Shadow *member : {&shadow.attack, &shadow.decay, &shadow.sustain, &shadow.release})
    entries.push_back(Global(Indexed(name, ++index), *member));
}

} // namespace

PropertyEntries SoundState::Shadows() {
  PropertyEntries entries{
      Global("PitchModSource", PitchModSource),
      Global("PitchModAmount", PitchModAmount),
      Global("AmpModSource", AmpModSource),
      Global("AmpModAmount", AmpModAmount),
      Global("MonoOn", MonoOn),
      Global("UnisonoMode", UnisonoMode),
      Global("UnisonoDetune", UnisonoDetune),
      Global("GlideOn", GlideOn),
      Global("GlideMode", GlideMode),
      Global("GlideRate", GlideRate),
      Global("RingmodLevel", RingmodLevel),
      Global("RingmodBalance", RingmodBalance),
      Global("Env3Attack", Env3Attack),
      Global("Env3Decay", Env3Decay),
      Global("Env3Sustain", Env3Sustain),
      Global("Env3Release", Env3Release),
      Global("Env4Attack", Env4Attack),
      Global("Env4Decay", Env4Decay),
      Global("Env4Sustain", Env4Sustain),
      Global("Env4Release", Env4Release),
  };
  for (const int number : {6, 7, 22, 23, 38, 39})
    entries.push_back(
        Global(Indexed("OscFmShadow", static_cast<std::size_t>(number)), OscFmShadow[number]));
  AddArray(entries, "LfoShapeName", LfoShapeName);
  AddArray(entries, "LfoShape", LfoShape);
  AddArray(entries, "LfoSpeed", LfoSpeed);
  AddArray(entries, "LfoDelay", LfoDelay);
  AddArray(entries, "LfoFade", LfoFade);
  AddArray(entries, "LfoKeytrack", LfoKeytrack);
  AddArray(entries, "LfoSync", LfoSync);
  AddArray(entries, "LfoClocked", LfoClocked);
  AddArray(entries, "LfoPhase", LfoPhase);
  AddArray(entries, "ModifierA", ModifierA);
  AddArray(entries, "ModifierB", ModifierB);
  AddArray(entries, "ModifierC", ModifierC);
  AddArray(entries, "ModifierD", ModifierD);
  AddBanks(entries, "ModSlotA", ModSlotA);
  AddBanks(entries, "ModSlotB", ModSlotB);
  AddBanks(entries, "ModSlotAmount", ModSlotAmount);
  AddNumbered(entries, "ArpParam", ArpParam);
  AddArray(entries, "ArpStepA", ArpStepA);
  AddArray(entries, "ArpStepB", ArpStepB);
  AddArray(entries, "ArpStepC", ArpStepC);
  AddArray(entries, "ArpStepD", ArpStepD);
  AddArray(entries, "ArpStepE", ArpStepE);
  AddNumbered(entries, "FxParam", FxParam);
  AddEnvelope(entries, "Env1Shadow", Env1Shadow);
  AddEnvelope(entries, "Env2Shadow", Env2Shadow);
  return entries;
}

} // namespace Tessoro
