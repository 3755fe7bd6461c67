// What the user does with keys, lists, menus and windows, and with the time that passes.
#include "face/headless/Commands.hpp"
#include "face/headless/Targets.hpp"

#include <cmath>
#include <filesystem>
#include <limits>
#include <optional>

namespace Tessoro {

namespace {

constexpr std::int64_t HighestNumber = std::numeric_limits<std::int32_t>::max();
constexpr int EnterKey = 13;

// An index or a value; nothing for a number that is none, which no list and no bar has.
std::optional<int> WholeInt(const Word &word) {
  if (word.number != std::trunc(word.number) || std::abs(word.number) > HighestNumber)
    return std::nullopt;
  return static_cast<int>(word.number);
}

void Type(Session &session, const Words &words) {
  ActOn<TextBox, ComboBox>(session, ControlNamed(session, words[0]),
                           [&](auto &box) { box.UserType(words[1].text); });
}

void Erase(Session &session, const Words &words) {
  ActOn<TextBox, ComboBox>(session, ControlNamed(session, words[0]),
                           [](auto &box) { box.UserErase(); });
}

void Paste(Session &session, const Words &words) {
  ActOn<TextBox, ComboBox>(session, ControlNamed(session, words[0]),
                           [&](auto &box) { box.UserEdit(words[1].text); });
}

void Enter(Session &session, const Words &words) {
  ActOn<TextBox>(session, ControlNamed(session, words[0]),
                 [](TextBox &box) { box.UserKeyPress(EnterKey); });
}

void Select(Session &session, const Words &words) {
  ActOn<ComboBox>(session, ControlNamed(session, words[0]), [&](ComboBox &list) {
    const std::optional<int> index = WholeInt(words[1]);
    if (!index || !list.HasItem(*index))
      throw ScriptError(words[0].text + " has no item " + words[1].text);
    list.UserSelect(*index);
  });
}

void Scroll(Session &session, const Words &words) {
  ActOn<ScrollBar>(session, ControlNamed(session, words[0]), [&](ScrollBar &bar) {
    const std::optional<int> value = WholeInt(words[1]);
    if (!value || !bar.HasValue(*value))
      throw ScriptError(words[0].text + " has no value " + words[1].text);
    bar.UserScroll(*value);
  });
}

// A key that stands for a character raises KeyPress behind its KeyDown: Backspace, Tab, Enter,
// Escape, the space bar, digits and letters.
bool HasCharacter(int keyCode) {
  return keyCode == 8 || keyCode == 9 || keyCode == 13 || keyCode == 27 || keyCode == 32 ||
         (keyCode >= '0' && keyCode <= '9') || (keyCode >= 'A' && keyCode <= 'Z');
}

int KeyCode(const Word &word) {
  constexpr int highest = 255;
  return static_cast<int>(WholeNumber(word, 0, highest));
}

void KeyDown(Session &session, const Words &words) {
  Form &form = FormNamed(session, words[0]);
  if (!session.IsReached(form.ReachOfUser()))
    return;
  const int keyCode = KeyCode(words[1]);
  form.UserKeyDown(keyCode);
  if (HasCharacter(keyCode))
    form.UserKeyPress(keyCode);
}

void KeyUp(Session &session, const Words &words) {
  Form &form = FormNamed(session, words[0]);
  if (session.IsReached(form.ReachOfUser()))
    form.UserKeyUp(KeyCode(words[1]));
}

void ClickMenu(Session &session, const Words &words) {
  session.IsReached(MenuNamed(session, words[0]).UserClick());
}

// Keys without an entry that could be clicked do nothing, and nobody is told.
void Shortcut(Session &session, const Words &words) {
  const Form &mainForm = session.App.F_Tessoro;
  if (!session.IsReached(mainForm.ReachOfUser()))
    return;
  if (Menu *const entry = FindShortcut(mainForm, words[0].text))
    entry->UserClick();
}

bool CanChoose(const DriveListBox &list, const std::string &text) { return list.HasDrive(text); }

bool CanChoose(const DirListBox &list, const std::string &text) {
  return std::filesystem::path(text).is_absolute() && list.IsFolder(text);
}

bool CanChoose(const FileListBox &list, const std::string &text) { return list.HasFile(text); }

void Choose(Session &session, const Words &words) {
  ActOn<DriveListBox, DirListBox, FileListBox>(
      session, ControlNamed(session, words[0]), [&](auto &list) {
        if (!CanChoose(list, words[1].text))
          throw ScriptError(words[0].text + " doesn't show " + Shown(words[1]));
        list.UserChoose(words[1].text);
      });
}

void Close(Session &session, const Words &words) {
  session.IsReached(FormNamed(session, words[0]).UserClose());
}

void Answer(Session &session, const Words &words) {
  for (const Word &word : words)
    if (!FindButton(word.text))
      throw ScriptError("no button " + Shown(word));
  for (const Word &word : words)
    session.Screen.QueueAnswer(*FindButton(word.text));
}

void Tick(Session &session, const Words &words) {
  session.Clock.Pass(WholeNumber(words[0], 0, HighestNumber),
                     [&session] { return session.App.HasEnded(); });
}

constexpr Command UserTable[] = {
    {"type", "CONTROL TEXT", Type, "keys into a box, one after the other"},
    {"erase", "CONTROL", Erase, "empties a box"},
    {"paste", "CONTROL TEXT", Paste, "puts the text into a box at once"},
    {"enter", "CONTROL", Enter, "the Enter key in a box"},
    {"select", "CONTROL NUMBER", Select, "picks an item of a list, counted from 0"},
    {"scroll", "CONTROL NUMBER", Scroll, "moves a bar to that value"},
    {"keydown", "FORM NUMBER", KeyDown, "presses a key, by its code"},
    {"keyup", "FORM NUMBER", KeyUp, "lets go of it"},
    {"menu", "ENTRY", ClickMenu, "picks a menu entry, as Menu_Panic"},
    {"shortcut", "TEXT", Shortcut, "keys over the main form, as \"Ctrl+O\""},
    {"choose", "CONTROL TEXT", Choose, "picks from a list of drives, folders or files"},
    {"close", "FORM", Close, "the cross of a window"},
    {"answer", "BUTTON...", Answer, "answers the boxes to come: OK, Cancel, Yes, No"},
    {"tick", "NUMBER", Tick, "lets so many milliseconds pass"},
};

} // namespace

Commands UserCommands() { return UserTable; }

} // namespace Tessoro
