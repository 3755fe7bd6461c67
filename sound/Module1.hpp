// The one module of global state and routines of a run.
#pragma once

#include "midi/MidiLink.hpp"
#include "shell/ProgramState.hpp"
#include "sound/SoundBookkeeping.hpp"
#include "sound/SoundState.hpp"
#include "surface/KnobState.hpp"
#include "surface/Property.hpp"

namespace Tessoro {

class Module1 : public MidiLink,
                public KnobState,
                public SoundBookkeeping,
                public SoundState,
                public ProgramState {
public:
  explicit Module1(Application &application) : MidiLink(application), app(application) {}

  // Sends the init values of everything that the main form doesn't show, and sets the shadows.
  void InitHiddenParams();

  // Every global by name.
  PropertyEntries Globals();

private:
  void InitEnvelope4();
  void InitName();
  void InitLfos();
  void InitModulation();
  void SendModulation();
  void InitOscillatorFm();
  void InitGeneral();
  void InitEffects();
  void InitArpeggiator();

  Application &app;
};

} // namespace Tessoro
