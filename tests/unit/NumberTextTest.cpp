#include "surface/Conversions.hpp"

#include "tests/unit/Outcome.hpp"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <string>
#include <utility>
#include <vector>

namespace Tessoro {
namespace {

constexpr double largest = std::numeric_limits<double>::max();

TEST(IntegerText, WritesDigitsWithAMinusSignAndNoBlank) {
  EXPECT_EQ(IntegerText(0), "0");
  EXPECT_EQ(IntegerText(7), "7");
  EXPECT_EQ(IntegerText(127), "127");
  EXPECT_EQ(IntegerText(-1), "-1");
  EXPECT_EQ(IntegerText(-64), "-64");
  EXPECT_EQ(IntegerText(-32768), "-32768");
  EXPECT_EQ(IntegerText(std::numeric_limits<int>::max()), "2147483647");
  EXPECT_EQ(IntegerText(std::numeric_limits<int>::min()), "-2147483648");
}

TEST(NumberText, WritesTheFewestDigitsThatGiveTheFloatBack) {
  const std::vector<std::pair<double, std::string>> rows = {
      {0, "0"},
      {-0.0, "0"},
      {12, "12"},
      {-3, "-3"},
      {0.5, "0.5"},
      {-0.5, "-0.5"},
      {127, "127"},
      {100, "100"},
      {100000, "100000"},
      {1000000, "1000000"},
      {12.5, "12.5"},
      {0.1, "0.1"},
      {0.1 + 0.2, "0.30000000000000004"},
      {3.3 - 1, "2.3"},
      {1.0 / 3, "0.3333333333333333"},
      {0.0001, "0.0001"},
      {0.00001, "0.00001"},
      {-0.000001, "-0.000001"},
      {123456789012345, "123456789012345"},
      {999999999999999, "999999999999999"},
      {99999999999999.5, "99999999999999.5"},
      {1e-15, "0.000000000000001"},
  };
  for (const auto &[number, text] : rows)
    EXPECT_EQ(NumberText(number), text);
}

TEST(NumberText, WritesAnExponentForTheLargeAndTheSmall) {
  const std::vector<std::pair<double, std::string>> rows = {
      {1e15, "1E+15"},
      {-1e15, "-1E+15"},
      {1.5e20, "1.5E+20"},
      {1e100, "1E+100"},
      {largest, "1.7976931348623157E+308"},
      {9e-16, "9E-16"},
      {-1.25e-20, "-1.25E-20"},
      {5e-324, "5E-324"},
  };
  for (const auto &[number, text] : rows)
    EXPECT_EQ(NumberText(number), text);
}

TEST(NumberText, RefusesWhatIsNoFiniteNumber) {
  for (const double number : {HUGE_VAL, -HUGE_VAL, std::nan("")}) {
    EXPECT_EQ(OutcomeOf([&] { return NumberText(number).size(); }), overflow) << number;
    EXPECT_EQ(OutcomeOf([&] { return SignedNumberText(number).size(); }), overflow) << number;
  }
}

TEST(NumberText, IsReadBackAsTheSameNumber) {
  const std::vector<double> numbers = {0,
                                       1,
                                       -64,
                                       0.1,
                                       -0.3,
                                       2.0 / 3,
                                       123456.789,
                                       1e14,
                                       1e15,
                                       1e16,
                                       1e-14,
                                       1e-15,
                                       1e-16,
                                       5e-324,
                                       largest,
                                       -largest,
                                       999999999999999.9,
                                       1.0000000000000002,
                                       4503599627370495.5};
  for (const double number : numbers) {
    EXPECT_EQ(StrictNumber(NumberText(number), '.'), number);
    EXPECT_EQ(StrictNumber(SignedNumberText(number), '.'), number);
    EXPECT_EQ(NumericPrefix(SignedNumberText(number)), number);
  }
}

TEST(SignedNumberText, HasABlankInTheSignsPlaceUnlessNegative) {
  EXPECT_EQ(SignedNumberText(0), " 0");
  EXPECT_EQ(SignedNumberText(-0.0), " 0");
  EXPECT_EQ(SignedNumberText(62), " 62");
  EXPECT_EQ(SignedNumberText(-3), "-3");
  EXPECT_EQ(SignedNumberText(0.5), " 0.5");
  EXPECT_EQ(SignedNumberText(-0.5), "-0.5");
}

// Numbers with a decimal comma and dots between the thousands.
class CommaPunctuation : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Conversions, TheLocaleOfTheProcessMakesNoDifference) {
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation));
  // Not every machine has it; where it is missing the call changes nothing.
  std::setlocale(LC_ALL, "de_DE.UTF-8");
  const double prefix = NumericPrefix("1.5");
  const double strict = StrictNumber("1.5", '.');
  const std::string number = NumberText(1234.5);
  const std::string integer = IntegerText(123456);
  std::setlocale(LC_ALL, "C");
  std::locale::global(before);
  EXPECT_EQ(prefix, 1.5);
  EXPECT_EQ(strict, 1.5);
  EXPECT_EQ(number, "1234.5");
  EXPECT_EQ(integer, "123456");
}

} // namespace
} // namespace Tessoro
