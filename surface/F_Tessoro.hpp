// The main form.
#pragma once

#include "shell/MainMenu.hpp"
#include "surface/AmplifierSection.hpp"
#include "surface/EnvelopeSection.hpp"
#include "surface/FilterSection.hpp"
#include "surface/Form.hpp"
#include "surface/MixerSection.hpp"
#include "surface/NoteSection.hpp"
#include "surface/OscillatorSection.hpp"
#include "surface/ShuffleSection.hpp"
#include "surface/Timer.hpp"

#include <memory>
#include <string>

namespace Tessoro {

class FieldReader;

// The sections are its parts: each has its file, and their controls are the form's own members.
class F_Tessoro : public Form,
                  public MainMenu,
                  public OscillatorSection,
                  public MixerSection,
                  public FilterSection,
                  public EnvelopeSection,
                  public AmplifierSection,
                  public NoteSection,
                  public ShuffleSection {
public:
  explicit F_Tessoro(Application &app);

  // Gives controls, shadows and synthesizer one common sound.
  void InitPanelParams();

  // After an init.
  void ShowInitTitle();
  // After a sound has been saved or loaded.
  void ShowFileTitle();
  // Something that goes out as a controller has changed since the title was last set.
  void ShowChangeMark();

  // The settings are written by Form_Unload alone; nothing calls this.
  void WriteINI() {}

  // clang-format off
  CommandButton InitSnd{*this, "InitSnd", {9540, 6090, 2445, 480}, {.caption = "Init sound", .toolTip = "Resets parameters to the microQ init sound! Only the parameters displayed on this form are changed - it is not a complete sound init!"}};
  // clang-format on
  Timer Timer1{*this, "Timer1", {.interval = 500}};

protected:
  void Form_Load() override;
  void Form_Unload() override;
  void Form_KeyDown(int keyCode, int shift) override;
  void Form_KeyUp(int keyCode, int shift) override;

private:
  void Timer1_Timer();
  void InitSnd_Click();
  void InitAmplifierAndPitch();
  void InitOscillator1();
  void InitOscillator2();
  void InitOscillator3();
  void InitFilters();
  void InitEnvelopes();
  void SetDefaults();
  std::unique_ptr<FieldReader> OpenSettings();
  void TakeSettings(std::unique_ptr<FieldReader> settings);
  void OpenPortsOfSettings();
  void BeginWithoutSettings();

  // Kept, so that the change mark costs no memory at each controller.
  std::string title;
};

} // namespace Tessoro
