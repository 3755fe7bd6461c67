#include "surface/F_Tessoro.hpp"

#include "shell/Application.hpp"
#include "surface/KeyCodes.hpp"

namespace Tessoro {

F_Tessoro::F_Tessoro(Application &app)
    : Form(app, "F_Tessoro",
           {.caption = "Tessoro", .width = 12165, .height = 8580, .keyPreview = true}),
      MainMenu(*this), OscillatorSection(AsForm()), MixerSection(AsForm()), FilterSection(AsForm()),
      EnvelopeSection(AsForm()), AmplifierSection(AsForm()), NoteSection(AsForm()),
      ShuffleSection(*this) {
  InitSnd.onClick = [this] { InitSnd_Click(); };
  Timer1.onTimer = [this] { Timer1_Timer(); };
}

void F_Tessoro::ShowInitTitle() {
  title.assign("Tessoro v").append(App().VersionText());
  SetCaption(title);
}

void F_Tessoro::ShowFileTitle() {
  title.assign("Tessoro v").append(App().VersionText()).append(" - ");
  title.append(App().Module1.SoundFileName).append(".tss");
  SetCaption(title);
}

void F_Tessoro::ShowChangeMark() {
  title.assign("Tessoro v").append(App().VersionText()).append(" - ");
  title.append(App().Module1.SoundFileName).append(".tss *");
  SetCaption(title);
}

void F_Tessoro::Form_KeyDown(int keyCode, int /*shift*/) {
  if (keyCode == KeyCodes::Shift)
    App().Module1.ShiftHeld = -1;
}

void F_Tessoro::Form_KeyUp(int keyCode, int /*shift*/) {
  if (keyCode == KeyCodes::Shift)
    App().Module1.ShiftHeld = 0;
}

} // namespace Tessoro
