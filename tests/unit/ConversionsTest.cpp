#include "surface/Conversions.hpp"

#include "tests/unit/Outcome.hpp"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace Tessoro {
namespace {

using namespace std::string_view_literals;

struct StrictRow {
  std::string_view text;
  char decimalSign;
  Outcome outcome;
};

struct RoundRow {
  double number;
  Outcome outcome;
};

void CheckNumbers(const std::vector<StrictRow> &rows) {
  for (const StrictRow &row : rows)
    EXPECT_EQ(OutcomeOf([&] { return StrictNumber(row.text, row.decimalSign); }), row.outcome)
        << "of <" << row.text << "> with " << row.decimalSign;
}

void CheckIntegers(const std::vector<StrictRow> &rows) {
  for (const StrictRow &row : rows)
    EXPECT_EQ(OutcomeOf([&] { return StrictInteger(row.text, row.decimalSign); }), row.outcome)
        << "of <" << row.text << "> with " << row.decimalSign;
}

TEST(StrictNumber, ReadsTheWholeText) {
  CheckNumbers({
      {"0", '.', Is(0)},       {"7", '.', Is(7)},           {"007", '.', Is(7)},
      {"127", '.', Is(127)},   {"-64", '.', Is(-64)},       {"+5", '.', Is(5)},
      {"-0", '.', Is(0)},      {"1.5", '.', Is(1.5)},       {".5", '.', Is(0.5)},
      {"5.", '.', Is(5)},      {"-.5", '.', Is(-0.5)},      {"1e3", '.', Is(1000)},
      {"1E+3", '.', Is(1000)}, {"1d-3", '.', Is(0.001)},    {"1D3", '.', Is(1000)},
      {"&HFF", '.', Is(255)},  {"&hff", '.', Is(255)},      {"&O17", '.', Is(15)},
      {"&HFFFF", '.', Is(-1)}, {"&H10000", '.', Is(65536)}, {"100000", '.', Is(100000)},
  });
}

TEST(StrictNumber, BlanksMayStandBeforeAndBehind) {
  CheckNumbers({
      {" 12", '.', Is(12)},
      {"12 ", '.', Is(12)},
      {"   -12   ", '.', Is(-12)},
      {" &HFF ", '.', Is(255)},
      {" 1,5 ", ',', Is(1.5)},
  });
}

TEST(StrictNumber, BlanksInsideAreAMismatch) {
  CheckNumbers({
      {"1 2", '.', mismatch},
      {"- 5", '.', mismatch},
      {"1 .5", '.', mismatch},
      {"1. 5", '.', mismatch},
      {"1 E3", '.', mismatch},
      {"1E 3", '.', mismatch},
      {"& HFF", '.', mismatch},
      {"&H FF", '.', mismatch},
      {"&HF F", '.', mismatch},
  });
}

TEST(StrictNumber, OtherWhiteSpaceIsAMismatchEverywhere) {
  CheckNumbers({
      {"\t12", '.', mismatch},
      {"12\t", '.', mismatch},
      {"1\t2", '.', mismatch},
      {"12\n", '.', mismatch},
      {"12\r\n", '.', mismatch},
      {"\xA0"
       "12",
       '.', mismatch},
      {"12\xA0", '.', mismatch},
      {"12\0"sv, '.', mismatch},
  });
}

TEST(StrictNumber, ATextWithoutANumberIsAMismatch) {
  CheckNumbers({
      {"", '.', mismatch},     {" ", '.', mismatch},    {"    ", '.', mismatch},
      {"?", '.', mismatch},    {"-", '.', mismatch},    {"+", '.', mismatch},
      {".", '.', mismatch},    {"-.", '.', mismatch},   {"E3", '.', mismatch},
      {".E3", '.', mismatch},  {"abc", '.', mismatch},  {"Off", '.', mismatch},
      {"LFO1", '.', mismatch}, {"&", '.', mismatch},    {"&H", '.', mismatch},
      {"&O", '.', mismatch},   {"&HG", '.', mismatch},  {"&O8", '.', mismatch},
      {"\xE4", '.', mismatch}, {"\0"sv, '.', mismatch}, {"--5", '.', mismatch},
  });
}

TEST(StrictNumber, AnythingElseBehindTheNumberIsAMismatch) {
  CheckNumbers({
      {"12a", '.', mismatch},   {"a12", '.', mismatch},    {"1E", '.', mismatch},
      {"1e+", '.', mismatch},   {"1E3.5", '.', mismatch},  {"1.2.3", '.', mismatch},
      {"1..5", '.', mismatch},  {"1-2", '.', mismatch},    {"5-", '.', mismatch},
      {"12%", '.', mismatch},   {"12&", '.', mismatch},    {"&HFFG", '.', mismatch},
      {"&HFF&", '.', mismatch}, {"&O18", '.', mismatch},   {"-&HFF", '.', mismatch},
      {"&H1.5", '.', mismatch}, {"(5)", '.', mismatch},    {"12\xFC", '.', mismatch},
      {"1/2", '.', mismatch},   {"1e999x", '.', mismatch}, {"12;", '.', mismatch},
  });
}

TEST(StrictNumber, KnowsNoInfinityNoNanAndNoHexadecimalFloat) {
  CheckNumbers({
      {"inf", '.', mismatch},
      {"-inf", '.', mismatch},
      {"infinity", '.', mismatch},
      {"nan", '.', mismatch},
      {"nan(1)", '.', mismatch},
      {"0x10", '.', mismatch},
      {"0x1p3", '.', mismatch},
      {"1p3", '.', mismatch},
  });
}

TEST(StrictNumber, TakesTheDecimalSignOfTheLocaleOnly) {
  CheckNumbers({
      {"1,5", ',', Is(1.5)},
      {",5", ',', Is(0.5)},
      {"5,", ',', Is(5)},
      {"-12,25", ',', Is(-12.25)},
      {"1,5e1", ',', Is(15)},
      {"12", ',', Is(12)},
      {"1.5", ',', mismatch},
      {"1,5", '.', mismatch},
      {"1,000", '.', mismatch},
      {"1.000,5", ',', mismatch},
      {"1,2,3", ',', mismatch},
      {",", ',', mismatch},
      {".5", ',', mismatch},
      {"1'5", '\'', Is(1.5)},
  });
}

TEST(StrictNumber, ANumberThatIsTooLargeIsAnOverflow) {
  CheckNumbers({
      {"1e308", '.', Is(1e308)},
      {"1e309", '.', overflow},
      {"-1e309", '.', overflow},
      {"1e999", '.', overflow},
      {"1D999", '.', overflow},
      {" 1e99999999999999999999 ", '.', overflow},
      {"1,5e999", ',', overflow},
      {"&H100000000", '.', overflow},
      {"&H10000000000000005", '.', overflow},
      {"&O40000000000", '.', overflow},
  });
}

TEST(StrictNumber, ANumberThatIsTooSmallIsZero) {
  CheckNumbers({
      {"1e-400", '.', Is(0)},
      {"-1e-999", '.', Is(0)},
      {"1e-99999999999999999999", '.', Is(0)},
      {"0e999", '.', Is(0)},
  });
}

TEST(StrictNumber, TakesTextsOfAnyLength) {
  const std::string zeros(100000, '0');
  const std::string blanks(100000, ' ');
  EXPECT_EQ(StrictNumber(blanks + zeros + "5" + blanks, '.'), 5);
  EXPECT_EQ(OutcomeOf([&] { return StrictNumber(std::string(100000, '9'), '.'); }), overflow);
  EXPECT_EQ(OutcomeOf([&] { return StrictNumber(blanks, '.'); }), mismatch);
  EXPECT_EQ(OutcomeOf([&] { return StrictNumber("1" + blanks + "x", '.'); }), mismatch);
}

TEST(StrictInteger, RoundsHalvesToTheEvenNeighbour) {
  CheckIntegers({
      {"0.5", '.', Is(0)},     {"1.5", '.', Is(2)},     {"2.5", '.', Is(2)},
      {"3.5", '.', Is(4)},     {"12.5", '.', Is(12)},   {"13.5", '.', Is(14)},
      {"126.5", '.', Is(126)}, {"127.5", '.', Is(128)}, {"-0.5", '.', Is(0)},
      {"-1.5", '.', Is(-2)},   {"-2.5", '.', Is(-2)},   {"-3.5", '.', Is(-4)},
      {"0.4", '.', Is(0)},     {"0.6", '.', Is(1)},     {"0.5000001", '.', Is(1)},
      {"-0.6", '.', Is(-1)},   {"1.49999", '.', Is(1)}, {"2.50001", '.', Is(3)},
      {"12,5", ',', Is(12)},   {"13,5", ',', Is(14)},   {"125e-1", '.', Is(12)},
  });
}

TEST(StrictInteger, ReadsWhatStrictNumberReads) {
  CheckIntegers({
      {"0", '.', Is(0)},
      {"007", '.', Is(7)},
      {" 127 ", '.', Is(127)},
      {"-64", '.', Is(-64)},
      {"1e3", '.', Is(1000)},
      {"&HFF", '.', Is(255)},
      {"&HFFFF", '.', Is(-1)},
      {"&H8000", '.', Is(-32768)},
      {"", '.', mismatch},
      {"?", '.', mismatch},
      {"-", '.', mismatch},
      {"12a", '.', mismatch},
      {"1 2", '.', mismatch},
      {"1.5", ',', mismatch},
      {"Portamento", '.', mismatch},
      {"12\t", '.', mismatch},
  });
}

TEST(StrictInteger, BeyondSixteenBitsIsAnOverflow) {
  CheckIntegers({
      {"32767", '.', Is(32767)},
      {"32767.4", '.', Is(32767)},
      {"32767.5", '.', overflow},
      {"32768", '.', overflow},
      {"-32768", '.', Is(-32768)},
      {"-32768.5", '.', Is(-32768)},
      {"-32768.6", '.', overflow},
      {"-32769", '.', overflow},
      {"65536", '.', overflow},
      {"&H10000", '.', overflow},
      {"1e300", '.', overflow},
      {"1e999", '.', overflow},
      {"-1e300", '.', overflow},
      {"99999999999999999999", '.', overflow},
  });
}

const std::vector<RoundRow> halves = {
    {0.5, Is(0)},
    {1.5, Is(2)},
    {2.5, Is(2)},
    {3.5, Is(4)},
    {-0.5, Is(0)},
    {-1.5, Is(-2)},
    {-2.5, Is(-2)},
    {-3.5, Is(-4)},
    {65.5, Is(66)},
    {66.5, Is(66)},
    {0.4, Is(0)},
    {-0.4, Is(0)},
    {0.6, Is(1)},
    {-0.6, Is(-1)},
    {63.999, Is(64)},
    {0, Is(0)},
    {-0.0, Is(0)},
    {64, Is(64)},
    {-64.0, Is(-64)},
    {0.49999999999999994, Is(0)},
    {0.50000000000000011, Is(1)},
    {-0.49999999999999994, Is(0)},
    {1e-300, Is(0)},
    {-1e-300, Is(0)},
};

TEST(RoundInteger, RoundsHalvesToTheEvenNeighbour) {
  for (const RoundRow &row : halves)
    EXPECT_EQ(OutcomeOf([&] { return RoundInteger(row.number); }), row.outcome) << row.number;
}

TEST(RoundInteger, BeyondSixteenBitsIsAnOverflow) {
  const std::vector<RoundRow> rows = {
      {32767, Is(32767)},   {32767.49, Is(32767)},  {32767.5, overflow},      {32768, overflow},
      {-32768, Is(-32768)}, {-32768.5, Is(-32768)}, {-32768.51, overflow},    {-32769, overflow},
      {65536, overflow},    {1e30, overflow},       {-1e30, overflow},        {1e308, overflow},
      {HUGE_VAL, overflow}, {-HUGE_VAL, overflow},  {std::nan(""), overflow},
  };
  for (const RoundRow &row : rows)
    EXPECT_EQ(OutcomeOf([&] { return RoundInteger(row.number); }), row.outcome) << row.number;
}

TEST(RoundHalfEven, RoundsHalvesToTheEvenNeighbour) {
  for (const RoundRow &row : halves)
    EXPECT_EQ(OutcomeOf([&] { return RoundHalfEven(row.number); }), row.outcome) << row.number;
}

TEST(RoundHalfEven, HoldsSixtyFourBits) {
  EXPECT_EQ(RoundHalfEven(4294967296.5), 4294967296);
  EXPECT_EQ(RoundHalfEven(4503599627370495.5), 4503599627370496);
  EXPECT_EQ(RoundHalfEven(4503599627370494.5), 4503599627370494);
  EXPECT_EQ(RoundHalfEven(9007199254740993.0), 9007199254740992);
  EXPECT_EQ(RoundHalfEven(-9223372036854775808.0), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(RoundHalfEven(9223372036854774784.0), 9223372036854774784);
  EXPECT_EQ(OutcomeOf([] { return RoundHalfEven(9223372036854775808.0); }), overflow);
  EXPECT_EQ(OutcomeOf([] { return RoundHalfEven(-9223372036854777856.0); }), overflow);
  EXPECT_EQ(OutcomeOf([] { return RoundHalfEven(HUGE_VAL); }), overflow);
  EXPECT_EQ(OutcomeOf([] { return RoundHalfEven(std::nan("")); }), overflow);
}

TEST(RoundHalfEven, TheRoundingModeOfTheProcessorMakesNoDifference) {
  const int before = std::fegetround();
  for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO}) {
    std::fesetround(mode);
    std::vector<Outcome> outcomes;
    outcomes.reserve(halves.size());
    for (const RoundRow &row : halves)
      outcomes.push_back(OutcomeOf([&] { return RoundHalfEven(row.number); }));
    std::fesetround(before);
    for (std::size_t row = 0; row < halves.size(); ++row)
      EXPECT_EQ(outcomes[row], halves[row].outcome) << halves[row].number << ", mode " << mode;
  }
}

} // namespace
} // namespace Tessoro
