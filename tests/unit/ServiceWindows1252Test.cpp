#include "surface/Windows1252.hpp"

#include <gtest/gtest.h>

namespace Tessoro {
namespace {

TEST(ServiceWindows1252Test, AsciiStaysAsItIs) {
  EXPECT_EQ(Windows1252FromUtf8("UM-ONE ~"), "UM-ONE ~");
  EXPECT_EQ(Utf8FromWindows1252("UM-ONE ~"), "UM-ONE ~");
}

TEST(ServiceWindows1252Test, CharactersOfTheCodePageFindTheirByte) {
  EXPECT_EQ(Windows1252FromUtf8("G\xC3\xBCnther"), "G\xFCnther");
  EXPECT_EQ(Windows1252FromUtf8("5 \xE2\x82\xAC"), "5 \x80");
  EXPECT_EQ(Windows1252FromUtf8("\xC5\xB8"), "\x9F");
}

TEST(ServiceWindows1252Test, WhatTheCodePageDoesNotHoldIsAQuestionMark) {
  EXPECT_EQ(Windows1252FromUtf8("\xD0\xAF"), "?");
  EXPECT_EQ(Windows1252FromUtf8("\xF0\x9F\x8E\xB9 keys"), "? keys");
}

TEST(ServiceWindows1252Test, BytesThatAreNoUtf8AreQuestionMarks) {
  EXPECT_EQ(Windows1252FromUtf8("\xFFz"), "?z");
  EXPECT_EQ(Windows1252FromUtf8("a\xE2\x82"), "a??");
  EXPECT_EQ(Windows1252FromUtf8("\xC0\x80"), "??");      // longer than it need be
  EXPECT_EQ(Windows1252FromUtf8("\xED\xA0\x80"), "???"); // half of a pair
  EXPECT_EQ(Windows1252FromUtf8("\xC3(\x80"), "?(?");
}

TEST(ServiceWindows1252Test, EveryByteComesBack) {
  for (int byte = 1; byte < 256; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    EXPECT_EQ(Windows1252FromUtf8(Utf8FromWindows1252(text)), text) << byte;
  }
}

} // namespace
} // namespace Tessoro
