#include "shell/F_About.hpp"

#include "shell/Application.hpp"

namespace Tessoro {

F_About::F_About(Application &app)
    : Form(app, "F_About", {.caption = "About Tessoro", .width = 6600, .height = 3600}) {
  const auto close = [this] { Unload(); };
  Frame1.onClick = close;
  imgLogo.onClick = close;
  for (Label *label : {&lblProductName, &lblVersion, &Label1, &LabelPurpose, &LabelRoad,
                       &LabelLicence, &LabelTrademark})
    label->onClick = close;
}

void F_About::Form_Load() {
  lblVersion.SetCaption("Version " + App().VersionText());
  lblProductName.SetCaption(App().System().title);
}

void F_About::Form_KeyDown(int /*keyCode*/, int /*shift*/) { Unload(); }

// Of a key that has a character and no code.
void F_About::Form_KeyPress(int /*keyAscii*/) { Unload(); }

} // namespace Tessoro
