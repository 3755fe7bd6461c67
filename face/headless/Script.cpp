#include "face/headless/Script.hpp"

#include "face/headless/Commands.hpp"
#include "face/headless/Session.hpp"

#include <algorithm>
#include <string>

namespace Tessoro {

namespace {

const Command *FindCommand(std::string_view name) {
  for (const Commands table : CommandTables())
    if (const Command *command = FindCommand(table, name))
      return command;
  return nullptr;
}

bool IsOfKind(const Word &word, std::string_view kind) {
  if (kind == "TEXT")
    return word.kind == WordKind::Text;
  if (kind == "NUMBER")
    return word.kind == WordKind::Number;
  return kind == "VALUE" || word.kind == WordKind::Name;
}

// Walks along a shape and the words that are to fit it.
bool Fits(std::string_view shape, Words::const_iterator word, Words::const_iterator end) {
  while (!shape.empty()) {
    if (shape.front() == '[') {
      if (word == end)
        return true;
      shape = shape.substr(1, shape.find(']') - 1);
    }
    const std::size_t length = std::min(shape.find(' '), shape.size());
    std::string_view kind = shape.substr(0, length);
    shape.remove_prefix(std::min(length + 1, shape.size()));
    const bool repeats = kind.ends_with("...");
    if (repeats)
      kind.remove_suffix(3);
    do {
      if (word == end || !IsOfKind(*word++, kind))
        return false;
    } while (repeats && word != end);
  }
  return word == end;
}

} // namespace

std::array<Commands, 5> CommandTables() {
  return {SetUpCommands(), UserCommands(), MouseCommands(), CodeCommands(), CallCommands()};
}

const Command *FindCommand(Commands table, std::string_view name) {
  const auto found = std::ranges::find(table, name, &Command::name);
  return found == table.end() ? nullptr : &*found;
}

void CheckShape(const Command &command, const Words &words) {
  if (Fits(command.shape, words.begin(), words.end()))
    return;
  const std::string takes = command.shape.empty() ? "nothing" : std::string(command.shape);
  throw ScriptError(std::string(command.name) + " takes " + takes);
}

void PlayLine(Session &session, std::string_view line) {
  if (line.starts_with('#'))
    return;
  Words words = SplitLine(line);
  if (words.empty())
    return;
  const Word name = words.front();
  words.erase(words.begin());
  const Command *const command = name.kind == WordKind::Name ? FindCommand(name.text) : nullptr;
  if (command == nullptr)
    throw ScriptError("no command " + Shown(name));
  CheckShape(*command, words);
  if (command->allowed == Allowed::BeforeStart && session.Started)
    throw ScriptError(name.text + " comes before start");
  command->play(session, words);
}

int PlayScript(Session &session, std::istream &script, std::ostream &errors) {
  std::string line;
  for (std::size_t number = 1; !session.App.HasEnded() && std::getline(script, line); ++number) {
    try {
      PlayLine(session, line);
      session.Trace.Flush();
    } catch (const ScriptError &error) {
      session.Trace.Flush();
      errors << "line " << number << ": " << error.what() << '\n';
      return ExitStatus::NotUnderstood;
    }
  }
  return ExitStatus::Played;
}

} // namespace Tessoro
