// Writes lines of fields, as FieldReader reads them.
#pragma once

#include "files/FileSystem.hpp"

#include <memory>
#include <string>
#include <string_view>

namespace Tessoro {

// A comma stands between the fields of a line, CR LF behind each line. A line goes to the file when
// it ends, so one that was begun and not ended isn't written.
class FieldWriter {
public:
  explicit FieldWriter(std::unique_ptr<OutputFile> file);

  // Between double quotes. A double quote in the text isn't escaped and will end the field when it
  // is read.
  FieldWriter &Text(std::string_view text);
  FieldWriter &Number(int number);
  FieldWriter &Number(double number);
  // A field that was never set.
  FieldWriter &Nothing();

  // Both fail as the file does.
  void EndLine();
  void Close();

private:
  std::string &NextField();

  std::unique_ptr<OutputFile> output;
  std::string line;
  bool lineHasField = false;
};

} // namespace Tessoro
