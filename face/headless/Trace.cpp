#include "face/headless/Trace.hpp"

#include "surface/Conversions.hpp"

#include <array>
#include <charconv>

namespace Tessoro {

namespace {

constexpr bool IsPlain(char c) { return c >= 0x20 && c <= 0x7E; }

std::string EscapedByte(char c) {
  switch (c) {
  case '"':
    return "\\\"";
  case '\\':
    return "\\\\";
  case '\r':
    return "\\r";
  case '\n':
    return "\\n";
  case '\t':
    return "\\t";
  default:
    return IsPlain(c) ? std::string(1, c) : "\\x" + HexText(static_cast<unsigned char>(c), 2);
  }
}

struct ValuePrinter {
  std::string operator()(std::monostate /*unset*/) const { return "Empty"; }
  std::string operator()(bool truth) const { return truth ? "True" : "False"; }
  std::string operator()(double number) const { return NumberText(number); }
  std::string operator()(const std::string &text) const { return QuotedText(text); }
};

} // namespace

void Trace::Line(std::string_view line) { stream << line << '\n'; }

void Trace::Flush() { stream.flush(); }

std::string QuotedText(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text)
    quoted += EscapedByte(c);
  return quoted + '"';
}

std::string ValueText(const Value &value) { return std::visit(ValuePrinter{}, value); }

std::string HexText(std::uint32_t number, std::size_t digits) {
  std::array<char, 8> buffer{};
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, 16);
  std::string text(buffer.data(), written.ptr);
  for (char &digit : text)
    if (digit >= 'a')
      digit = static_cast<char>(digit - 'a' + 'A');
  return text.size() < digits ? std::string(digits - text.size(), '0') + text : text;
}

} // namespace Tessoro
