// What is pressed: the command button and the check box.
#pragma once

#include "surface/Control.hpp"

namespace Tessoro {

struct ButtonDesign {
  // With & before the access key.
  std::string_view caption = {};
  std::string_view toolTip = {};
  std::string_view says = {};
  bool enabled = true;
};

class CommandButton : public Control {
public:
  CommandButton(Form &form, std::string_view name, Place place, const ButtonDesign &design);

  ControlType Type() const override { return ControlType::CommandButton; }
  PropertyEntries Properties() override;
  void ResetToDesign() override;

  const std::string &Caption() const { return caption; }
  void SetCaption(std::string_view text);
  Reach UserClick();

  std::function<void()> onClick;

private:
  const ButtonDesign design;
  std::string caption;
};

struct CheckBoxDesign {
  std::string_view caption = {};
  std::string_view toolTip = {};
  std::string_view says = {};
  Color backColor = Colors::Amber;
  Color foreColor = Colors::Black;
  int value = 0;
  bool enabled = true;
};

// Raises Click for a number that differs: 0 is clear, 1 is checked.
class CheckBox : public Control {
public:
  CheckBox(Form &form, std::string_view name, Place place, const CheckBoxDesign &design);

  ControlType Type() const override { return ControlType::CheckBox; }
  PropertyEntries Properties() override;
  void ResetToDesign() override;

  int Value() const { return value; }
  // Fails with 380 for any other number than 0 and 1.
  void SetValue(int number);
  const std::string &Caption() const { return caption; }
  void SetCaption(std::string_view text);
  Color BackColor() const { return backColor; }
  void SetBackColor(Color color);
  Color ForeColor() const { return foreColor; }
  void SetForeColor(Color color);
  // The user toggles the box.
  Reach UserClick();

  std::function<void()> onClick;

private:
  const CheckBoxDesign design;
  std::string caption;
  Color backColor;
  Color foreColor;
  int value;
};

} // namespace Tessoro
