// Plays each script of the folders beside this file, and compares what it gives:
//
//   NAME.script          what is played, in a fresh directory
//   NAME.trace           the trace that it must give
//   NAME.ini             the settings file that it finds, if any
//   NAME.ini.expected    the settings file that it must leave
//   NAME.files           a folder whose content stands in the fresh directory, if any
//   NAME.files.expected  what must stand there in the end, besides the settings file
//   NAME.exit            the exit status, if not 0
//   NAME.err             what it must say on standard error, if anything
//
// In all of them <directory> stands for the fresh directory, but not in the content of folders.
#include "face/headless/CommandLine.hpp"
#include "tests/support/FreshDirectory.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace fs = std::filesystem;

namespace {

using Lines = std::vector<std::string>;

const fs::path Home = TESSORO_BEHAVIOUR_DIRECTORY;

std::string Content(const fs::path &file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

// Its content is none of the scripts' own.
bool IsFolderOfScript(const fs::path &path) {
  return path.extension() == ".files" || path.filename().string().ends_with(".files.expected");
}

// The files below a folder, by their path in it, with what they hold.
std::map<std::string, std::string> ContentsBelow(const fs::path &folder) {
  std::map<std::string, std::string> contents;
  for (const fs::directory_entry &entry : fs::recursive_directory_iterator(folder))
    if (entry.is_regular_file())
      contents[entry.path().lexically_relative(folder).generic_string()] = Content(entry.path());
  return contents;
}

Lines SplitLines(const std::string &text) {
  Lines lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);)
    lines.push_back(line);
  return lines;
}

// What differs, with a few lines around it: "-" is missing, "+" should not be there.
std::string Difference(const std::string &expectedText, const std::string &actualText) {
  constexpr std::ptrdiff_t context = 3;
  const Lines expected = SplitLines(expectedText);
  const Lines actual = SplitLines(actualText);
  const auto [expectedBegin, actualBegin] =
      std::mismatch(expected.begin(), expected.end(), actual.begin(), actual.end());
  auto expectedEnd = expected.end();
  auto actualEnd = actual.end();
  while (expectedEnd != expectedBegin && actualEnd != actualBegin &&
         *std::prev(expectedEnd) == *std::prev(actualEnd)) {
    --expectedEnd;
    --actualEnd;
  }
  std::ostringstream report;
  report << "from line " << expectedBegin - expected.begin() + 1 << ":\n";
  const auto print = [&](const char *mark, auto begin, auto end) {
    for (auto line = begin; line != end; ++line)
      report << mark << *line << '\n';
  };
  print("  ", expectedBegin - std::min(context, expectedBegin - expected.begin()), expectedBegin);
  print("- ", expectedBegin, expectedEnd);
  print("+ ", actualBegin, actualEnd);
  print("  ", expectedEnd, expectedEnd + std::min(context, expected.end() - expectedEnd));
  return report.str();
}

class BehaviourTest : public testing::Test {
public:
  explicit BehaviourTest(fs::path scriptFile) : script(std::move(scriptFile)) {}

  void TestBody() override {
    const Tessoro::FreshDirectory directory;
    const std::string directoryName = directory.Path().string();
    const fs::path settings = directory.Path() / "Tessoro.ini";
    if (fs::exists(Beside(".files")))
      fs::copy(Beside(".files"), directory.Path(), fs::copy_options::recursive);
    PlaceSettings(settings, directoryName);

    std::istringstream input(Filled(".script", directoryName));
    std::ostringstream trace;
    std::ostringstream errors;
    const char *const arguments[] = {"--directory", directoryName.c_str()};
    const int status = Tessoro::RunCommandLine(arguments, input, trace, errors);

    ExpectSame("the trace", Filled(".trace", directoryName), trace.str());
    ExpectSame("standard error", Content(Beside(".err")), errors.str());
    const std::string expectedStatus =
        fs::exists(Beside(".exit")) ? Content(Beside(".exit")) : std::string("0\n");
    EXPECT_EQ(expectedStatus, std::to_string(status) + "\n") << "the exit status";
    if (fs::exists(Beside(".ini.expected")))
      ExpectSame("the settings file", Filled(".ini.expected", directoryName), Content(settings));
    if (fs::exists(Beside(".files.expected")))
      ExpectSameFiles(ContentsBelow(Beside(".files.expected")), ContentsBelow(directory.Path()));
  }

private:
  // May be a link that leads nowhere, for a file that can't be written.
  void PlaceSettings(const fs::path &settings, const std::string &directoryName) const {
    const fs::path given = Beside(".ini");
    if (fs::is_symlink(fs::symlink_status(given)))
      fs::copy(given, settings, fs::copy_options::copy_symlinks);
    else if (fs::exists(given))
      std::ofstream(settings, std::ios::binary) << Filled(".ini", directoryName);
  }

  // The content of a file beside the script, with the name of the fresh directory in its places.
  std::string Filled(const std::string &extension, const std::string &directoryName) const {
    constexpr std::string_view placeholder = "<directory>";
    std::string content = Content(Beside(extension));
    for (std::size_t at = content.find(placeholder); at != std::string::npos;
         at = content.find(placeholder, at + directoryName.size()))
      content.replace(at, placeholder.size(), directoryName);
    return content;
  }

  fs::path Beside(const std::string &extension) const {
    fs::path file = script;
    return file.replace_extension(extension);
  }

  static void ExpectSame(const char *what, const std::string &expected, const std::string &actual) {
    EXPECT_TRUE(expected == actual) << what << " differs " << Difference(expected, actual);
  }

  static void ExpectSameFiles(const std::map<std::string, std::string> &expected,
                              std::map<std::string, std::string> actual) {
    actual.erase("Tessoro.ini");
    for (const auto &[name, content] : expected) {
      EXPECT_EQ(actual.count(name), 1U) << name << " is missing";
      ExpectSame(name.c_str(), content, actual[name]);
      actual.erase(name);
    }
    for (const auto &[name, content] : actual)
      ADD_FAILURE() << name << " should not be there";
  }

  const fs::path script;
};

std::vector<fs::path> FilesOfHome() {
  std::vector<fs::path> files;
  for (auto entry = fs::recursive_directory_iterator(Home); entry != end(entry); ++entry) {
    if (IsFolderOfScript(entry->path()))
      entry.disable_recursion_pending();
    else if (entry->is_directory() || entry->path().parent_path() == Home)
      continue;
    files.push_back(entry->path());
  }
  std::ranges::sort(files);
  return files;
}

// A minus sign in a name would mean something to the filter of the tests.
std::string TestName(const fs::path &path) {
  std::string name = path.string();
  std::ranges::replace(name, '-', '_');
  return name;
}

// A file that no script asks for would claim something that nobody checks.
TEST(Files, EachBelongsToAScriptWithATrace) {
  for (const fs::path &file : FilesOfHome()) {
    const std::string name = file.filename().string();
    const fs::path stem = file.parent_path() / name.substr(0, name.find('.'));
    const std::string kind = name.substr(std::min(name.find('.'), name.size()));
    const Lines kinds = {".script", ".trace", ".ini",   ".ini.expected",
                         ".exit",   ".err",   ".files", ".files.expected"};
    EXPECT_NE(std::ranges::find(kinds, kind), kinds.end()) << file;
    EXPECT_TRUE(fs::exists(stem.string() + ".script")) << file;
    EXPECT_TRUE(fs::exists(stem.string() + ".trace")) << file;
  }
}

void RegisterScripts() {
  for (const fs::path &file : FilesOfHome())
    if (file.extension() == ".script")
      testing::RegisterTest(TestName(file.parent_path().lexically_relative(Home)).c_str(),
                            TestName(file.stem()).c_str(), nullptr, nullptr, file.c_str(), 1,
                            [file]() -> testing::Test * { return new BehaviourTest(file); });
}

} // namespace

int main(int argc, char **argv) {
  testing::InitGoogleTest(&argc, argv);
  RegisterScripts();
  return RUN_ALL_TESTS();
}
