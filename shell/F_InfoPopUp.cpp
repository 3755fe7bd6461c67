#include "shell/F_InfoPopUp.hpp"

#include "shell/Application.hpp"

namespace Tessoro {

F_InfoPopUp::F_InfoPopUp(Application &app)
    : Form(app, "F_InfoPopUp", {.caption = "Tessoro info", .width = 6000, .height = 2850}) {
  InfoText.onClick = [this] { Unload(); };
  Label1.onClick = [this] { Unload(); };
  Check1.onClick = [this] { Check1_Click(); };
}

void F_InfoPopUp::Check1_Click() {
  App().Module1.ShowInfoPopUp = "No";
  Unload();
}

} // namespace Tessoro
