#include "files/FieldWriter.hpp"

#include "surface/Failure.hpp"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

namespace Tessoro {
namespace {

class FileInMemory : public OutputFile {
public:
  FileInMemory(std::string &target, bool &closedFlag) : content(target), closed(closedFlag) {}

  void Write(std::string_view bytes) override { content += bytes; }
  void Close() override { closed = true; }

private:
  std::string &content;
  bool &closed;
};

class FieldWriterTest : public testing::Test {
protected:
  std::string content;
  bool closed = false;
  FieldWriter writer{std::make_unique<FileInMemory>(content, closed)};
};

TEST_F(FieldWriterTest, PutsTextsBetweenQuotesAndLeavesNumbersBare) {
  writer.Text("Tessoro v1.3.1").EndLine();
  writer.Number(-1).EndLine();
  EXPECT_EQ(content, "\"Tessoro v1.3.1\"\r\n-1\r\n");
}

TEST_F(FieldWriterTest, PutsOneCommaBetweenTheFieldsOfALine) {
  writer.Number(3).Number(4).EndLine();
  writer.Text("a").Number(0).Text("b").EndLine();
  EXPECT_EQ(content, "3,4\r\n\"a\",0,\"b\"\r\n");
}

TEST_F(FieldWriterTest, AFieldThatWasNeverSetLeavesItsCommaOnly) {
  writer.Nothing().Text("").EndLine();
  writer.Nothing().EndLine();
  writer.Nothing().Nothing().EndLine();
  EXPECT_EQ(content, ",\"\"\r\n\r\n,\r\n");
}

TEST_F(FieldWriterTest, WritesFractionsWithAPoint) {
  writer.Number(2.5).Number(12.0).EndLine();
  EXPECT_EQ(content, "2.5,12\r\n");
}

TEST_F(FieldWriterTest, EscapesNothing) {
  writer.Text("a\"b,\xE4").EndLine();
  EXPECT_EQ(content, "\"a\"b,\xE4\"\r\n");
}

TEST_F(FieldWriterTest, ALineGoesOutWhenItEnds) {
  writer.Number(1);
  EXPECT_EQ(content, "");
  writer.EndLine();
  EXPECT_EQ(content, "1\r\n");
}

TEST_F(FieldWriterTest, CloseClosesTheFile) {
  EXPECT_FALSE(closed);
  writer.Close();
  EXPECT_TRUE(closed);
}

class FullDisk : public OutputFile {
  void Write(std::string_view) override { throw Failure(FailureCode::PathFileAccessError); }
  void Close() override { throw Failure(FailureCode::PathFileAccessError); }
};

TEST(FieldWriter, PassesOnWhatTheFileFailsWith) {
  FieldWriter writer(std::make_unique<FullDisk>());
  EXPECT_NO_THROW(writer.Number(1));
  EXPECT_THROW(writer.EndLine(), Failure);
  EXPECT_THROW(writer.Close(), Failure);
}

} // namespace
} // namespace Tessoro
