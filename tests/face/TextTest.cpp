#include "face/qt/Text.hpp"

#include <gtest/gtest.h>

namespace Tessoro::Tests {
namespace {

TEST(Text, LineBreaksOfEitherOrderAreOne) {
  EXPECT_EQ(WithLineBreaks(QStringLiteral("a\r\nb\n\rc\rd\ne")), QStringLiteral("a\nb\nc\nd\ne"));
  EXPECT_EQ(WithLineBreaks(QStringLiteral("a\n\r\n\rb")), QStringLiteral("a\n\nb"));
  EXPECT_EQ(WithLineBreaks(QStringLiteral("a\n\nb")), QStringLiteral("a\n\nb"));
}

TEST(Text, AnAccessKeyIsNotRead) {
  EXPECT_EQ(WithoutAccessKey(QStringLiteral("Save sound &as")), QStringLiteral("Save sound as"));
  EXPECT_EQ(WithoutAccessKey(QStringLiteral("Rock && Roll")), QStringLiteral("Rock & Roll"));
  EXPECT_EQ(WithoutAccessKey(QStringLiteral("R&")), QStringLiteral("R&"));
}

TEST(Text, WhatIsPastedEndsAtItsFirstLineBreak) {
  const auto inOneLine = [](const char16_t *before, const char16_t *edited) {
    return InOneLine(QString::fromUtf16(before), QString::fromUtf16(edited));
  };
  EXPECT_EQ(inOneLine(u"", u"64\n65"), QStringLiteral("64"));
  EXPECT_EQ(inOneLine(u"<>", u"<64\r\n65>"), QStringLiteral("<64>"));
  EXPECT_EQ(inOneLine(u"<old>", u"<new\u2028er>"), QStringLiteral("<new>"));
  EXPECT_EQ(inOneLine(u"64", u"\n64"), QStringLiteral("64"));
  EXPECT_EQ(inOneLine(u"6", u"64"), QStringLiteral("64"));
}

TEST(Text, ADecimalSignThatTheModelCanNotWriteIsAPoint) {
  EXPECT_EQ(DecimalSignOf(QStringLiteral(".")), '.');
  EXPECT_EQ(DecimalSignOf(QStringLiteral(",")), ',');
  EXPECT_EQ(DecimalSignOf(QStringLiteral("\u00B7")), '\xB7');
  EXPECT_EQ(DecimalSignOf(QStringLiteral("\u066B")), '.');
  EXPECT_EQ(DecimalSignOf(QStringLiteral(",,")), '.');
  EXPECT_EQ(DecimalSignOf({}), '.');
}

TEST(Text, CharactersOfTheModelComeBack) {
  for (int byte = 1; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(ToModel(FromModel(text)), text) << byte;
  }
}

} // namespace
} // namespace Tessoro::Tests
