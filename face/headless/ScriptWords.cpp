#include "face/headless/ScriptWords.hpp"

#include "face/headless/Trace.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace Tessoro {

namespace {

constexpr std::string_view Blanks = " \t\r";

int HexDigit(char c) {
  if (c >= '0' && c <= '9')
    return c - '0';
  if (c >= 'A' && c <= 'F')
    return c - 'A' + 10;
  if (c >= 'a' && c <= 'f')
    return c - 'a' + 10;
  throw ScriptError("\\x in a text needs two hexadecimal digits");
}

// Walks over one line.
class Lexer {
public:
  explicit Lexer(std::string_view line) : rest(line) {}

  Words Split() {
    Words words;
    for (SkipBlanks(); !rest.empty(); SkipBlanks())
      words.push_back(rest.front() == '"' ? TakeText() : TakeBareWord());
    return words;
  }

private:
  void SkipBlanks() { rest.remove_prefix(std::min(rest.find_first_not_of(Blanks), rest.size())); }

  char Take() {
    if (rest.empty())
      throw ScriptError("a text has no closing quote");
    const char taken = rest.front();
    rest.remove_prefix(1);
    return taken;
  }

  Word TakeText() {
    Word word{WordKind::Text, {}};
    Take();
    for (char c = Take(); c != '"'; c = Take()) {
      if (c < 0x20 || c > 0x7E)
        throw ScriptError("a byte outside 0x20 .. 0x7E in a text is written \\xHH");
      word.text += c == '\\' ? TakeEscaped() : c;
    }
    if (!rest.empty() && Blanks.find(rest.front()) == std::string_view::npos)
      throw ScriptError("a text must be followed by a blank");
    return word;
  }

  char TakeEscaped() {
    switch (Take()) {
    case '"':
      return '"';
    case '\\':
      return '\\';
    case 'r':
      return '\r';
    case 'n':
      return '\n';
    case 't':
      return '\t';
    case 'x': {
      const int high = HexDigit(Take());
      return static_cast<char>(16 * high + HexDigit(Take()));
    }
    default:
      throw ScriptError("the escapes of a text are \\\" \\\\ \\r \\n \\t and \\xHH");
    }
  }

  Word TakeBareWord() {
    const std::size_t length = std::min(rest.find_first_of(Blanks), rest.size());
    Word word{WordKind::Name, std::string(rest.substr(0, length))};
    rest.remove_prefix(length);
    ReadNumber(word);
    return word;
  }

  static void ReadNumber(Word &word) {
    // The library would also take words such as inf.
    if (word.text.find_first_not_of("0123456789.eE+-") != std::string::npos)
      return;
    const char *const end = word.text.data() + word.text.size();
    const auto read = std::from_chars(word.text.data(), end, word.number);
    if (read.ec == std::errc::invalid_argument || read.ptr != end)
      return;
    if (read.ec == std::errc::result_out_of_range)
      throw ScriptError("no float can hold the number " + Shown(word));
    word.kind = WordKind::Number;
  }

  std::string_view rest;
};

} // namespace

Words SplitLine(std::string_view line) { return Lexer(line).Split(); }

std::int64_t WholeNumber(const Word &word, std::int64_t low, std::int64_t high) {
  if (word.number != std::trunc(word.number) || word.number < static_cast<double>(low) ||
      word.number > static_cast<double>(high))
    throw ScriptError(Shown(word) + " is no whole number from " + std::to_string(low) + " to " +
                      std::to_string(high));
  return static_cast<std::int64_t>(word.number);
}

std::string Shown(const Word &word) {
  constexpr std::size_t longest = 60;
  const std::string quoted = QuotedText(std::string_view(word.text).substr(0, longest));
  return word.text.size() > longest ? quoted + "..." : quoted;
}

} // namespace Tessoro
