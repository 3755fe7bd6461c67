// An entry of the menu bar: a title, a command or a separator.
#pragma once

#include "surface/Control.hpp"

namespace Tessoro {

struct MenuDesign {
  // With & before the access key; "-" is a separator.
  std::string_view caption = {};
  // As "Ctrl+O" or "F12"; empty for none.
  std::string_view shortcut = {};
  bool enabled = true;
  bool visible = true;
};

class Menu : public Control {
public:
  // No parent: a title of the menu bar.
  Menu(Form &form, std::string_view name, const Menu *parentEntry, const MenuDesign &design);

  ControlType Type() const override { return ControlType::Menu; }
  PropertyEntries Properties() override;
  // An entry is out of reach with the title that it hangs under.
  Reach ReachOfUser() const override;

  const Menu *Parent() const { return parent; }
  std::string_view Caption() const { return design.caption; }
  std::string_view Shortcut() const { return design.shortcut; }
  bool IsSeparator() const { return design.caption == "-"; }
  Reach UserClick();

  std::function<void()> onClick;

private:
  const Menu *const parent;
  const MenuDesign design;
};

// The entry of the form that has these keys, or null.
Menu *FindShortcut(const Form &form, std::string_view keys);

} // namespace Tessoro
