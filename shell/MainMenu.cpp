#include "shell/MainMenu.hpp"

#include "shell/Application.hpp"

namespace Tessoro {

MainMenu::MainMenu(F_Tessoro &owner) : form(owner) {
  Menu_OpenSound.onClick = [this] { ShowFileForm("Open"); };
  Menu_SaveSound.onClick = [this] { ShowFileForm("Save"); };
  Menu_preferences.onClick = [this] { form.App().F_Preferences.Show(); };
  Menu_Quit.onClick = [this] { form.App().Quit(); };
  Menu_Panic.onClick = [this] { form.App().Module1.SendNoteOffSweep(); };
  Menu_Midisettings.onClick = [this] { Menu_Midisettings_Click(); };
  Menu_InitW.onClick = [this] { form.App().F_Tessoro.InitPanelParams(); };
  Menu_ChangeSoundName.onClick = [this] { form.App().F_Name.Show(); };
  Menu_General.onClick = [this] { form.App().F_General.Show(); };
  Menu_About.onClick = [this] { form.App().F_About.Show(); };
}

void MainMenu::DisableUntilSound() {
  for (Menu *entry : {&Menu_LFOs, &Menu_ModMatrix, &Menu_ChangeSoundName, &Menu_Arpeggiator,
                      &Menu_General, &Menu_FXSettings, &Menu_SaveSound})
    entry->SetEnabled(false);
}

void MainMenu::ShowFileForm(std::string_view mode) {
  form.App().Module1.FileFormMode = mode;
  form.App().F_FileIO.Show();
}

void MainMenu::Menu_Midisettings_Click() {
  Screen &screen = form.App().Display();
  screen.SetMousePointer(MousePointer::Hourglass);
  form.App().F_Midi.Show();
  screen.SetMousePointer(MousePointer::Default);
}

} // namespace Tessoro
