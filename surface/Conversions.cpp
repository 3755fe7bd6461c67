#include "surface/Conversions.hpp"

#include "surface/Failure.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <system_error>

namespace Tessoro {

namespace {

enum class Blanks : std::uint8_t { Count, Skipped };

// Walks over a text. A zero byte is never part of a number, so it can stand for the end as well.
class Cursor {
public:
  Cursor(std::string_view text, Blanks treatment) : rest(text), blanks(treatment) { SkipBlanks(); }

  char Peek() const { return rest.empty() ? '\0' : rest.front(); }
  bool AtEnd() const { return rest.empty(); }

  char Take() {
    const char taken = Peek();
    rest.remove_prefix(1);
    SkipBlanks();
    return taken;
  }

private:
  void SkipBlanks() {
    if (blanks == Blanks::Skipped)
      rest.remove_prefix(std::min(rest.find_first_not_of(" \t"), rest.size()));
  }

  std::string_view rest;
  Blanks blanks;
};

struct Reading {
  double number = 0;
  // The number then is the largest float of its sign.
  bool tooLarge = false;
};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

void TakeSign(Cursor &cursor, std::string &spelling) {
  if (cursor.Peek() != '+' && cursor.Peek() != '-')
    return;
  if (cursor.Take() == '-')
    spelling += '-';
}

bool TakeDigits(Cursor &cursor, std::string &spelling) {
  if (!IsDigit(cursor.Peek()))
    return false;
  while (IsDigit(cursor.Peek()))
    spelling += cursor.Take();
  return true;
}

// An exponent letter without digits is no part of the number, so the walk goes on a copy.
void TakeExponent(Cursor &cursor, std::string &spelling) {
  constexpr std::string_view exponentLetters = "EeDd";
  if (exponentLetters.find(cursor.Peek()) == std::string_view::npos)
    return;
  Cursor ahead = cursor;
  ahead.Take();
  std::string exponent = "e";
  TakeSign(ahead, exponent);
  if (!TakeDigits(ahead, exponent))
    return;
  spelling += exponent;
  cursor = ahead;
}

// Of a number that a float can't hold: whether it is too large, and not too small.
bool IsLarge(std::string_view spelling) {
  const std::size_t mark = std::min(spelling.find('e'), spelling.size());
  const std::string_view digits = spelling.substr(0, mark);
  const std::string_view exponent = spelling.substr(mark);
  const auto point = static_cast<std::int64_t>(std::min(digits.find('.'), digits.size()));
  const auto leading = static_cast<std::int64_t>(digits.find_first_of("123456789"));
  std::int64_t power = 0;
  if (!exponent.empty()) {
    const auto read =
        std::from_chars(exponent.data() + 1, exponent.data() + exponent.size(), power);
    if (read.ec != std::errc())
      return exponent[1] != '-';
  }
  return point - leading + power > 0;
}

// Takes what a decimal number was cleaned to: a minus sign or none, a point, a small e.
Reading ReadSpelling(std::string_view spelling) {
  Reading reading;
  const auto read =
      std::from_chars(spelling.data(), spelling.data() + spelling.size(), reading.number);
  if (read.ec == std::errc::result_out_of_range) {
    reading.number = 0;
    reading.tooLarge = IsLarge(spelling);
    if (reading.tooLarge)
      reading.number =
          std::copysign(std::numeric_limits<double>::max(), spelling.front() == '-' ? -1.0 : 1.0);
  }
  // A minus sign before a zero means nothing.
  if (reading.number == 0)
    reading.number = 0;
  return reading;
}

std::optional<Reading> ReadDecimal(Cursor &cursor, char decimalSign) {
  // Stays within the string's own room for all that fits into a box at a glance.
  std::string spelling;
  TakeSign(cursor, spelling);
  bool hasDigits = TakeDigits(cursor, spelling);
  if (!cursor.AtEnd() && cursor.Peek() == decimalSign) {
    cursor.Take();
    spelling += '.';
    hasDigits = TakeDigits(cursor, spelling) || hasDigits;
  }
  if (!hasDigits)
    return std::nullopt;
  TakeExponent(cursor, spelling);
  return ReadSpelling(spelling);
}

// 99 for what is no digit of any radix.
unsigned DigitValue(char c) {
  if (IsDigit(c))
    return static_cast<unsigned>(c - '0');
  if (c >= 'a' && c <= 'f')
    return static_cast<unsigned>(c - 'a') + 10;
  if (c >= 'A' && c <= 'F')
    return static_cast<unsigned>(c - 'A') + 10;
  return 99;
}

unsigned RadixOf(char letter) {
  switch (letter) {
  case 'H':
  case 'h':
    return 16;
  case 'O':
  case 'o':
    return 8;
  default:
    return 0;
  }
}

std::optional<Reading> ReadRadix(Cursor &cursor) {
  cursor.Take();
  const unsigned radix = RadixOf(cursor.Peek());
  if (radix == 0)
    return std::nullopt;
  cursor.Take();
  if (DigitValue(cursor.Peek()) >= radix)
    return std::nullopt;

  constexpr std::uint64_t highest = std::numeric_limits<std::uint32_t>::max();
  std::uint64_t bits = 0;
  while (DigitValue(cursor.Peek()) < radix)
    bits = std::min(bits * radix + DigitValue(cursor.Take()), highest + 1);

  if (bits > highest)
    return Reading{std::numeric_limits<double>::max(), true};
  if (bits > std::numeric_limits<std::uint16_t>::max())
    return Reading{static_cast<double>(static_cast<std::int32_t>(bits))};
  return Reading{static_cast<double>(static_cast<std::int16_t>(bits))};
}

std::optional<Reading> ReadNumber(Cursor &cursor, char decimalSign) {
  return cursor.Peek() == '&' ? ReadRadix(cursor) : ReadDecimal(cursor, decimalSign);
}

std::string_view WithoutOuterBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  text.remove_suffix(text.size() - (text.find_last_not_of(' ') + 1));
  return text;
}

} // namespace

double NumericPrefix(std::string_view text) {
  Cursor cursor(text, Blanks::Skipped);
  return ReadNumber(cursor, '.').value_or(Reading{}).number;
}

double StrictNumber(std::string_view text, char decimalSign) {
  Cursor cursor(WithoutOuterBlanks(text), Blanks::Count);
  const std::optional<Reading> reading = ReadNumber(cursor, decimalSign);
  if (!reading || !cursor.AtEnd())
    throw Failure(FailureCode::TypeMismatch);
  if (reading->tooLarge)
    throw Failure(FailureCode::Overflow);
  return reading->number;
}

std::int16_t StrictInteger(std::string_view text, char decimalSign) {
  return RoundInteger(StrictNumber(text, decimalSign));
}

std::int64_t RoundHalfEven(double number) {
  // 2 to the 63rd; written so that what is no number fails too.
  constexpr double beyond = 9223372036854775808.0;
  if (!(number >= -beyond && number < beyond))
    throw Failure(FailureCode::Overflow);
  // The whole part and the rest of a float are exact, so no rounding mode comes in.
  const double whole = std::trunc(number);
  const double rest = std::fabs(number - whole);
  const auto integer = static_cast<std::int64_t>(whole);
  if (rest > 0.5 || (rest == 0.5 && integer % 2 != 0))
    return number < 0 ? integer - 1 : integer + 1;
  return integer;
}

std::int16_t RoundInteger(double number) {
  const std::int64_t rounded = RoundHalfEven(number);
  if (rounded < std::numeric_limits<std::int16_t>::min() ||
      rounded > std::numeric_limits<std::int16_t>::max())
    throw Failure(FailureCode::Overflow);
  return static_cast<std::int16_t>(rounded);
}

std::string IntegerText(int number) {
  std::array<char, 16> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return {digits.data(), written.ptr};
}

std::string NumberText(double number) {
  if (!std::isfinite(number))
    throw Failure(FailureCode::Overflow);
  // Zero has no sign in a text.
  if (number == 0)
    return "0";
  const double size = std::fabs(number);
  const bool plain = size >= 1E-15 && size < 1E15;
  std::array<char, 64> buffer{};
  const auto written =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                    plain ? std::chars_format::fixed : std::chars_format::scientific);
  std::replace(buffer.data(), written.ptr, 'e', 'E');
  return {buffer.data(), written.ptr};
}

std::string SignedNumberText(double number) {
  const std::string text = NumberText(number);
  return text.front() == '-' ? text : " " + text;
}

} // namespace Tessoro
