#include "surface/ScrollBar.hpp"

#include "surface/Conversions.hpp"
#include "surface/UserAct.hpp"

#include <algorithm>

namespace Tessoro {

ScrollBar::ScrollBar(Form &form, std::string_view name, Place place, const ScrollBarDesign &design)
    : Control(form, name, place,
              {.toolTip = design.toolTip, .says = design.says, .enabled = design.enabled}),
      limits(design), value(DesignValue()) {}

int ScrollBar::DesignValue() const { return HasValue(limits.value) ? limits.value : limits.min; }

PropertyEntries ScrollBar::Properties() {
  PropertyEntries entries = Control::Properties();
  entries.push_back(NumberProperty(
      "Value", [this] { return value; },
      [this](double number) { SetValue(RoundInteger(number)); }));
  entries.push_back(NumberProperty(
      "Min", [this] { return Min(); }, nullptr));
  entries.push_back(NumberProperty(
      "Max", [this] { return Max(); }, nullptr));
  entries.push_back(NumberProperty(
      "LargeChange", [this] { return LargeChange(); }, nullptr, false));
  return entries;
}

void ScrollBar::ResetToDesign() {
  Control::ResetToDesign();
  value = DesignValue();
}

bool ScrollBar::HasValue(int number) const {
  return number >= std::min(limits.min, limits.max) && number <= std::max(limits.min, limits.max);
}

void ScrollBar::SetValue(int number) {
  if (!HasValue(number))
    throw Failure(FailureCode::InvalidPropertyValue);
  if (number == value)
    return;
  value = number;
  Tell(Property::Value);
  if (onChange)
    onChange();
}

Reach ScrollBar::UserScroll(int number) {
  return Perform([this, number] { SetValue(number); });
}

} // namespace Tessoro
