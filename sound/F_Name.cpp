#include "sound/F_Name.hpp"

#include "shell/Application.hpp"
#include "sound/SoundText.hpp"

namespace Tessoro {

F_Name::F_Name(Application &app)
    : Form(app, "F_Name", {.caption = "Sound name", .width = 4740, .height = 1890}) {
  C_ChangeSoundName.onClick = [this] {
    SendName();
    SendCategory();
    Unload();
  };
  C_ChangeCat.onClick = [this] { SendCategory(); };
  Command1.onClick = [this] { Unload(); };
}

void F_Name::Form_Load() {
  TextSoundName.SetText(App().Module1.SoundName);
  TextSoundCategory.SetText(App().Module1.SoundCategory);
}

void F_Name::SendName() {
  SendSoundText(App().Module1, SoundNameText, TextSoundName.Text(), App().Module1.SoundName);
}

void F_Name::SendCategory() {
  SendSoundText(App().Module1, SoundCategoryText, TextSoundCategory.Text(),
                App().Module1.SoundCategory);
}

} // namespace Tessoro
