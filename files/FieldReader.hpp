// The fields of a text file, one after the other, of whatever line.
#pragma once

#include "files/FileSystem.hpp"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace Tessoro {

struct Field {
  // Stood between double quotes; an empty field without quotes is one that was never set.
  bool quoted = false;
  std::string text;

  bool operator==(const Field &) const = default;
};

// Blanks before a field are skipped. A field that opens with a double quote runs to the next one,
// over line ends too; any other runs to the next comma or line end. The delimiter goes with the
// field. If anything else stands behind a closing quote, the next field begins there.
//
// A line ends with CR LF, CR or LF; the last one may end with the file.
class FieldReader {
public:
  explicit FieldReader(std::unique_ptr<InputFile> file);

  // Fails with 62 if nothing is left, or if the closing quote is missing, and with 75 where the
  // system can't read on.
  Field Read();

private:
  std::optional<std::uint8_t> Peek();
  void Take() { hasAhead = false; }
  void SkipBlanks();
  std::string ReadQuoted();
  std::string ReadBare();
  void TakeDelimiter();

  std::unique_ptr<InputFile> input;
  std::optional<std::uint8_t> ahead;
  bool hasAhead = false;
};

} // namespace Tessoro
