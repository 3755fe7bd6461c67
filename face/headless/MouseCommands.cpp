// What the user does with the mouse.
#include "face/headless/Commands.hpp"
#include "face/headless/Targets.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tessoro {

namespace {

constexpr int LeftButton = 1;

template <typename Clicked> void ClickOn(Clicked &control) { control.UserClick(); }

void ClickOn(NoteKey &key) {
  key.UserMouseDown({});
  key.UserMouseUp({});
}

void ClickOn(Image &image) {
  image.UserMouseDown({});
  image.UserMouseUp({});
  image.UserClick();
}

void Click(Session &session, const Words &words) {
  if (Form *const form = session.App.FindForm(words[0].text)) {
    session.IsReached(form->UserClick());
    return;
  }
  ActOn<CommandButton, CheckBox, Image, NoteKey, Label, TextBox, Frame>(
      session, ControlNamed(session, words[0]), [](auto &control) { ClickOn(control); });
}

template <typename Clicked> void DoubleClickOn(Clicked &control) { control.UserDblClick(); }

// The second press of a double click is heard of as DblClick instead.
void DoubleClickOn(Image &image) {
  ClickOn(image);
  image.UserDblClick();
  image.UserMouseUp({});
}

void DoubleClick(Session &session, const Words &words) {
  ActOn<TextBox, Image, FileListBox>(session, ControlNamed(session, words[0]),
                                     [](auto &control) { DoubleClickOn(control); });
}

float Twips(const Word &word) {
  if (std::fabs(word.number) > std::numeric_limits<float>::max())
    throw ScriptError(Shown(word) + " is no place on a form");
  return static_cast<float>(word.number);
}

void Down(Session &session, MouseControl &control, const MouseEvent &event) {
  if (session.Pressed != nullptr)
    throw ScriptError("the mouse button is down already");
  if (!session.IsReached(control.ReachOfUser()))
    return;
  session.Pressed = &control;
  control.UserMouseDown(event);
}

void Move(Session &session, MouseControl &control, const MouseEvent &event) {
  session.IsReached(control.UserMouseMove(event));
}

void Up(Session &session, MouseControl &control, const MouseEvent &event) {
  if (session.Pressed == nullptr && control.ReachOfUser() == Reach::Done)
    throw ScriptError("the mouse button isn't down");
  // Let go all the same where the control has got out of reach meanwhile.
  session.Pressed = nullptr;
  session.IsReached(control.UserMouseUp(event));
}

struct MouseAct {
  std::string_view name;
  void (*act)(Session &session, MouseControl &control, const MouseEvent &event);
};

constexpr MouseAct MouseActs[] = {{"down", Down}, {"move", Move}, {"up", Up}};

void Mouse(Session &session, const Words &words) {
  const auto *const found = std::ranges::find(MouseActs, words[0].text, &MouseAct::name);
  if (found == std::end(MouseActs))
    throw ScriptError("the mouse goes down, move or up");
  Control &control = ControlNamed(session, words[1]);
  auto *const target = dynamic_cast<MouseControl *>(&control);
  if (target == nullptr)
    RefuseType(control);
  if (session.Pressed != nullptr && session.Pressed != target)
    throw ScriptError("the mouse button went down on " + session.Pressed->Owner().Name() + "." +
                      session.Pressed->Name());
  const bool isHover = session.Pressed == nullptr && found->name == "move";
  found->act(session, *target,
             {.button = isHover ? 0 : LeftButton, .x = Twips(words[2]), .y = Twips(words[3])});
}

constexpr Command MouseTable[] = {
    {"click", "CONTROL", Click, "clicks on anything that can be clicked"},
    {"dblclick", "CONTROL", DoubleClick, "clicks twice"},
    {"mouse", "ACT CONTROL NUMBER NUMBER", Mouse, "down, move or up at X Y, 15 to a pixel"},
};

} // namespace

Commands MouseCommands() { return MouseTable; }

} // namespace Tessoro
