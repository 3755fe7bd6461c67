#include "shell/F_Preferences.hpp"

#include "shell/Application.hpp"

namespace Tessoro {

namespace {

// The fine speed counts moves to skip, so its bar runs the other way.
constexpr int FineChangeTop = 6;

} // namespace

F_Preferences::F_Preferences(Application &app)
    : Form(app, "F_Preferences", {.caption = "Preferences", .width = 4560, .height = 2700}) {
  HScrollknobStandardChange.onChange = [this] {
    App().Module1.KnobStandardChange = static_cast<std::int16_t>(HScrollknobStandardChange.Value());
  };
  HScrollknobFineChange.onChange = [this] {
    App().Module1.KnobFineChange = FineChangeTop - HScrollknobFineChange.Value();
  };
  Command1.onClick = [this] { Unload(); };
}

void F_Preferences::Form_Load() {
  HScrollknobStandardChange.SetValue(App().Module1.KnobStandardChange);
  HScrollknobFineChange.SetValue(FineChangeTop - App().Module1.KnobFineChange);
}

} // namespace Tessoro
