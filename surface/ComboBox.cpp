#include "surface/ComboBox.hpp"

#include "surface/Conversions.hpp"
#include "surface/UserAct.hpp"

#include <algorithm>

namespace Tessoro {

ComboBox::ComboBox(Form &form, std::string_view name, Place place,
                   const ComboBoxDesign &comboDesign)
    : Control(form, name, place,
              {.toolTip = comboDesign.toolTip,
               .says = comboDesign.says,
               .enabled = comboDesign.enabled}),
      design(comboDesign), list(comboDesign.items.begin(), comboDesign.items.end()),
      text(comboDesign.text) {}

PropertyEntries ComboBox::Properties() {
  PropertyEntries entries = Control::Properties();
  entries.push_back(TextProperty(
      "Text", [this] { return text; }, [this](const std::string &value) { SetText(value); }));
  entries.push_back(NumberProperty(
      "ListIndex", [this] { return listIndex; },
      [this](double value) { SetListIndex(RoundInteger(value)); }));
  return entries;
}

void ComboBox::ResetToDesign() {
  Control::ResetToDesign();
  list.assign(design.items.begin(), design.items.end());
  text.assign(design.text);
  listIndex = -1;
}

void ComboBox::SetText(std::string_view value) {
  if (value == text)
    return;
  text.assign(value);
  const auto found = std::find(list.begin(), list.end(), text);
  listIndex = found == list.end() ? -1 : static_cast<int>(found - list.begin());
  Tell(Property::Text);
  if (onChange)
    onChange();
}

bool ComboBox::HasItem(int index) const {
  return index >= 0 && static_cast<std::size_t>(index) < list.size();
}

void ComboBox::TakeItem(int index) {
  listIndex = index;
  text.assign(index < 0 ? std::string_view() : list[static_cast<std::size_t>(index)]);
  Tell(Property::ListIndex);
}

void ComboBox::SetListIndex(int index) {
  if (index != -1 && !HasItem(index))
    throw Failure(FailureCode::InvalidPropertyValue);
  const bool differs = index != listIndex;
  if (differs || index == -1)
    TakeItem(index);
  if (differs && onClick)
    onClick();
}

void ComboBox::AddItem(std::string_view item) {
  list.emplace_back(item);
  Tell(Property::Items);
}

Color ComboBox::BackColor() const { return design.enabled ? Colors::Navy : Colors::Amber; }

Reach ComboBox::UserSelect(int index) {
  return Perform([this, index] {
    TakeItem(index);
    if (onClick)
      onClick();
  });
}

Reach ComboBox::UserEdit(std::string_view edited) {
  return Perform([this, edited] { SetText(edited); });
}

Reach ComboBox::UserType(std::string_view typed) {
  Reach reach = ReachOfUser();
  for (std::size_t i = 0; i < typed.size() && reach == Reach::Done && !App().HasEnded(); ++i)
    reach = UserEdit(text + typed[i]);
  return reach;
}

} // namespace Tessoro
