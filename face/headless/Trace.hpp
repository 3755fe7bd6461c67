// What the outside world sees of a session, line by line.
#pragma once

#include "surface/Property.hpp"

#include <ostream>
#include <string>
#include <string_view>

namespace Tessoro {

// Writes each line at the moment it happens, so that nested handlers appear in the order of the
// wire.
class Trace {
public:
  explicit Trace(std::ostream &destination) : stream(destination) {}

  void Line(std::string_view line);
  void Flush();

private:
  std::ostream &stream;
};

// In double quotes, with every byte outside 0x20 .. 0x7E escaped.
std::string QuotedText(std::string_view text);

// "True", "12", "\"Sine\"", or "Empty" for what never held anything.
std::string ValueText(const Value &value);

// The number with at least so many hexadecimal digits, capital letters.
std::string HexText(std::uint32_t number, std::size_t digits);

} // namespace Tessoro
