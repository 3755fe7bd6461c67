#include "surface/Control.hpp"

#include "shell/Application.hpp"
#include "surface/Form.hpp"

namespace Tessoro {

Control::Control(Form &form, std::string_view name, Place place, const ControlDesign &design)
    : ownerForm(form), ownName(name), designPlace(place), common(design), isEnabled(design.enabled),
      isVisible(design.visible) {
  form.Add(*this);
}

Application &Control::App() const { return ownerForm.App(); }

PropertyEntries Control::Properties() {
  return {
      TruthProperty(
          "Enabled", [this] { return Enabled(); }, [this](bool value) { SetEnabled(value); }),
      TruthProperty(
          "Visible", [this] { return Visible(); }, [this](bool value) { SetVisible(value); },
          false),
      TextProperty(
          "ToolTipText", [this] { return std::string(ToolTipText()); }, nullptr, false),
  };
}

void Control::ResetToDesign() {
  isEnabled = common.enabled;
  isVisible = common.visible;
}

void Control::SetEnabled(bool value) {
  if (value == isEnabled)
    return;
  isEnabled = value;
  Tell(Property::Enabled);
}

void Control::SetVisible(bool value) {
  if (value == isVisible)
    return;
  isVisible = value;
  Tell(Property::Visible);
}

Reach Control::ReachOfUser() const {
  const Reach ofForm = ownerForm.ReachOfUser();
  if (ofForm != Reach::Done)
    return ofForm;
  if (!isVisible || designPlace.width == 0)
    return Reach::Hidden;
  return isEnabled ? Reach::Done : Reach::Disabled;
}

void Control::Tell(Property property) { App().Display().PropertyChanged(*this, property); }

PropertyEntry TruthProperty(std::string_view name, std::function<bool()> get,
                            std::function<void(bool)> set, bool listed) {
  return {std::string(name), listed, [get = std::move(get)] { return Value(get()); },
          [set = std::move(set)](const Value &value) { set(std::get<bool>(value)); },
          ValueKind::Truth};
}

PropertyEntry NumberProperty(std::string_view name, std::function<double()> get,
                             std::function<void(double)> set, bool listed) {
  PropertyEntry entry{std::string(name), listed, [get = std::move(get)] { return Value(get()); },
                      nullptr, ValueKind::Number};
  if (set)
    entry.set = [set = std::move(set)](const Value &value) { set(std::get<double>(value)); };
  return entry;
}

PropertyEntry TextProperty(std::string_view name, std::function<std::string()> get,
                           std::function<void(const std::string &)> set, bool listed) {
  PropertyEntry entry{std::string(name), listed, [get = std::move(get)] { return Value(get()); },
                      nullptr, ValueKind::Text};
  if (set)
    entry.set = [set = std::move(set)](const Value &value) { set(std::get<std::string>(value)); };
  return entry;
}

} // namespace Tessoro
