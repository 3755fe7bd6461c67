// Conversions between texts and numbers.
//
// Several stand side by side on purpose: which of them a place uses decides what a half-typed or
// broken text does there. The locale of the process has no influence on any of them.
//
// A number in a text is a decimal number (sign, digits, decimal sign, digits, then E or D with a
// whole exponent; one digit at least before the exponent) or, with no sign, &H with hexadecimal or
// &O with octal digits. Letters may be small. A radix number is the 16-bit signed integer with
// these bits if they fit in 16, else the 32-bit one, so &HFFFF is -1 and &H10000 is 65536. A number
// too small for a 64-bit float is 0.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace Tessoro {

// The number that the text begins with, its decimal sign a point; blanks and tabs count for
// nothing, wherever they stand. 0 if there is no number. Never fails: of a number that is too large
// it gives the largest float, with its sign.
double NumericPrefix(std::string_view text);

// The number that is the whole text. Blanks, but nothing else, may stand before and behind it.
// Fails with 13 for any other text, also an empty one, and with 6 for a number that is too large.
double StrictNumber(std::string_view text, char decimalSign);

// StrictNumber, then RoundInteger; fails as these do.
std::int16_t StrictInteger(std::string_view text, char decimalSign);

// The nearest integer, of two equally near ones the even, whatever the rounding mode of the
// processor. Fails with 6 beyond the 64-bit range.
std::int64_t RoundHalfEven(double number);

// As RoundHalfEven; fails with 6 beyond the 16-bit range.
std::int16_t RoundInteger(double number);

// "12", "-3".
std::string IntegerText(int number);

// The fewest digits that give the same float back, with a point: "12", "-3", "0.5". From 1E+15 up
// and below 1E-15 an exponent of two digits or more: "1.5E+20". Fails with 6 for what is no finite
// number.
std::string NumberText(double number);

// NumberText with a blank before it if the number isn't negative: " 62", "-3". Fails as it does.
std::string SignedNumberText(double number);

} // namespace Tessoro
