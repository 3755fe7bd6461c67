#include "sound/GlobalEntries.hpp"

#include "surface/Control.hpp"
#include "surface/Conversions.hpp"

namespace Tessoro {

PropertyEntry Global(std::string_view name, std::string &text) {
  return TextProperty(
      name, [&text] { return text; }, [&text](const std::string &value) { text = value; });
}

PropertyEntry Global(std::string_view name, std::int16_t &number) {
  return NumberProperty(
      name, [&number] { return number; },
      [&number](double value) { number = RoundInteger(value); });
}

PropertyEntry Global(std::string_view name, int &number) {
  return NumberProperty(
      name, [&number] { return number; },
      [&number](double value) { number = static_cast<int>(RoundHalfEven(value)); });
}

PropertyEntry Global(std::string_view name, std::optional<int> &number) {
  PropertyEntry entry = NumberProperty(
      name, nullptr, [&number](double value) { number = static_cast<int>(RoundHalfEven(value)); });
  entry.get = [&number] { return number ? Value(static_cast<double>(*number)) : Value(); };
  return entry;
}

PropertyEntry Global(std::string_view name, bool &truth) {
  return TruthProperty(
      name, [&truth] { return truth; }, [&truth](bool value) { truth = value; });
}

PropertyEntry GlobalText(std::string_view name, Value &value) {
  return {std::string(name), true, [&value] { return value; },
          [&value](const Value &written) { value = written; }, ValueKind::Text};
}

PropertyEntry Global(std::string_view name, Shadow &shadow) {
  return {std::string(name), true, [&shadow] { return shadow.Content(); },
          [&shadow](const Value &value) {
            if (const auto *text = std::get_if<std::string>(&value))
              shadow.SetText(*text, '.');
            else
              shadow.SetNumber(std::get<double>(value));
          }};
}

} // namespace Tessoro
