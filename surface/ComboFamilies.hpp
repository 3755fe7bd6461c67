// The families of lists. Change and Click of a list do the same.
#pragma once

#include "sound/ValueLists.hpp"
#include "surface/BoxFamilies.hpp"
#include "surface/Controls.hpp"

#include <functional>
#include <span>

namespace Tessoro {

// The wire value is the list's index; -1, for a text that is no item, is sent as it is.
struct ComboByIndexRow {
  ComboBox &combo;
  int parameter;
  // Runs behind the send, with the index.
  std::function<void(int index)> store = {};
};

// The text is looked up, case and blanks exact. One that isn't in the table sends nothing and shows
// the message.
struct ComboByTextRow {
  ComboBox &combo;
  Road road;
  // Of the parameter or of the controller, as the road says.
  int number;
  std::span<const ValueLists::TextValue> values;
  std::string_view message;
  // What follows the send, with the wire value; may be empty.
  std::function<void(int wire)> afterwards = {};
};

void AttachCombos(std::span<const ComboByIndexRow> rows);
void AttachCombos(std::span<const ComboByTextRow> rows);

} // namespace Tessoro
