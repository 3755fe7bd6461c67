// The words of a script line.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace Tessoro {

// A line that the driver doesn't understand; says what is wrong with it, in one line.
class ScriptError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

enum class WordKind : std::uint8_t { Name, Number, Text };

struct Word {
  WordKind kind = WordKind::Name;
  // As it stands in the script; of a text, what is between its quotes, its escapes resolved.
  std::string text;
  double number = 0;
};

using Words = std::vector<Word>;

// Fails with ScriptError for a text that doesn't end, for bytes and escapes that a text can't hold,
// and for a number that no float can hold.
Words SplitLine(std::string_view line);

// Fails with ScriptError for a fraction, and outside the limits.
std::int64_t WholeNumber(const Word &word, std::int64_t low, std::int64_t high);

// The word as a message can show it: printable, and cut if it is long.
std::string Shown(const Word &word);

} // namespace Tessoro
