#include "surface/Form.hpp"

#include "shell/Application.hpp"
#include "surface/Timer.hpp"

#include <algorithm>

namespace Tessoro {

namespace {

template <typename Act> void ForEachTimer(const Form &form, Act &&act) {
  for (Control *control : form.Controls())
    if (auto *timer = dynamic_cast<Timer *>(control))
      act(*timer);
}

} // namespace

Form::Form(Application &app, std::string_view name, const FormDesign &design)
    : application(app), ownName(name), ownDesign(design), caption(design.caption) {
  app.Add(*this);
}

Control *Form::FindControl(std::string_view controlName) const {
  const auto found = std::find_if(controls.begin(), controls.end(), [&](const Control *control) {
    return control->Name() == controlName;
  });
  return found == controls.end() ? nullptr : *found;
}

void Form::Add(Control &control) { controls.push_back(&control); }

void Form::SetCaption(std::string_view text) {
  if (text == caption)
    return;
  caption.assign(text);
  application.Display().CaptionChanged(*this);
}

void Form::Load() {
  if (loaded)
    return;
  caption.assign(ownDesign.caption);
  for (Control *control : controls)
    control->ResetToDesign();
  loaded = true;
  application.Display().FormLoading(*this);
  Form_Load();
}

void Form::Show() {
  Load();
  if (!loaded)
    return; // it was unloaded by its own Form_Load
  shown = true;
  application.Display().FormShown(*this);
  ForEachTimer(*this, [](Timer &timer) { timer.FormShown(); });
}

void Form::Unload() {
  if (!loaded || unloading)
    return;
  unloading = true;
  Form_Unload();
  unloading = false;
  loaded = false;
  shown = false;
  ForEachTimer(*this, [](Timer &timer) { timer.FormGone(); });
  application.Display().FormUnloaded(*this);
  application.FormHasGone();
}

Reach Form::ReachOfUser() const {
  if (!loaded)
    return Reach::Unloaded;
  return shown ? Reach::Done : Reach::Hidden;
}

template <typename Act> Reach Form::Perform(Act &&act) {
  const Reach reach = ReachOfUser();
  if (reach == Reach::Done)
    application.Event(act);
  return reach;
}

Reach Form::UserClose() {
  return Perform([this] { Unload(); });
}

Reach Form::UserClick() {
  return Perform([this] { Form_Click(); });
}

Reach Form::UserKeyDown(int keyCode, int shift) {
  return Perform([this, keyCode, shift] { Form_KeyDown(keyCode, shift); });
}

Reach Form::UserKeyUp(int keyCode, int shift) {
  return Perform([this, keyCode, shift] { Form_KeyUp(keyCode, shift); });
}

Reach Form::UserKeyPress(int keyAscii) {
  return Perform([this, keyAscii] { Form_KeyPress(keyAscii); });
}

} // namespace Tessoro
