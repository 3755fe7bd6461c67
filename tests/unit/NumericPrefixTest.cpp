#include "surface/Conversions.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace Tessoro {
namespace {

using namespace std::string_view_literals;

constexpr double greatest = std::numeric_limits<double>::max();

struct PrefixRow {
  std::string_view text;
  double number;
};

void CheckPrefixes(const std::vector<PrefixRow> &rows) {
  for (const PrefixRow &row : rows) {
    EXPECT_EQ(NumericPrefix(row.text), row.number) << "of <" << row.text << ">";
    EXPECT_FALSE(std::signbit(NumericPrefix(row.text)) && row.number == 0)
        << "zero has no sign, of <" << row.text << ">";
  }
}

TEST(NumericPrefix, ReadsPlainNumbers) {
  CheckPrefixes({
      {"0", 0},
      {"1", 1},
      {"7", 7},
      {"12", 12},
      {"63", 63},
      {"64", 64},
      {"127", 127},
      {"128", 128},
      {"200", 200},
      {"007", 7},
      {"0000", 0},
      {"32768", 32768},
      {"65536", 65536},
      {"2147483648", 2147483648.0},
      {"9007199254740993", 9007199254740992.0},
      {"18446744073709551616", 18446744073709551616.0},
  });
}

TEST(NumericPrefix, TakesOneSignBeforeTheDigits) {
  CheckPrefixes({
      {"-1", -1},
      {"-64", -64},
      {"-65", -65},
      {"+5", 5},
      {"-0", 0},
      {"+0", 0},
      {"-007", -7},
      {"-", 0},
      {"+", 0},
      {"--5", 0},
      {"+-5", 0},
      {"-+5", 0},
      {"5-", 5},
      {"5+", 5},
      {"1-2", 1},
      {"1+2", 1},
      {"-x", 0},
  });
}

TEST(NumericPrefix, TakesAPointAndNothingElseAsTheDecimalSign) {
  CheckPrefixes({
      {"0.5", 0.5},
      {".5", 0.5},
      {"5.", 5},
      {"-.5", -0.5},
      {"+.5", 0.5},
      {"-5.", -5},
      {"1.5", 1.5},
      {"2.5", 2.5},
      {"12.25", 12.25},
      {"0.1", 0.1},
      {"1.7976931348623157", 1.7976931348623157},
      {".", 0},
      {"-.", 0},
      {"+.", 0},
      {"..5", 0},
      {"1..5", 1},
      {"1.2.3", 1.2},
      {"1,5", 1},
      {",5", 0},
      {"1,000", 1},
  });
}

TEST(NumericPrefix, TakesAnExponentWithEOrD) {
  CheckPrefixes({
      {"1E3", 1000},
      {"1e3", 1000},
      {"1D3", 1000},
      {"1d3", 1000},
      {"1E+3", 1000},
      {"1e-3", 0.001},
      {"1D-3", 0.001},
      {"12.5e1", 125},
      {".5e1", 5},
      {"5.e1", 50},
      {"-2e2", -200},
      {"1E0", 1},
      {"1E00002", 100},
      {"1E3.5", 1000},
      {"1E3E3", 1000},
      {"1E3D3", 1000},
  });
}

TEST(NumericPrefix, LeavesAnExponentWithoutDigitsAside) {
  CheckPrefixes({
      {"1E", 1},
      {"1e", 1},
      {"1D", 1},
      {"1e+", 1},
      {"1e-", 1},
      {"1E+-3", 1},
      {"1E.5", 1},
      {"1EE3", 1},
      {"1ED3", 1},
      {"1Ex", 1},
      {"E3", 0},
      {"D3", 0},
      {"-E3", 0},
      {".E3", 0},
      {"1F3", 1},
  });
}

TEST(NumericPrefix, LettersNeverMakeItFail) {
  CheckPrefixes({
      {"", 0},     {"?", 0},           {"a", 0},      {"abc", 0},   {"12a", 12},
      {"a12", 0},  {"12a34", 12},      {"1.5x", 1.5}, {"12?", 12},  {"%", 0},
      {"12%", 12}, {"(5)", 0},         {"$5", 0},     {"\"5\"", 0}, {"LFO1", 0},
      {"Off", 0},  {"11 Plucked", 11}, {"01", 1},     {"1/2", 1},   {"---- Bypass", 0},
  });
}

TEST(NumericPrefix, KnowsNoInfinityNoNanAndNoHexadecimalFloat) {
  CheckPrefixes({
      {"inf", 0},
      {"INF", 0},
      {"-inf", 0},
      {"infinity", 0},
      {"nan", 0},
      {"NaN", 0},
      {"-nan", 0},
      {"nan(1)", 0},
      {"0x10", 0},
      {"0X1F", 0},
      {"0x1p3", 0},
      {"1p3", 1},
  });
}

TEST(NumericPrefix, SkipsBlanksAndTabsWhereverTheyStand) {
  CheckPrefixes({
      {" ", 0},          {"\t", 0},       {"   12", 12},    {"12   ", 12}, {"\t12", 12},
      {"1 2", 12},       {"1\t2", 12},    {" 1 2 7 ", 127}, {"- 5", -5},   {" - 5", -5},
      {"-\t5", -5},      {"1 .5", 1.5},   {"1. 5", 1.5},    {". 5", 0.5},  {"1 E 3", 1000},
      {"1 E + 3", 1000}, {"1E3 0", 1e30}, {"1 E", 1},       {"1 x 2", 1},  {" & H F F ", 255},
      {"&\tH1\t0", 16},
  });
}

TEST(NumericPrefix, OtherWhiteSpaceEndsTheNumber) {
  CheckPrefixes({
      {"1\n2", 1},
      {"1\r2", 1},
      {"1\v2", 1},
      {"1\f2", 1},
      {"\n12", 0},
      {"\r\n12", 0},
      {"1\xA0"
       "2",
       1},
      {"\xA0"
       "12",
       0},
      {"12\xA0", 12},
  });
}

TEST(NumericPrefix, HighBytesAndZeroBytesAreOrdinaryLetters) {
  CheckPrefixes({
      {"\xE4", 0},
      {"\xFF", 0},
      {"12\xFC", 12},
      {"\xB2", 0},
      {"1\xBD", 1},
      {"\x96"
       "5",
       0},
      {"\x80"
       "5",
       0},
      {"\0"sv, 0},
      {"1\0"
       "2"sv,
       1},
      {"\0"
       "5"sv,
       0},
      {"1E\0"
       "5"sv,
       1},
      {"&H\0"
       "5"sv,
       0},
  });
}

TEST(NumericPrefix, ReadsHexadecimalDigits) {
  CheckPrefixes({
      {"&H0", 0},       {"&HF", 15},  {"&HFF", 255}, {"&hff", 255},  {"&hFf", 255}, {"&H7F", 127},
      {"&H1e3", 0x1E3}, {"&H1.5", 1}, {"&HFG", 15},  {"&HFF&", 255}, {"&H", 0},     {"&HG", 0},
      {"&Hg", 0},       {"&Hfg", 15}, {"&H-1", 0},   {"&H+1", 0},    {"&", 0},      {"&&HF", 0},
      {"H10", 0},       {"&x10", 0},  {"&10", 0},
  });
}

TEST(NumericPrefix, ReadsOctalDigits) {
  CheckPrefixes({
      {"&O0", 0},
      {"&O7", 7},
      {"&O17", 15},
      {"&o17", 15},
      {"&O177", 127},
      {"&O18", 1},
      {"&O8", 0},
      {"&O", 0},
      {"&O1.5", 1},
  });
}

TEST(NumericPrefix, RadixNumbersAreSignedByTheirBits) {
  CheckPrefixes({
      {"&H7FFF", 32767},
      {"&H8000", -32768},
      {"&HFFFF", -1},
      {"&H0000FFFF", -1},
      {"&H10000", 65536},
      {"&H7FFFFFFF", 2147483647.0},
      {"&H80000000", -2147483648.0},
      {"&HFFFFFFFF", -1},
      {"&HFFFF8000", -32768},
      {"&O77777", 32767},
      {"&O100000", -32768},
      {"&O177777", -1},
      {"&O200000", 65536},
      {"&O37777777777", -1},
  });
}

TEST(NumericPrefix, ASignDoesNotGoWithARadix) {
  CheckPrefixes({{"-&HFF", 0}, {"+&HFF", 0}, {"- &O7", 0}});
}

TEST(NumericPrefix, OfANumberThatIsTooLargeItGivesTheLargestFloat) {
  CheckPrefixes({
      {"1e308", 1e308},
      {"1e309", greatest},
      {"-1e309", -greatest},
      {"1e999", greatest},
      {"-1D999", -greatest},
      {"1e99999999999999999999", greatest},
      {"-1e+99999999999999999999", -greatest},
      {"0.0001e400", greatest},
      {"&H100000000", greatest},
      {"&HFFFFFFFFFFFFFFFFFFFFFFFFF", greatest},
      {"&H10000000000000005", greatest},
      {"&O40000000000", greatest},
  });
}

TEST(NumericPrefix, OfANumberThatIsTooSmallItGivesZero) {
  CheckPrefixes({
      {"1e-307", 1e-307},
      {"1e-400", 0},
      {"-1e-400", 0},
      {"1e-999", 0},
      {"1000e-999", 0},
      {"1e-99999999999999999999", 0},
      {"0e999", 0},
      {"0e99999999999999999999", 0},
      {"-0.0e5", 0},
  });
}

TEST(NumericPrefix, TakesTextsOfAnyLength) {
  const std::string zeros(100000, '0');
  const std::string nines(100000, '9');
  const std::string blanks(100000, ' ');
  EXPECT_EQ(NumericPrefix(zeros + "5"), 5);
  EXPECT_EQ(NumericPrefix(nines), greatest);
  EXPECT_EQ(NumericPrefix("-" + nines), -greatest);
  EXPECT_EQ(NumericPrefix("." + zeros + "5"), 0);
  EXPECT_EQ(NumericPrefix("0." + nines), 1);
  EXPECT_EQ(NumericPrefix("1" + blanks + "2"), 12);
  EXPECT_EQ(NumericPrefix("&H" + zeros + "1F"), 31);
  EXPECT_EQ(NumericPrefix("1e" + zeros + "2"), 100);
  EXPECT_EQ(NumericPrefix("12" + std::string(100000, 'x')), 12);
}

} // namespace
} // namespace Tessoro
