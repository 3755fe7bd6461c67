#include "sound/Shadow.hpp"

#include "surface/Conversions.hpp"
#include "surface/Failure.hpp"

namespace Tessoro {

void Shadow::SetNumber(double number) { content = isInteger16 ? RoundInteger(number) : number; }

void Shadow::SetText(const std::string &text, char decimalSign) {
  if (isInteger16)
    content = static_cast<double>(StrictInteger(text, decimalSign));
  else
    content = text;
}

void Shadow::SetField(bool quoted, const std::string &text) {
  if (quoted) {
    content = text;
  } else if (text.empty()) {
    content = Value();
  } else {
    try {
      content = StrictNumber(text, '.');
    } catch (const Failure &) {
      content = text;
    }
  }
}

double Shadow::Number(char decimalSign) const {
  if (const auto *number = std::get_if<double>(&content))
    return *number;
  if (const auto *text = std::get_if<std::string>(&content))
    return StrictNumber(*text, decimalSign);
  return 0;
}

std::string Shadow::Text() const {
  if (const auto *number = std::get_if<double>(&content))
    return NumberText(*number);
  if (const auto *text = std::get_if<std::string>(&content))
    return *text;
  return {};
}

} // namespace Tessoro
