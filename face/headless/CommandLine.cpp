#include "face/headless/CommandLine.hpp"

#include "face/headless/Commands.hpp"
#include "face/headless/Script.hpp"
#include "face/headless/Session.hpp"
#include "files/StandardFileSystem.hpp"

#include <filesystem>
#include <fstream>
#include <optional>
#include <string_view>

namespace Tessoro {

namespace {

constexpr std::string_view Usage =
    "usage: tessoro-headless [--directory DIR] [SCRIPT]\n"
    "\n"
    "Plays a script through the whole editor, without a screen and without MIDI ports, and prints\n"
    "what the outside world would see.\n"
    "\n"
    "  --directory DIR  the program's own directory, where Tessoro.ini stands\n"
    "                   (default: the current directory)\n"
    "  --help           prints this and the commands, and plays nothing\n"
    "  SCRIPT           a file with one command a line (default: standard input)\n";

// How the words of a command are written.
constexpr std::string_view Notation =
    "\nA TEXT stands in double quotes, a NUMBER bare. A CONTROL is named with its form, as in\n"
    "F_Tessoro.TextF1_cutoff. A line that begins with # is skipped. The commands:\n\n";

constexpr std::string_view More =
    "\nman tessoro-headless tells more of them, and how to read what is printed.\n";

void PrintHelp(std::ostream &output) {
  constexpr std::size_t purposeColumn = 34;
  output << Usage << Notation;
  for (const Commands table : CommandTables())
    for (const Command &command : table) {
      std::string line = "  " + std::string(command.name) + ' ' + std::string(command.shape);
      if (line.size() >= purposeColumn)
        line += '\n' + std::string(purposeColumn, ' ');
      else
        line.resize(purposeColumn, ' ');
      output << line << command.purpose << '\n';
    }
  output << More;
}

struct Options {
  bool help = false;
  std::string_view directory = ".";
  // Nothing for standard input.
  std::optional<std::string_view> script;
  // Empty if there is nothing to complain of.
  std::string complaint;
};

Options ReadOptions(std::span<const char *const> arguments) {
  Options options;
  for (std::size_t i = 0; i < arguments.size() && options.complaint.empty(); ++i) {
    const std::string_view argument = arguments[i];
    if (argument == "--help" || argument == "-h")
      options.help = true;
    else if (argument == "--directory" && i + 1 < arguments.size())
      options.directory = arguments[++i];
    else if (argument == "--directory")
      options.complaint = "--directory needs a directory";
    else if (argument.starts_with('-'))
      options.complaint = "no option " + std::string(argument);
    else if (options.script)
      options.complaint = "more than one script";
    else
      options.script = argument;
  }
  return options;
}

// With no separator at its end unless it is a root.
std::string ProgramPath(std::string_view directory) {
  std::filesystem::path path = std::filesystem::absolute(directory).lexically_normal();
  if (!path.has_filename() && path.has_relative_path())
    path = path.parent_path();
  return TextFromPath(path);
}

} // namespace

int RunCommandLine(std::span<const char *const> arguments, std::istream &input,
                   std::ostream &output, std::ostream &errors) {
  const Options options = ReadOptions(arguments);
  if (!options.complaint.empty()) {
    errors << "tessoro-headless: " << options.complaint << '\n' << Usage;
    return ExitStatus::NotUnderstood;
  }
  if (options.help) {
    PrintHelp(output);
    return ExitStatus::Played;
  }
  Session session(ProgramPath(options.directory), output);
  if (!options.script)
    return PlayScript(session, input, errors);
  std::ifstream script{std::filesystem::path(*options.script), std::ios::binary};
  if (!script || std::filesystem::is_directory(*options.script)) {
    errors << "tessoro-headless: can't read " << *options.script << '\n';
    return ExitStatus::NotUnderstood;
  }
  return PlayScript(session, script, errors);
}

} // namespace Tessoro
