// A whole session, played once for every operation on files in it: that operation fails, alone or
// with all that follow it. A table says which box the user gets.
#include "tests/faults/FaultyFiles.hpp"
#include "tests/faults/TracedSession.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace Tessoro::Tests {
namespace {

using enum FileOperation;

struct Act {
  std::string_view name;
  std::string_view line;
};

const std::vector<Act> &Acts() {
  static const std::vector<Act> acts = {
      {"start", "start"},
      {"come to load", "menu Menu_OpenSound"},
      {"folder", "choose F_FileIO.Dir1 \"/sounds/deep\""},
      {"name", "paste F_FileIO.TextFilename \"bass.tss\""},
      {"load", "click F_FileIO.C_File"},
      {"come to save", "menu Menu_SaveSound"},
      {"new name", "paste F_FileIO.TextFilename \"new\""},
      {"save", "click F_FileIO.C_File"},
      {"come to save over", "menu Menu_SaveSound"},
      {"old name", "paste F_FileIO.TextFilename \"there\""},
      {"save over", "click F_FileIO.C_File"},
      {"stop", "close F_Tessoro"},
  };
  return acts;
}

std::size_t PlaceOf(std::string_view act) {
  return static_cast<std::size_t>(std::ranges::find(Acts(), act, &Act::name) - Acts().begin());
}

// A file, what stands in it at first, and the act that writes it.
struct Written {
  std::string name;
  std::string before;
  std::string_view act;
};

const std::string BassFile = "/sounds/deep/bass.tss";
const Written NewSound{"/sounds/deep/new.tss", "", "save"};
const Written OldSound{"/sounds/deep/there.tss", "an old sound", "save over"};
const Written Settings{"/editor/Tessoro.ini", SettingsWithPorts("/sounds"), "stop"};

struct FaultRow {
  std::string_view act;
  FileOperation operation;
  // Which of that operation's calls within the act; 0 for each.
  std::size_t which;
  std::vector<int> numbers;
  // With N and TEXT in the places of the failure's. Empty: nobody is told, and the act goes on.
  std::string_view title;
  std::string_view text;
};

constexpr std::string_view NumberAndText = " N: TEXT";
constexpr std::string_view TooShort =
    "File corrupt or wrong version! The file seems to be shorter than expected.";

constexpr std::string_view NoNumber =
    "File corrupt or wrong version! A value () in the soundfile does not fit to the parameter! "
    "Loading aborted - some parameters not loaded.";

const std::vector<FaultRow> &Faults() {
  constexpr std::string_view inBass = "Error writing/reading file: /sounds/deep/bass.tss";
  constexpr std::string_view inNew = "Error writing/reading file: /sounds/deep/new.tss";
  constexpr std::string_view inThere = "Error writing/reading file: /sounds/deep/there.tss";
  // clang-format off
  static const std::vector<FaultRow> rows = {
      // act                operation         which numbers      title, text
      {"start",             OpenForReading,   0, {53},           "", ""},
      {"start",             OpenForReading,   0, {75, 76},       "Error loading INI", NumberAndText},
      {"start",             NextByte,         0, {75},           "Error loading INI", NumberAndText},
      {"start",             NextByte,         0, {EndOfFile},    "Error loading INI", " 62: Input past end of file"},

      // Lists that are made with the form come up empty; then the folder of the settings is gone to.
      {"come to load",      WorkingDirectory, 0, {76},           "", ""},
      {"come to load",      Subfolders,       0, {75, 76},       "", ""},
      {"come to load",      Files,            1, {75, 76},       "", ""},
      {"come to load",      FolderExists,     1, {76},           "Error writing/reading file: ", NumberAndText},
      {"come to load",      FolderExists,     2, {76},           "Invalid selection /", "TEXT"},
      {"come to load",      Files,            2, {75, 76},       "Invalid selection /", "TEXT"},
      {"come to save",      WorkingDirectory, 0, {76},           "", ""},
      {"come to save",      Subfolders,       0, {75, 76},       "", ""},
      {"come to save",      Files,            1, {75, 76},       "", ""},
      {"come to save",      FolderExists,     1, {76},           "Error writing/reading file: /bass.tss", NumberAndText},
      {"come to save",      FolderExists,     2, {76},           "Invalid selection /", "TEXT"},
      {"come to save",      Files,            2, {75, 76},       "Invalid selection /", "TEXT"},
      {"come to save over", WorkingDirectory, 0, {76},           "", ""},
      {"come to save over", Subfolders,       0, {75, 76},       "", ""},
      {"come to save over", Files,            1, {75, 76},       "", ""},
      {"come to save over", FolderExists,     1, {76},           "Error writing/reading file: /new.tss", NumberAndText},
      {"come to save over", FolderExists,     2, {76},           "Invalid selection /", "TEXT"},
      {"come to save over", Files,            2, {75, 76},       "Invalid selection /", "TEXT"},

      // A folder that has gone since it was listed isn't opened; the list is read anew.
      {"folder",            FolderExists,     1, {76},           "", ""},
      {"folder",            Subfolders,       0, {75, 76},       "", ""},
      {"folder",            FolderExists,     2, {76},           "Invalid selection /", "TEXT"},
      {"folder",            Files,            0, {75, 76},       "Invalid selection /", "TEXT"},

      {"load",              OpenForReading,   0, {53, 75, 76},   inBass, NumberAndText},
      {"load",              NextByte,         0, {75},           inBass, NumberAndText},
      {"load",              NextByte,         0, {EndOfFile},    "Error reading file", TooShort},

      {"save",              OpenForReading,   0, {53},           "", ""},
      {"save",              OpenForReading,   0, {75, 76},       inNew, NumberAndText},
      {"save",              OpenForWriting,   0, {75, 76},       inNew, NumberAndText},
      {"save",              Write,            0, {75},           inNew, NumberAndText},
      {"save",              Close,            0, {75},           inNew, NumberAndText},
      {"save",              Files,            0, {75, 76},       inNew, NumberAndText},

      // One that goes just before it is looked for is not asked about.
      {"save over",         OpenForReading,   0, {53},           "", ""},
      {"save over",         OpenForReading,   0, {75, 76},       inThere, NumberAndText},
      {"save over",         OpenForWriting,   0, {75, 76},       inThere, NumberAndText},
      {"save over",         Write,            0, {75},           inThere, NumberAndText},
      {"save over",         Close,            0, {75},           inThere, NumberAndText},
      {"save over",         Files,            0, {75, 76},       inThere, NumberAndText},

      {"stop",              OpenForWriting,   0, {75, 76},       "Error writing INI file.", NumberAndText},
      {"stop",              Write,            0, {75},           "Error writing INI file.", NumberAndText},
      {"stop",              Close,            0, {75},           "Error writing INI file.", NumberAndText},
  };
  // clang-format on
  return rows;
}

std::string Replaced(std::string_view text, std::string_view what, const std::string &with) {
  std::string replaced(text);
  if (const std::size_t at = replaced.find(what); at != std::string::npos)
    replaced.replace(at, what.size(), with);
  return replaced;
}

// Empty where the user is told nothing.
std::string BoxOf(const FaultRow &row, int number) {
  if (row.title.empty())
    return {};
  if (number == EndOfFile)
    return BoxLine(16, row.title, row.text);
  const std::string text = Replaced(row.text, "TEXT", Failure(number).Text());
  return BoxLine(16, row.title, Replaced(text, "N", std::to_string(number)));
}

// The session on files in memory, act by act.
class SessionOnFiles {
public:
  explicit SessionOnFiles(FaultyFiles::Fault fault) : faulty(files, std::move(fault)) {
    files.folders = {{"/", {"sounds"}}, {"/sounds", {"deep"}}, {"/sounds/deep", {}}};
    files.contents = {{Settings.name, Settings.before},
                      {BassFile, SoundFile("complete.tss")},
                      {OldSound.name, OldSound.before}};
    session.Play("midi-out \"microQ\"");
    session.Play("midi-in \"Keyboard\"");
  }

  Lines Play(const Act &act) {
    Lines lines;
    // A folder that the list shows can be picked also where it has gone, which the language
    // refuses.
    if (act.name == "folder") {
      session.Editor().App.F_FileIO.Dir1.UserChoose("/sounds/deep");
      lines = session.TakeTrace();
    } else {
      lines = session.Play(act.line);
    }
    EXPECT_EQ(files.open, 0) << act.name << " leaves a file open";
    return lines;
  }

  std::string Content(const std::string &name) const {
    const auto found = files.contents.find(name);
    return found == files.contents.end() ? std::string() : found->second;
  }

private:
  TestFiles files;
  FaultyFiles faulty;
  TracedSession session{"/editor", faulty};
};

// A call in the session, its act by its place, its number counted from 1 within the act.
struct Operation {
  std::size_t act;
  FileOperation operation;
  std::size_t which;
};

struct Faultless {
  Faultless() {
    std::map<FileOperation, std::size_t> counts;
    SessionOnFiles session([&](FileOperation operation) {
      operations.push_back({traces.size(), operation, ++counts[operation]});
      return 0;
    });
    for (const Act &act : Acts()) {
      counts.clear();
      traces.push_back(session.Play(act));
    }
    for (const Written *file : {&NewSound, &OldSound, &Settings})
      contents[file->name] = session.Content(file->name);
  }

  std::vector<Lines> traces;
  std::vector<Operation> operations;
  std::map<std::string, std::string> contents;
};

const Faultless &WithoutFaults() {
  static const Faultless session;
  return session;
}

bool IsOf(const FaultRow &row, const Operation &operation) {
  return row.act == Acts()[operation.act].name && row.operation == operation.operation &&
         (row.which == 0 || row.which == operation.which);
}

// One fault of the session: which call fails, with what, and what the table says of it.
struct Fault {
  std::size_t call;
  int number;
  const FaultRow &row;
  bool forGood;

  const Operation &Failing() const { return WithoutFaults().operations[call]; }
};

// What stands before the byte that a call is to read.
std::string ReadBefore(std::size_t call) {
  const std::vector<Operation> &all = WithoutFaults().operations;
  std::size_t count = 0;
  while (all[call - count - 1].operation == NextByte)
    ++count;
  return SoundFile("complete.tss").substr(0, count);
}

// What ends a line isn't missed behind the last field that is read of a file.
bool IsBehindTheLastField(std::size_t call) {
  const std::vector<Operation> &all = WithoutFaults().operations;
  const auto end = std::find_if(all.begin() + static_cast<std::ptrdiff_t>(call), all.end(),
                                [](const Operation &each) { return each.operation != NextByte; });
  return end - all.begin() - static_cast<std::ptrdiff_t>(call) <= 2;
}

bool IsSubsequence(const Lines &some, const Lines &all) {
  auto at = all.begin();
  return std::ranges::all_of(some, [&](const std::string &line) {
    at = std::find(at, all.end(), line);
    return at != all.end() && at++ != all.end();
  });
}

// The box once, and besides it nothing but what the act prints anyway. A number that is cut off by
// the end of its file goes out as what is left of it.
void ExpectBoxInAct(const std::string &box, Lines lines, const Lines &faultless, bool isCut) {
  constexpr std::size_t sentByOneField = 3;
  if (!box.empty()) {
    const auto found = std::ranges::find(lines, box);
    ASSERT_NE(found, lines.end()) << "no " << box << "\n" << testing::PrintToString(lines);
    lines.erase(found);
  }
  if (isCut && !IsSubsequence(lines, faultless))
    lines.resize(lines.size() - std::min(lines.size(), sentByOneField));
  EXPECT_TRUE(IsSubsequence(lines, faultless)) << testing::PrintToString(lines);
}

void ExpectFailingAct(const Fault &fault, const Lines &lines) {
  std::string box = BoxOf(fault.row, fault.number);
  const bool isCut = fault.number == EndOfFile;
  // What is left of a negative number is none.
  if (isCut && fault.row.act == "load" && ReadBefore(fault.call).ends_with("\n-"))
    box = BoxLine(16, "Error reading file", NoNumber);
  if (fault.row.act == "start" && box.empty()) {
    EXPECT_EQ(std::ranges::count(lines, "show F_Midi"), 1) << "the ports are asked for";
  } else if (isCut && IsBehindTheLastField(fault.call)) {
    EXPECT_EQ(std::ranges::count(lines, box), 0);
  } else if (!fault.forGood) {
    ExpectBoxInAct(box, lines, WithoutFaults().traces[fault.Failing().act], isCut);
  } else if (!box.empty()) {
    EXPECT_EQ(std::ranges::count(lines, box), 1) << "no " << box;
  }
}

// No file is lost but the one that was being written.
void ExpectContent(const Fault &fault, const Written &file, const std::string &content) {
  const std::string &whole = WithoutFaults().contents.at(file.name);
  const std::size_t act = PlaceOf(file.act);
  const FileOperation operation = fault.row.operation;
  const bool wasNotOpened =
      operation == OpenForWriting ||
      (operation == OpenForReading && (fault.forGood || !fault.row.title.empty()));
  if (fault.Failing().act > act) {
    EXPECT_TRUE(content == whole) << file.name << "\n" << content;
  } else if (fault.Failing().act < act && fault.forGood) {
    EXPECT_TRUE(content == file.before) << file.name << "\n" << content;
  } else if (fault.Failing().act < act) {
    // The session has taken another way, but whatever it has written is whole.
    EXPECT_TRUE(content == file.before || content.ends_with("\r\n")) << file.name;
  } else if (wasNotOpened) {
    EXPECT_TRUE(content == file.before) << file.name << "\n" << content;
  } else if (operation == Write) {
    EXPECT_TRUE(content.size() < whole.size() && whole.starts_with(content)) << file.name;
  } else {
    EXPECT_TRUE(content == whole) << file.name << "\n" << content;
  }
}

void ExpectThatTheTableIsRight(const Fault &fault) {
  const Operation &failing = fault.Failing();
  SCOPED_TRACE("call " + std::to_string(failing.which) + " of operation " +
               std::to_string(static_cast<int>(failing.operation)) + " in \"" +
               std::string(fault.row.act) + "\" comes to " + std::to_string(fault.number));
  const Faultless &faultless = WithoutFaults();
  SessionOnFiles session([&, count = std::size_t{0}](FileOperation) mutable {
    const std::size_t call = count++;
    if (call == fault.call)
      return fault.number;
    return fault.forGood && call > fault.call ? int{FailureCode::PathFileAccessError} : 0;
  });
  Lines lines;
  for (std::size_t i = 0; i < Acts().size(); ++i) {
    SCOPED_TRACE(Acts()[i].name);
    lines = session.Play(Acts()[i]);
    if (i < failing.act) {
      ASSERT_EQ(lines, faultless.traces[i]);
    } else if (i == failing.act) {
      ExpectFailingAct(fault, lines);
    }
    EXPECT_EQ(std::ranges::count(lines, "end failure"), 0);
  }
  if (fault.forGood) {
    EXPECT_EQ(std::ranges::count_if(lines, IsBox), 1) << "that the settings can't be written";
  }
  EXPECT_EQ(session.Content(BassFile), SoundFile("complete.tss")) << "loading writes nothing";
  for (const Written *file : {&NewSound, &OldSound, &Settings})
    ExpectContent(fault, *file, session.Content(file->name));
}

// Plays the session for each row and each call that it speaks of; of the bytes that are read only
// every so many.
void ExpectThatEachRowIsRight(bool forGood, std::size_t everyByte) {
  const std::vector<Operation> &operations = WithoutFaults().operations;
  for (std::size_t call = 0; call < operations.size(); ++call)
    for (const FaultRow &row : Faults())
      if (IsOf(row, operations[call]) && (row.operation != NextByte || call % everyByte == 0))
        for (const int number : row.numbers) {
          ExpectThatTheTableIsRight({call, number, row, forGood});
          if (testing::Test::HasFailure())
            return;
        }
}

TEST(FileFaults, TheSessionCallsEveryOperationAndShowsOneBox) {
  std::set<FileOperation> called;
  Lines boxes;
  for (const Operation &operation : WithoutFaults().operations)
    called.insert(operation.operation);
  for (const Lines &lines : WithoutFaults().traces)
    std::ranges::copy_if(lines, std::back_inserter(boxes), IsBox);
  EXPECT_EQ(called.size(), 9U);
  EXPECT_EQ(boxes, Lines{"MsgBox 36 \"Confirm file overwrite\" \"File already exists! Are you sure "
                         "you want to override it?\" -> Yes"});
  EXPECT_EQ(WithoutFaults().traces.back().back(), "end closed");
}

TEST(FileFaults, TheTableSpeaksOfEachCall) {
  for (const Operation &operation : WithoutFaults().operations)
    EXPECT_TRUE(
        std::ranges::any_of(Faults(), [&](const FaultRow &row) { return IsOf(row, operation); }))
        << Acts()[operation.act].name << ", operation " << static_cast<int>(operation.operation)
        << ", call " << operation.which;
}

TEST(FileFaults, AnOperationThatFailsAloneIsToldInItsBox) { ExpectThatEachRowIsRight(false, 1); }

TEST(FileFaults, FilesThatFailFromAnyCallOnLeaveARunningEditor) {
  ExpectThatEachRowIsRight(true, 5);
}

} // namespace
} // namespace Tessoro::Tests
