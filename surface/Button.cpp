#include "surface/Button.hpp"

#include "surface/Conversions.hpp"
#include "surface/UserAct.hpp"

namespace Tessoro {

namespace {

// Fails with 380 for more or less than 24 bits.
Color ColorOf(double number) {
  constexpr std::int64_t highest = 0xFFFFFF;
  const std::int64_t color = RoundHalfEven(number);
  if (color < 0 || color > highest)
    throw Failure(FailureCode::InvalidPropertyValue);
  return static_cast<Color>(color);
}

} // namespace

CommandButton::CommandButton(Form &form, std::string_view name, Place place,
                             const ButtonDesign &buttonDesign)
    : Control(form, name, place,
              {.toolTip = buttonDesign.toolTip,
               .says = buttonDesign.says,
               .enabled = buttonDesign.enabled}),
      design(buttonDesign), caption(buttonDesign.caption) {}

PropertyEntries CommandButton::Properties() {
  PropertyEntries entries = Control::Properties();
  entries.push_back(TextProperty(
      "Caption", [this] { return caption; },
      [this](const std::string &text) { SetCaption(text); }));
  return entries;
}

void CommandButton::ResetToDesign() {
  Control::ResetToDesign();
  caption.assign(design.caption);
}

void CommandButton::SetCaption(std::string_view text) {
  if (text == caption)
    return;
  caption.assign(text);
  Tell(Property::Caption);
}

Reach CommandButton::UserClick() {
  return Perform([this] {
    if (onClick)
      onClick();
  });
}

CheckBox::CheckBox(Form &form, std::string_view name, Place place,
                   const CheckBoxDesign &checkDesign)
    : Control(form, name, place,
              {.toolTip = checkDesign.toolTip,
               .says = checkDesign.says,
               .enabled = checkDesign.enabled}),
      design(checkDesign), caption(checkDesign.caption), backColor(checkDesign.backColor),
      foreColor(checkDesign.foreColor), value(checkDesign.value) {}

PropertyEntries CheckBox::Properties() {
  PropertyEntries entries = Control::Properties();
  entries.push_back(NumberProperty(
      "Value", [this] { return value; },
      [this](double number) { SetValue(RoundInteger(number)); }));
  entries.push_back(TextProperty(
      "Caption", [this] { return caption; },
      [this](const std::string &text) { SetCaption(text); }));
  entries.push_back(NumberProperty(
      "BackColor", [this] { return backColor; },
      [this](double color) { SetBackColor(ColorOf(color)); }));
  entries.push_back(NumberProperty(
      "ForeColor", [this] { return foreColor; },
      [this](double color) { SetForeColor(ColorOf(color)); }));
  return entries;
}

void CheckBox::ResetToDesign() {
  Control::ResetToDesign();
  caption.assign(design.caption);
  backColor = design.backColor;
  foreColor = design.foreColor;
  value = design.value;
}

void CheckBox::SetValue(int number) {
  if (number != 0 && number != 1)
    throw Failure(FailureCode::InvalidPropertyValue);
  if (number == value)
    return;
  value = number;
  Tell(Property::Value);
  if (onClick)
    onClick();
}

void CheckBox::SetCaption(std::string_view text) {
  if (text == caption)
    return;
  caption.assign(text);
  Tell(Property::Caption);
}

void CheckBox::SetBackColor(Color color) {
  backColor = color;
  Tell(Property::BackColor);
}

void CheckBox::SetForeColor(Color color) {
  foreColor = color;
  Tell(Property::ForeColor);
}

Reach CheckBox::UserClick() {
  return Perform([this] { SetValue(1 - value); });
}

} // namespace Tessoro
