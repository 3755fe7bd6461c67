// A list with an edit field.
#pragma once

#include "surface/Control.hpp"

#include <span>

namespace Tessoro {

struct ComboBoxDesign {
  std::span<const std::string_view> items = {};
  std::string_view text = "?";
  std::string_view toolTip = {};
  std::string_view says = {};
  bool enabled = true;
};

// Text and ListIndex follow each other: the text is the selected item's, and a text that is no item
// gives -1. Writing the one raises only its own event: ListIndex Click, Text Change.
class ComboBox : public Control {
public:
  ComboBox(Form &form, std::string_view name, Place place, const ComboBoxDesign &design);

  ControlType Type() const override { return ControlType::ComboBox; }
  PropertyEntries Properties() override;
  void ResetToDesign() override;

  const std::string &Text() const { return text; }
  void SetText(std::string_view value);
  int ListIndex() const { return listIndex; }
  // Fails with 380 outside -1 .. count - 1.
  void SetListIndex(int index);
  const std::vector<std::string> &List() const { return list; }
  void AddItem(std::string_view item);
  Color BackColor() const;

  // Whether the list shows an item of that index.
  bool HasItem(int index) const;
  // The user picks an item, with the mouse or a key: Click, also when it was selected already.
  Reach UserSelect(int index);
  Reach UserEdit(std::string_view edited);
  Reach UserType(std::string_view typed);
  Reach UserErase() { return UserEdit({}); }

  std::function<void()> onChange;
  std::function<void()> onClick;

private:
  void TakeItem(int index);

  const ComboBoxDesign design;
  std::vector<std::string> list;
  std::string text;
  int listIndex = -1;
};

} // namespace Tessoro
