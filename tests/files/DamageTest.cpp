// Each line of a sound file and each byte of a dump is damaged in turn and loaded over another
// sound. What is sent and said, whether the form stays open, and what the sound is afterwards are
// compared with the tables beside this file.
#include "files/SoundFiles.hpp"
#include "tests/files/PaperSound.hpp"
#include "tests/support/TestRun.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>

namespace Tessoro::Tests {
namespace {

using Lines = std::vector<std::string>;

std::string Content(const std::string &name) {
  std::ifstream file(std::string(TESSORO_FILES_DIRECTORY) + "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

Lines LinesOf(const std::string &content) {
  Lines lines;
  for (std::size_t begin = 0; begin < content.size();) {
    const std::size_t end = content.find("\r\n", begin);
    lines.push_back(content.substr(begin, end - begin));
    begin = end + 2;
  }
  return lines;
}

std::string Joined(const Lines &lines) {
  std::string content;
  for (const std::string &line : lines)
    content += line + "\r\n";
  return content;
}

bool IsQuoted(const std::string &line) { return line.starts_with('"'); }

// Another content in the form of the line.
std::string InFormOf(const std::string &line, const std::string &content) {
  return IsQuoted(line) ? '"' + content + '"' : content;
}

// Names the first difference, and not the hundreds of lines around it.
void ExpectSame(const char *what, const Lines &expected, const Lines &actual) {
  const auto [left, right] =
      std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
  if (left == expected.end() && right == actual.end())
    return;
  ADD_FAILURE() << what << " " << left - expected.begin() + 1 << ": expected "
                << (left == expected.end() ? "none" : *left) << ", got "
                << (right == actual.end() ? "none" : *right)
                << "; lines*.txt, dump.txt and controls.txt in tests/files/ tell what must be";
}

// The editor, and what the tables say of it, side by side.
class SideBySide {
public:
  SideBySide() {
    run.StartWithOpenPorts();
    Open("/before.tss", Content("before.tss"));
    run.Forget();
    paper = PaperWithSoundBefore();
  }

  void Open(const std::string &path, const std::string &content) {
    run.files.contents[path] = content;
    F_FileIO &form = run.app.F_FileIO;
    run.app.F_Tessoro.Menu_OpenSound.UserClick();
    form.TextFilename.UserEdit(path.substr(1));
    form.C_File.UserClick();
  }

  void ExpectSameOf(const std::string &path, const std::string &content) {
    Open(path, content);
    const bool closes = Tests::Open(paper, path, content);
    ExpectSame("message", paper.messages, run.midi.messages);
    Lines boxes;
    for (const TestScreen::Box &box : run.screen.boxes)
      boxes.push_back(box.text);
    ExpectSame("box", paper.boxes, boxes);
    EXPECT_EQ(closes, !run.app.F_FileIO.IsLoaded()) << "the form " << (closes ? "closes" : "stays");
    EXPECT_FALSE(run.app.HasEnded());
    EXPECT_EQ(run.files.open, 0) << "all files are closed";
    WriteSound(run.app, "/saved.tss");
    ExpectSame("saved line", LinesOf(Saved(paper)), LinesOf(run.files.contents["/saved.tss"]));
  }

private:
  static const PaperSound &PaperWithSoundBefore() {
    static const PaperSound sound = [] {
      PaperSound loaded;
      LoadVersion15(loaded, Content("before.tss"));
      loaded.messages.clear();
      loaded.boxes.clear();
      return loaded;
    }();
    return sound;
  }

  TestRun run;
  PaperSound paper;
};

// Loads a file once for each of its lines, damaged.
void DamageEachLine(const std::string &name,
                    const std::function<void(Lines &, std::size_t)> &damage) {
  const Lines whole = LinesOf(Content(name));
  for (std::size_t at = 0; at < whole.size(); ++at) {
    SCOPED_TRACE(name + ", line " + std::to_string(at + 1) + ": " + whole[at]);
    Lines lines = whole;
    damage(lines, at);
    SideBySide().ExpectSameOf("/x.tss", Joined(lines));
    if (testing::Test::HasFailure())
      return;
  }
}

void PutInEachLine(const std::string &name, const std::string &content) {
  DamageEachLine(
      name, [&content](Lines &lines, std::size_t at) { lines[at] = InFormOf(lines[at], content); });
}

class DamagedSoundTest : public testing::TestWithParam<const char *> {};

TEST_P(DamagedSoundTest, UndamagedFileIsLoadedWhole) {
  SideBySide().ExpectSameOf("/x.tss", Content(GetParam()));
}

TEST_P(DamagedSoundTest, Letters) { PutInEachLine(GetParam(), "abc"); }
TEST_P(DamagedSoundTest, LettersBehindDigits) { PutInEachLine(GetParam(), "12a"); }
TEST_P(DamagedSoundTest, Empty) { PutInEachLine(GetParam(), ""); }
TEST_P(DamagedSoundTest, AboveEachRange) { PutInEachLine(GetParam(), "200"); }
TEST_P(DamagedSoundTest, BelowEachRange) { PutInEachLine(GetParam(), "-70"); }
TEST_P(DamagedSoundTest, NothingSelected) { PutInEachLine(GetParam(), "-1"); }
TEST_P(DamagedSoundTest, Beyond16Bits) { PutInEachLine(GetParam(), "40000"); }
TEST_P(DamagedSoundTest, Zero) { PutInEachLine(GetParam(), "0"); }
TEST_P(DamagedSoundTest, CommaInside) { PutInEachLine(GetParam(), "6,4"); }
TEST_P(DamagedSoundTest, QuoteInside) { PutInEachLine(GetParam(), "6\"4"); }

TEST_P(DamagedSoundTest, OtherForm) {
  DamageEachLine(GetParam(), [](Lines &lines, std::size_t at) {
    std::string &line = lines[at];
    line = IsQuoted(line) ? line.substr(1, line.size() - 2) : '"' + line + '"';
  });
}

TEST_P(DamagedSoundTest, Missing) {
  DamageEachLine(GetParam(), [](Lines &lines, std::size_t at) {
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(at));
  });
}

TEST_P(DamagedSoundTest, CutBehindTheLine) {
  DamageEachLine(GetParam(), [](Lines &lines, std::size_t at) { lines.resize(at + 1); });
}

TEST_P(DamagedSoundTest, CutInsideTheLine) {
  const Lines whole = LinesOf(Content(GetParam()));
  for (std::size_t at = 0; at < whole.size(); ++at) {
    SCOPED_TRACE("line " + std::to_string(at + 1) + ": " + whole[at]);
    const Lines before(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(at));
    SideBySide().ExpectSameOf("/x.tss", Joined(before) + whole[at].substr(0, 2));
    if (HasFailure())
      return;
  }
}

INSTANTIATE_TEST_SUITE_P(Version15, DamagedSoundTest, testing::Values("complete.tss"));
INSTANTIATE_TEST_SUITE_P(Version02, DamagedSoundTest, testing::Values("old.tss"));

class DamagedDumpTest : public testing::Test {
protected:
  const std::string whole = Content("dump.syx");

  void PutInEachByte(int value) const {
    for (std::size_t at = 0; at < whole.size(); ++at) {
      SCOPED_TRACE("offset " + std::to_string(at));
      std::string bytes = whole;
      bytes[at] = static_cast<char>(value);
      SideBySide().ExpectSameOf("/x.syx", bytes);
      if (HasFailure())
        return;
    }
  }
};

TEST_F(DamagedDumpTest, UndamagedDumpIsImportedWhole) {
  SideBySide().ExpectSameOf("/x.syx", whole);
}

TEST_F(DamagedDumpTest, Zero) { PutInEachByte(0); }
TEST_F(DamagedDumpTest, HighestDataByte) { PutInEachByte(127); }
TEST_F(DamagedDumpTest, LowestStatusByte) { PutInEachByte(128); }
TEST_F(DamagedDumpTest, HighestByte) { PutInEachByte(255); }

TEST_F(DamagedDumpTest, CutThere) {
  for (std::size_t length = 0; length < whole.size(); ++length) {
    SCOPED_TRACE("length " + std::to_string(length));
    SideBySide().ExpectSameOf("/x.syx", whole.substr(0, length));
    if (HasFailure())
      return;
  }
}

} // namespace
} // namespace Tessoro::Tests
