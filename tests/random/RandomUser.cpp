#include "tests/random/RandomUser.hpp"

#include "surface/Controls.hpp"
#include "surface/Form.hpp"

#include <algorithm>

namespace Tessoro::Random {

std::string NameOf(const Control &control) { return control.Owner().Name() + "." + control.Name(); }

RandomUser::RandomUser(Session &editor, Generator &generator, const Files &machine)
    : session(editor), random(generator) {
  for (const auto &[name, content] : machine)
    fileNames.push_back(name);
  for (const Form *form : session.App.Forms())
    for (const Control *control : form->Controls())
      if (const auto *entry = dynamic_cast<const Menu *>(control)) {
        menus.push_back(entry);
        if (!entry->Shortcut().empty())
          shortcuts.emplace_back(entry->Shortcut());
      }
  Begin();
}

void RandomUser::Begin() {
  planned = {"midi-out \"microQ\"", "midi-out \"Other\" 65535 0 4096 7"};
  if (!OnceIn(random, 5))
    planned.emplace_back("midi-in \"Keyboard\"");
  if (OnceIn(random, 10))
    planned.emplace_back("decimal \",\"");
  planned.emplace_back("start");
  if (!OnceIn(random, 4))
    planned.emplace_back("click F_Tessoro.InitSnd");
  if (OnceIn(random, 4))
    OpenDoors();
}

// In some sessions what the design keeps from the user stands open.
void RandomUser::OpenDoors() {
  for (const Form *form : session.App.Forms())
    for (const Control *control : form->Controls())
      if (!control->DesignEnabled() && control->Type() != ControlType::Menu)
        planned.push_back("set " + NameOf(*control) + ".Enabled True");
  planned.emplace_back("show F_LFO");
  planned.emplace_back("show F_Name");
}

std::string RandomUser::NextLine() {
  if (!planned.empty()) {
    std::string line = planned.front();
    planned.pop_front();
    return line;
  }
  if (session.Pressed != nullptr && !OnceIn(random, 8))
    return NextOfMouse();
  return Act();
}

// The one that was pressed is dragged on, or let go.
std::string RandomUser::NextOfMouse() {
  return MouseLine(OnceIn(random, 10) ? "up" : "move", *session.Pressed);
}

std::string RandomUser::MouseLine(const std::string &act, const Control &control) {
  const auto place = [this] {
    return std::to_string(static_cast<int>(Draw(random, 900)) - 150) +
           (OnceIn(random, 5) ? ".5" : "");
  };
  const bool isFar = OnceIn(random, 2000);
  return "mouse " + act + " " + NameOf(control) + " " + place() + " " + (isFar ? "40000" : place());
}

std::string RandomUser::Act() {
  const std::size_t chance = Draw(random, 100);
  if (chance < 34)
    return ActOnBox();
  if (chance < 46)
    return ActOnList();
  if (chance < 56)
    return ActOnBar();
  if (chance < 68)
    return PressSomething();
  if (chance < 82)
    return ClickSomething();
  if (chance < 87)
    return ActOnForm();
  if (chance < 91)
    return ActOnMenu();
  if (chance < 95)
    return ActOnFile();
  return ActOfTheWorld();
}

// Mostly the main form, and mostly one that is there.
const Form &RandomUser::DrawForm() {
  if (OnceIn(random, 2))
    return session.App.F_Tessoro;
  const std::vector<Form *> &forms = session.App.Forms();
  for (int tries = 0; tries < 20; ++tries)
    if (const Form *form = DrawOf(random, forms); form->IsLoaded())
      return *form;
  return *DrawOf(random, forms);
}

// One of these types, null where the drawn form has none.
template <typename... Types> Control *RandomUser::DrawControl() {
  const Form &form = OnceIn(random, 40) ? *DrawOf(random, session.App.Forms()) : DrawForm();
  std::vector<Control *> found;
  for (Control *control : form.Controls())
    if (((dynamic_cast<Types *>(control) != nullptr) || ...))
      found.push_back(control);
  return found.empty() ? nullptr : DrawOf(random, found);
}

std::string RandomUser::ActOnBox() {
  const Control *const box = DrawControl<TextBox>();
  if (box == nullptr)
    return Act();
  switch (Draw(random, 12)) {
  case 0:
    return "erase " + NameOf(*box);
  case 1:
    return "enter " + NameOf(*box);
  case 2:
    return "dblclick " + NameOf(*box);
  case 3:
    planned.push_back("type " + NameOf(*box) + " " + QuotedText(DrawText(random)));
    return "erase " + NameOf(*box);
  case 4:
    // What stands there is mostly a number, and digits behind it make a greater one.
    return "type " + NameOf(*box) + " \"" + std::to_string(Draw(random, 10)) + "\"";
  default:
    return "paste " + NameOf(*box) + " " + QuotedText(DrawText(random));
  }
}

std::string RandomUser::ActOnList() {
  const auto *const list = dynamic_cast<const ComboBox *>(DrawControl<ComboBox>());
  if (list == nullptr)
    return Act();
  const std::vector<std::string> &items = list->List();
  if (items.empty() || OnceIn(random, 8))
    return "paste " + NameOf(*list) + " " + QuotedText(DrawText(random));
  if (OnceIn(random, 8))
    return "paste " + NameOf(*list) + " " + QuotedText(DrawOf(random, items));
  return "select " + NameOf(*list) + " " + std::to_string(Draw(random, items.size()));
}

std::string RandomUser::ActOnBar() {
  const auto *const bar = dynamic_cast<const ScrollBar *>(DrawControl<ScrollBar>());
  if (bar == nullptr)
    return Act();
  const int lowest = std::min(bar->Min(), bar->Max());
  const auto values = static_cast<std::size_t>(std::abs(bar->Max() - bar->Min())) + 1;
  return "scroll " + NameOf(*bar) + " " +
         std::to_string(lowest + static_cast<int>(Draw(random, values)));
}

std::string RandomUser::PressSomething() {
  if (session.Pressed != nullptr)
    return NextOfMouse();
  const Control *const target = DrawControl<Image, NoteKey>();
  if (target == nullptr)
    return Act();
  switch (Draw(random, 10)) {
  case 0:
    return MouseLine("move", *target);
  case 1:
    return target->Type() == ControlType::Image ? "dblclick " + NameOf(*target)
                                                : "click " + NameOf(*target);
  case 2:
    return "click " + NameOf(*target);
  default:
    return MouseLine("down", *target);
  }
}

std::string RandomUser::ClickSomething() {
  const Control *const target = DrawControl<CommandButton, CheckBox, Label, Frame, TextBox>();
  return target == nullptr ? Act() : "click " + NameOf(*target);
}

std::string RandomUser::ActOnForm() {
  const std::string name = DrawForm().Name();
  const std::string code = OnceIn(random, 3) ? std::to_string(Draw(random, 256)) : "16";
  switch (Draw(random, 8)) {
  case 0:
    // Without its main form a session has little to show.
    return name == "F_Tessoro" && !OnceIn(random, 10) ? Act() : "close " + name;
  case 1:
    return "click " + name;
  case 2:
  case 3:
    return "keydown " + name + " " + code;
  default:
    return "keyup " + name + " " + code;
  }
}

std::string RandomUser::ActOnMenu() {
  if (OnceIn(random, 3))
    return "shortcut \"" + DrawOf(random, shortcuts) + "\"";
  const std::string &name = DrawOf(random, menus)->Name();
  return name == "Menu_Quit" && !OnceIn(random, 10) ? Act() : "menu " + name;
}

std::string RandomUser::ActOnFile() {
  switch (Draw(random, 8)) {
  case 0:
    return "choose F_FileIO.Drive1 \"/\"";
  case 1:
    if (const auto &shown = session.App.F_FileIO.File1.List(); !shown.empty())
      return "choose F_FileIO.File1 " + QuotedText(DrawOf(random, shown));
    return "dblclick F_FileIO.File1";
  case 2:
    return "dblclick F_FileIO.File1";
  case 3:
    return "choose F_FileIO.Dir1 " + QuotedText(session.App.F_FileIO.Dir1.Path());
  case 4:
    planned.push_back("paste F_FileIO.TextFilename " + QuotedText(DrawText(random)));
    planned.emplace_back("click F_FileIO.C_File");
    return OnceIn(random, 2) ? "menu Menu_SaveSound" : "menu Menu_OpenSound";
  default:
    planned.push_back("paste F_FileIO.TextFilename " + QuotedText(DrawOf(random, fileNames)));
    planned.emplace_back(OnceIn(random, 3) ? "enter F_FileIO.TextFilename"
                                           : "click F_FileIO.C_File");
    return "menu Menu_OpenSound";
  }
}

std::string RandomUser::ActOfTheWorld() {
  static const std::string answers[] = {"OK", "Cancel", "Yes", "No"};
  static const std::string operations[] = {
      "midiOutOpen",          "midiOutClose",          "midiOutShortMsg",
      "midiOutPrepareHeader", "midiOutLongMsg",        "midiOutGetDevCapsA",
      "midiInOpen",           "midiInClose",           "midiInStart",
      "midiInStop",           "midiInGetDevCapsA",     "midiConnect",
      "midiDisconnect",       "midiOutUnprepareHeader"};
  switch (Draw(random, 4)) {
  case 0:
    return "tick " + std::to_string(Draw(random, 9000));
  case 1:
    return "midi-fail " + DrawOf(random, operations) + " " + std::to_string(Draw(random, 9)) + " " +
           std::to_string(Draw(random, 6));
  case 2:
    return "random 0." + std::to_string(Draw(random, 1000));
  default:
    return "answer " + DrawOf(random, answers);
  }
}

} // namespace Tessoro::Random
