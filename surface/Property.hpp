// The properties of controls by name, for whoever reads and writes them from outside.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Tessoro {

// What a control tells the screen: this has changed, show it again.
enum class Property : std::uint8_t {
  BackColor,
  Caption,
  Drive,
  Enabled,
  Ends,
  FileName,
  ForeColor,
  Items,
  ListIndex,
  Path,
  Text,
  Value,
  Visible,
  Width,
};

// The content of a property or a global; empty where it never held anything.
using Value = std::variant<std::monostate, bool, double, std::string>;

// What a property takes when it is written.
enum class ValueKind : std::uint8_t { Truth, Number, Text, NumberOrText };

// One property, or one global, as a name with its reader and its writer.
struct PropertyEntry {
  std::string name;
  // Part of a printed listing of the control.
  bool listed = false;
  std::function<Value()> get;
  // Empty where the property can't be written. Takes a value of `kind`, raises the events of a
  // write by code, and fails as that write does.
  std::function<void(const Value &)> set;
  ValueKind kind = ValueKind::NumberOrText;
};

using PropertyEntries = std::vector<PropertyEntry>;

} // namespace Tessoro
