#include "files/FieldReader.hpp"

#include "surface/Failure.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace Tessoro {

std::ostream &operator<<(std::ostream &stream, const Field &field) {
  return stream << (field.quoted ? "quoted <" : "bare <") << field.text << ">";
}

namespace {

class BytesInMemory : public InputFile {
public:
  explicit BytesInMemory(std::string content) : bytes(std::move(content)) {}

  std::optional<std::uint8_t> NextByte() override {
    if (next == bytes.size())
      return std::nullopt;
    return static_cast<std::uint8_t>(bytes[next++]);
  }

private:
  std::string bytes;
  std::size_t next = 0;
};

Field Quoted(std::string text) { return {true, std::move(text)}; }
Field Bare(std::string text) { return {false, std::move(text)}; }

struct Reading {
  std::vector<Field> fields;
  int failure = 0;
};

// Reads until something fails; that is 62 at the end of every file.
Reading ReadAll(const std::string &content) {
  FieldReader reader(std::make_unique<BytesInMemory>(content));
  Reading reading;
  try {
    while (true)
      reading.fields.push_back(reader.Read());
  } catch (const Failure &failure) {
    reading.failure = failure.Number();
  }
  return reading;
}

struct Row {
  std::string content;
  std::vector<Field> fields;
};

void Check(const std::vector<Row> &rows) {
  for (const Row &row : rows) {
    const Reading reading = ReadAll(row.content);
    EXPECT_EQ(reading.fields, row.fields) << "of <" << row.content << ">";
    EXPECT_EQ(reading.failure, 62) << "behind <" << row.content << ">";
  }
}

TEST(FieldReader, ReadsOneFieldALine) {
  Check({
      {"\"Tessoro v1.3.1\"\r\n", {Quoted("Tessoro v1.3.1")}},
      {"-1\r\n", {Bare("-1")}},
      {"\"64\"\r\n64\r\n", {Quoted("64"), Bare("64")}},
      {"abc\r\n", {Bare("abc")}},
  });
}

TEST(FieldReader, ReadsFieldsBetweenCommas) {
  Check({
      {"3,4\r\n", {Bare("3"), Bare("4")}},
      {"\"Tessoro freeware version\",\"1.3\"\r\n",
       {Quoted("Tessoro freeware version"), Quoted("1.3")}},
      {"1,\"two\",3\r\n4\r\n", {Bare("1"), Quoted("two"), Bare("3"), Bare("4")}},
  });
}

TEST(FieldReader, AnEmptyFieldIsBareUnlessItHasQuotes) {
  Check({
      {",\"\"\r\n", {Bare(""), Quoted("")}},
      {"\"\"\r\n", {Quoted("")}},
      {"\r\n", {Bare("")}},
      {"\r\n\r\n5\r\n", {Bare(""), Bare(""), Bare("5")}},
      {",,\r\n", {Bare(""), Bare(""), Bare("")}},
      {"   \r\n", {Bare("")}},
  });
}

TEST(FieldReader, SkipsBlanksBeforeAField) {
  Check({
      {"  5\r\n", {Bare("5")}},
      {"  \"a b\"\r\n", {Quoted("a b")}},
      {"1,  2, \"x\"\r\n", {Bare("1"), Bare("2"), Quoted("x")}},
  });
}

TEST(FieldReader, KeepsBlanksWithinAndBehindABareField) {
  Check({
      {"a b \r\n", {Bare("a b ")}},
      {"1 ,2\r\n", {Bare("1 "), Bare("2")}},
      {"\" a \"\r\n", {Quoted(" a ")}},
      {"\t5\r\n", {Bare("\t5")}},
  });
}

TEST(FieldReader, EveryLineEndCounts) {
  Check({
      {"1\r\n2\r\n", {Bare("1"), Bare("2")}},
      {"1\n2\n", {Bare("1"), Bare("2")}},
      {"1\r2\r", {Bare("1"), Bare("2")}},
      {"\"1\"\n\"2\"\r\"3\"\r\n", {Quoted("1"), Quoted("2"), Quoted("3")}},
      {"1\n\r2\n", {Bare("1"), Bare(""), Bare("2")}},
      {"\r\r\n\n", {Bare(""), Bare(""), Bare("")}},
  });
}

TEST(FieldReader, TheLastLineMayLackItsEnd) {
  Check({
      {"1\r\n2", {Bare("1"), Bare("2")}},
      {"\"Yes\"", {Quoted("Yes")}},
      {"\"Yes\"  ", {Quoted("Yes")}},
      {"1\r\n", {Bare("1")}},
      {"1,", {Bare("1")}},
  });
}

TEST(FieldReader, NothingLeftIsTheEndOfTheFile) {
  Check({{"", {}}, {"   ", {}}, {"1\r\n  ", {Bare("1")}}});
}

TEST(FieldReader, AMissingClosingQuoteIsTheEndOfTheFile) {
  Check({{"\"", {}}, {"\"abc", {}}, {"\"abc\r\n1,2\r\n", {}}});
}

TEST(FieldReader, StaysAtTheEnd) {
  FieldReader reader(std::make_unique<BytesInMemory>("1"));
  reader.Read();
  EXPECT_THROW(reader.Read(), Failure);
  EXPECT_THROW(reader.Read(), Failure);
}

TEST(FieldReader, ACommaInABareFieldShiftsWhatFollows) {
  Check({{"1,5\r\n7\r\n", {Bare("1"), Bare("5"), Bare("7")}}});
}

TEST(FieldReader, AQuotedFieldHoldsCommasAndLineEnds) {
  Check({
      {"\"a,b\",c\r\n", {Quoted("a,b"), Bare("c")}},
      {"\"a\r\nb\"\r\nc\r\n", {Quoted("a\r\nb"), Bare("c")}},
  });
}

TEST(FieldReader, AQuoteInsideATextShiftsWhatFollows) {
  Check({
      {"\"a\"b\"\r\n\"c\"\r\n", {Quoted("a"), Bare("b\""), Quoted("c")}},
      {"\"a\"b\",1\r\n", {Quoted("a"), Bare("b\""), Bare("1")}},
      {"\"a\" b\r\n", {Quoted("a"), Bare("b")}},
      {"\"a\"\"b\"\r\n", {Quoted("a"), Quoted("b")}},
  });
}

TEST(FieldReader, AQuoteWithinABareFieldIsALetter) {
  Check({{"a\"b\",2\r\n", {Bare("a\"b\""), Bare("2")}}});
}

TEST(FieldReader, BlanksBetweenAClosingQuoteAndItsDelimiterGoWithIt) {
  Check({
      {"\"a\"  ,\"b\"  \r\n1\r\n", {Quoted("a"), Quoted("b"), Bare("1")}},
      {"\"a\",  ,1\r\n", {Quoted("a"), Bare(""), Bare("1")}},
  });
}

TEST(FieldReader, HandsOnEveryByteAsItIs) {
  const std::string bytes("\x80\xA0\xE4\xFF\0\x1A", 6);
  Check({{bytes + "\r\n\"" + bytes + "\"\r\n", {Bare(bytes), Quoted(bytes)}}});
}

TEST(FieldReader, TakesFieldsOfAnyLength) {
  const std::string text(100000, 'x');
  Check({{"\"" + text + "\"," + text, {Quoted(text), Bare(text)}}});
}

class Broken : public InputFile {
  std::optional<std::uint8_t> NextByte() override {
    throw Failure(FailureCode::PathFileAccessError);
  }
};

TEST(FieldReader, PassesOnWhatTheFileFailsWith) {
  FieldReader reader(std::make_unique<Broken>());
  try {
    reader.Read();
    FAIL();
  } catch (const Failure &failure) {
    EXPECT_EQ(failure.Number(), 75);
  }
}

} // namespace
} // namespace Tessoro
