// What the rows of the command tables are made of.
#pragma once

#include "face/headless/ScriptWords.hpp"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace Tessoro {

class Session;

enum class Allowed : std::uint8_t { Always, BeforeStart };

// A command of the language, or a routine that can be called.
struct Command {
  std::string_view name;
  // The words that it takes: TEXT, NUMBER, VALUE for any kind, all else for a name. In brackets
  // what may be left out as a whole; with ... what may come several times.
  std::string_view shape;
  // Is handed the words behind the name, which fit the shape.
  void (*play)(Session &session, const Words &words);
  // What it does, for the help; the names of routines speak for themselves.
  std::string_view purpose = {};
  Allowed allowed = Allowed::Always;
};

using Commands = std::span<const Command>;

Commands SetUpCommands();
Commands UserCommands();
Commands MouseCommands();
Commands CodeCommands();
Commands CallCommands();

// All of them.
std::array<Commands, 5> CommandTables();

// Null for a name that isn't in the table.
const Command *FindCommand(Commands table, std::string_view name);

// Fails with ScriptError for words that don't fit the row's shape.
void CheckShape(const Command &command, const Words &words);

} // namespace Tessoro
