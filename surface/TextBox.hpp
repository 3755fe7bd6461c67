// A box with one line of text.
#pragma once

#include "surface/Control.hpp"

namespace Tessoro {

struct TextBoxDesign {
  std::string_view text = "?";
  std::string_view toolTip = {};
  std::string_view says = {};
  bool enabled = true;
  // The most characters the box takes, by typing, pasting and code alike; 0 is no limit.
  std::size_t maxLength = 0;
};

// Raises Change for a text that differs, character for character, from the one it shows.
class TextBox : public Control {
public:
  TextBox(Form &form, std::string_view name, Place place, const TextBoxDesign &design = {});

  ControlType Type() const override { return ControlType::TextBox; }
  PropertyEntries Properties() override;
  void ResetToDesign() override;

  const std::string &Text() const { return text; }
  void SetText(std::string_view value);
  std::size_t MaxLength() const { return design.maxLength; }
  Color BackColor() const;

  // The user has edited the text to this, by a key or a paste: one change.
  Reach UserEdit(std::string_view edited);
  // Types the characters one by one behind the present text.
  Reach UserType(std::string_view typed);
  Reach UserErase() { return UserEdit({}); }
  Reach UserClick();
  Reach UserDblClick();
  Reach UserKeyPress(int keyAscii);

  std::function<void()> onChange;
  std::function<void()> onClick;
  std::function<void()> onDblClick;
  std::function<void(int keyAscii)> onKeyPress;

private:
  const TextBoxDesign design;
  std::string text;
};

} // namespace Tessoro
