#include "surface/Windows1252.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace Tessoro {
namespace {

TEST(Windows1252, LettersOfTheCodePageHaveTheirCharacters) {
  EXPECT_EQ(Utf8FromWindows1252("Bass 7"), "Bass 7");
  EXPECT_EQ(Utf8FromWindows1252("B\xE4r"), "B\xC3\xA4r");
  EXPECT_EQ(Utf8FromWindows1252("\xA0\xFF"), "\xC2\xA0\xC3\xBF");
  EXPECT_EQ(Utf8FromWindows1252("\x80"), "\xE2\x82\xAC");
  EXPECT_EQ(Utf8FromWindows1252("\x8A\x9F"), "\xC5\xA0\xC5\xB8");
  EXPECT_EQ(Utf8FromWindows1252("\x93\x99"), "\xE2\x80\x9C\xE2\x84\xA2");
}

TEST(Windows1252, EveryByteComesBack) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(ExactWindows1252FromUtf8(Utf8FromWindows1252(text)), text) << byte;
  }
}

TEST(Windows1252, CharactersThatItDoesNotHaveGiveNothing) {
  EXPECT_EQ(ExactWindows1252FromUtf8("\xE6\x97\xA5"), std::nullopt);
  EXPECT_EQ(ExactWindows1252FromUtf8("ok \xCE\xB1"), std::nullopt);
  EXPECT_EQ(ExactWindows1252FromUtf8("\xF0\x9F\x8E\xB9"), std::nullopt);
  // The character of a byte that means another one.
  EXPECT_EQ(ExactWindows1252FromUtf8("\xC2\x80"), std::nullopt);
}

TEST(Windows1252, BytesThatAreNoUtf8GiveNothing) {
  EXPECT_EQ(ExactWindows1252FromUtf8("B\xE4r"), std::nullopt);
  EXPECT_EQ(ExactWindows1252FromUtf8("\xC3"), std::nullopt);
  EXPECT_EQ(ExactWindows1252FromUtf8("\xE2\x82"), std::nullopt);
  EXPECT_EQ(ExactWindows1252FromUtf8("\xC3r"), std::nullopt);
  EXPECT_EQ(ExactWindows1252FromUtf8("\xE2r\xAC"), std::nullopt);
  EXPECT_EQ(ExactWindows1252FromUtf8("\xA4"), std::nullopt);
  EXPECT_EQ(ExactWindows1252FromUtf8("\xFF"), std::nullopt);
  // Longer than need be.
  EXPECT_EQ(ExactWindows1252FromUtf8("\xC1\x81"), std::nullopt);
  EXPECT_EQ(ExactWindows1252FromUtf8("\xE0\x83\xA4"), std::nullopt);
}

TEST(Windows1252, WhatCannotBeToldBecomesAQuestionMarkWhereATextIsWantedAllTheSame) {
  EXPECT_EQ(Windows1252FromUtf8("B\xC3\xA4r"), "B\xE4r");
  EXPECT_EQ(Windows1252FromUtf8("a\xF0\x9F\x8E\xB9z"), "a?z");
  EXPECT_EQ(Windows1252FromUtf8("a\xE4z"), "a?z");
  // Four bytes that are no character, as it would stand behind the last one that there is.
  EXPECT_EQ(Windows1252FromUtf8("a\xF4\x90\x80\x80z"), "a????z");
}

} // namespace
} // namespace Tessoro
