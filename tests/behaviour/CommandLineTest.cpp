// What tessoro-headless makes of the words that it is started with.
#include "face/headless/CommandLine.hpp"
#include "face/headless/Commands.hpp"
#include "face/headless/Script.hpp"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace Tessoro {

namespace {

// Of its own, since tests run side by side.
std::filesystem::path FreshDirectory() {
  std::string name = (std::filesystem::temp_directory_path() / "tessoro-command-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr)
    throw std::runtime_error("no fresh directory");
  return name;
}

class HeadlessCommandLine : public testing::Test {
public:
  HeadlessCommandLine() {
    std::ofstream(directory / "Tessoro.ini") << "\"\"\n\"\",\"\"\n3,3\n-1,0\n0,0\n\"?\"\n\"No\"\n";
    std::ofstream(directory / "one.script") << "get Module1.SoundFileName\n";
  }
  ~HeadlessCommandLine() override { std::filesystem::remove_all(directory); }

protected:
  int Run(std::initializer_list<std::string> words) {
    std::vector<const char *> arguments;
    for (const std::string &word : words)
      arguments.push_back(word.c_str());
    return RunCommandLine(arguments, input, output, errors);
  }

  std::string Named(const char *file) const { return (directory / file).string(); }

  const std::filesystem::path directory = FreshDirectory();
  std::istringstream input;
  std::ostringstream output;
  std::ostringstream errors;
};

TEST_F(HeadlessCommandLine, PlaysStandardInputWhereNoScriptIsNamed) {
  input.str("get Module1.SoundName\n");
  EXPECT_EQ(Run({}), ExitStatus::Played);
  EXPECT_EQ(output.str(), "Module1.SoundName = \"\"\n");
}

TEST_F(HeadlessCommandLine, PlaysTheScriptThatIsNamed) {
  input.str("jump\n");
  EXPECT_EQ(Run({Named("one.script")}), ExitStatus::Played);
  EXPECT_EQ(output.str(), "Module1.SoundFileName = \"\"\n");
}

TEST_F(HeadlessCommandLine, FindsTheSettingsInTheDirectory) {
  for (const std::string &name : {directory.string(), directory.string() + "/"}) {
    input.clear();
    input.str("start\n");
    output.str("");
    EXPECT_EQ(Run({"--directory", name}), ExitStatus::Played);
    EXPECT_NE(output.str().find("Invalid MIDI IN port"), std::string::npos) << output.str();
  }
}

TEST_F(HeadlessCommandLine, HelpPlaysNothing) {
  EXPECT_EQ(Run({"--help", "no such script"}), ExitStatus::Played);
  EXPECT_TRUE(output.str().starts_with("usage: tessoro-headless")) << output.str();
  EXPECT_EQ(errors.str(), "");
}

TEST_F(HeadlessCommandLine, HelpListsEveryCommandWithWhatItTakesAndDoes) {
  Run({"--help"});
  for (const Commands table : CommandTables())
    for (const Command &command : table) {
      EXPECT_NE(command.purpose, "") << command.name;
      for (const std::string_view part : {command.name, command.shape, command.purpose})
        EXPECT_NE(output.str().find(part), std::string::npos) << command.name << ": " << part;
    }
}

TEST_F(HeadlessCommandLine, SaysWhatItDoesNotTake) {
  EXPECT_EQ(Run({"--speed"}), ExitStatus::NotUnderstood);
  EXPECT_EQ(Run({"--directory"}), ExitStatus::NotUnderstood);
  EXPECT_EQ(Run({"a", "b"}), ExitStatus::NotUnderstood);
  EXPECT_EQ(Run({Named("no-such.script")}), ExitStatus::NotUnderstood);
  EXPECT_EQ(Run({directory.string()}), ExitStatus::NotUnderstood);
  EXPECT_EQ(output.str(), "");
  for (const std::string &complaint :
       {std::string("no option --speed"), std::string("--directory needs a directory"),
        std::string("more than one script"), "can't read " + Named("no-such.script"),
        "can't read " + directory.string() + "\n"})
    EXPECT_NE(errors.str().find("tessoro-headless: " + complaint), std::string::npos) << complaint;
}

// Another program can hold a conversation with it.
TEST_F(HeadlessCommandLine, FlushesTheTraceBehindEachLine) {
  class CountingBuffer : public std::stringbuf {
  public:
    int flushes = 0;

  protected:
    int sync() override {
      ++flushes;
      return 0;
    }
  };
  CountingBuffer buffer;
  std::ostream counted(&buffer);
  input.str("get Module1.SoundName\nget Module1.SoundName\njump\n");
  EXPECT_EQ(RunCommandLine({}, input, counted, errors), ExitStatus::NotUnderstood);
  EXPECT_EQ(buffer.flushes, 3);
}

} // namespace

} // namespace Tessoro
