#include "surface/TextBox.hpp"

#include "surface/UserAct.hpp"

namespace Tessoro {

TextBox::TextBox(Form &form, std::string_view name, Place place, const TextBoxDesign &boxDesign)
    : Control(form, name, place,
              {.toolTip = boxDesign.toolTip, .says = boxDesign.says, .enabled = boxDesign.enabled}),
      design(boxDesign), text(boxDesign.text) {}

PropertyEntries TextBox::Properties() {
  PropertyEntries entries = Control::Properties();
  entries.push_back(TextProperty(
      "Text", [this] { return text; }, [this](const std::string &value) { SetText(value); }));
  return entries;
}

void TextBox::ResetToDesign() {
  Control::ResetToDesign();
  text.assign(design.text);
}

void TextBox::SetText(std::string_view value) {
  if (design.maxLength != 0)
    value = value.substr(0, design.maxLength);
  if (value == text)
    return;
  text.assign(value);
  Tell(Property::Text);
  if (onChange)
    onChange();
}

// A box that the form was made with but that nobody is to use blends into the form.
Color TextBox::BackColor() const { return design.enabled ? Colors::Navy : Colors::Amber; }

Reach TextBox::UserEdit(std::string_view edited) {
  return Perform([this, edited] { SetText(edited); });
}

Reach TextBox::UserType(std::string_view typed) {
  Reach reach = ReachOfUser();
  for (std::size_t i = 0; i < typed.size() && reach == Reach::Done && !App().HasEnded(); ++i)
    reach = UserEdit(text + typed[i]);
  return reach;
}

Reach TextBox::UserClick() {
  return Perform([this] {
    if (onClick)
      onClick();
  });
}

Reach TextBox::UserDblClick() {
  return Perform([this] {
    if (onDblClick)
      onDblClick();
  });
}

Reach TextBox::UserKeyPress(int keyAscii) {
  return Perform([this, keyAscii] {
    if (onKeyPress)
      onKeyPress(keyAscii);
  });
}

} // namespace Tessoro
