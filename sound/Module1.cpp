#include "sound/Module1.hpp"

#include "sound/GlobalEntries.hpp"
#include "surface/Control.hpp"
#include "surface/Conversions.hpp"

namespace Tessoro {

namespace {

// Handles differ from run to run, so only whether there is one can be read.
PropertyEntry GlobalHandle(std::string_view name, MidiHandle &handle) {
  return NumberProperty(
      name, [&handle] { return handle == 0 ? 0 : 1; },
      [&handle](double value) { handle = static_cast<MidiHandle>(RoundHalfEven(value)); });
}

} // namespace

PropertyEntries Module1::Globals() {
  PropertyEntries entries{
      Global("MidiOutPort", MidiOutPort),
      Global("MidiInPort", MidiInPort),
      Global("MidiChannel", MidiChannel),
      Global("MidiInChannel", MidiInChannel),
      GlobalHandle("hMidiOut", hMidiOut),
      GlobalHandle("hMidiIn", hMidiIn),
      Global("SoundChanged", SoundChanged),
      Global("KnobDown", KnobDown),
      Global("ShiftHeld", ShiftHeld),
      Global("KnobRampLength", KnobRampLength),
      Global("KnobRampCount", KnobRampCount),
      Global("KnobStep", KnobStep),
      Global("KnobStandardChange", KnobStandardChange),
      Global("KnobFineChange", KnobFineChange),
      Global("KnobFineCount", KnobFineCount),
      Global("KnobLastY", KnobLastY),
      Global("SoundName", SoundName),
      Global("SoundCategory", SoundCategory),
      Global("SoundFileName", SoundFileName),
      Global("SoundFolder", SoundFolder),
      Global("ErrorPhase", ErrorPhase),
      Global("InfoPopUpStage", InfoPopUpStage),
      Global("ShowInfoPopUp", ShowInfoPopUp),
      GlobalText("IniProgramLabel", IniProgramLabel),
      Global("IniProgramVersion", IniProgramVersion),
      Global("FileFormMode", FileFormMode),
      Global("FileField", FileField),
  };
  const PropertyEntries shadows = Shadows();
  entries.insert(entries.end(), shadows.begin(), shadows.end());
  return entries;
}

} // namespace Tessoro
