#include "surface/Menu.hpp"

#include "surface/Form.hpp"
#include "surface/UserAct.hpp"

namespace Tessoro {

Menu::Menu(Form &form, std::string_view name, const Menu *parentEntry, const MenuDesign &menuDesign)
    : Control(form, name, {}, {.enabled = menuDesign.enabled, .visible = menuDesign.visible}),
      parent(parentEntry), design(menuDesign) {}

PropertyEntries Menu::Properties() {
  PropertyEntries entries = Control::Properties();
  for (PropertyEntry &entry : entries)
    entry.listed = entry.listed || entry.name == "Visible";
  entries.push_back(TextProperty(
      "Caption", [this] { return std::string(design.caption); }, nullptr, false));
  return entries;
}

Reach Menu::ReachOfUser() const {
  Reach reach = parent == nullptr ? Owner().ReachOfUser() : parent->ReachOfUser();
  if (reach != Reach::Unloaded && reach != Reach::Hidden && !Visible())
    return Reach::Hidden;
  if (reach == Reach::Done && !Enabled())
    return Reach::Disabled;
  return reach;
}

Reach Menu::UserClick() {
  return Perform([this] {
    if (onClick)
      onClick();
  });
}

Menu *FindShortcut(const Form &form, std::string_view keys) {
  for (Control *control : form.Controls())
    if (auto *entry = dynamic_cast<Menu *>(control); entry != nullptr && entry->Shortcut() == keys)
      return entry;
  return nullptr;
}

} // namespace Tessoro
