#include "tests/face/Workbench.hpp"

#include "surface/Conversions.hpp"

namespace Tessoro::Tests {

namespace {

std::string PlaceText(const MouseEvent &event) {
  return IntegerText(event.button) + " " + NumberText(event.x) + " " + NumberText(event.y);
}

} // namespace

Workbench::Workbench(Application &app, bool keyPreview)
    : Form(app, "Workbench",
           {.caption = "Workbench", .width = 7000, .height = 4200, .keyPreview = keyPreview}) {
  for (Menu *entry : {&Menu_Order, &Menu_Disabled, &Menu_Hidden, &Menu_All, &Menu_Alone})
    entry->onClick = [this, entry] { Hear(entry->Name() + " Click"); };
  ListenToFields();
  ListenToPointer();
  ListenToLists();
  Clockwork.onTimer = [this] { Hear("Clockwork Timer"); };
}

void Workbench::ListenToFields() {
  for (TextBox *box : {&Box, &Name, &Blended}) {
    box->onChange = [this, box] { Hear(box->Name() + " Change " + box->Text()); };
    box->onClick = [this, box] { Hear(box->Name() + " Click"); };
    box->onDblClick = [this, box] { Hear(box->Name() + " DblClick"); };
    box->onKeyPress = [this, box](int code) {
      Hear(box->Name() + " KeyPress " + IntegerText(code));
    };
  }
  Combo.onChange = [this] { Hear("Combo Change " + Combo.Text()); };
  Combo.onClick = [this] { Hear("Combo Click " + IntegerText(Combo.ListIndex())); };
  Check.onClick = [this] { Hear("Check Click " + IntegerText(Check.Value())); };
  Push.onClick = [this] { Hear("Push Click"); };
  Dead.onClick = [this] { Hear("Dead Click"); };
  HBar.onChange = [this] { Hear("HBar Change " + IntegerText(HBar.Value())); };
  VBar.onChange = [this] { Hear("VBar Change " + IntegerText(VBar.Value())); };
}

void Workbench::ListenToPointer() {
  for (MouseControl *control :
       std::initializer_list<MouseControl *>{&Knob, &OtherKnob, &Routing, &Serial, &Key}) {
    control->onMouseDown = [this, control](const MouseEvent &event) {
      Hear(control->Name() + " MouseDown " + PlaceText(event));
    };
    control->onMouseMove = [this, control](const MouseEvent &event) {
      Hear(control->Name() + " MouseMove " + PlaceText(event));
    };
    control->onMouseUp = [this, control](const MouseEvent &event) {
      Hear(control->Name() + " MouseUp " + PlaceText(event));
    };
  }
  for (Image *image : {&Knob, &OtherKnob, &Routing, &Serial}) {
    image->onClick = [this, image] { Hear(image->Name() + " Click"); };
    image->onDblClick = [this, image] { Hear(image->Name() + " DblClick"); };
  }
  Tag.onClick = [this] { Hear("Tag Click"); };
  Group.onClick = [this] { Hear("Group Click"); };
}

void Workbench::ListenToLists() {
  Drive.onChange = [this] { Hear("Drive Change " + Drive.Drive()); };
  Dir.onChange = [this] { Hear("Dir Change " + Dir.Path()); };
  File.onClick = [this] { Hear("File Click " + File.FileName()); };
  File.onDblClick = [this] { Hear("File DblClick"); };
}

void Workbench::Form_Click() {
  if (onFormClick)
    onFormClick();
  else
    Hear("Form Click");
}

void Workbench::Form_KeyDown(int keyCode, int shift) {
  Hear("KeyDown " + IntegerText(keyCode) + " " + IntegerText(shift));
}

void Workbench::Form_KeyUp(int keyCode, int shift) {
  Hear("KeyUp " + IntegerText(keyCode) + " " + IntegerText(shift));
}

void Workbench::Form_KeyPress(int keyAscii) { Hear("KeyPress " + IntegerText(keyAscii)); }

} // namespace Tessoro::Tests
