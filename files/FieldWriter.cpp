#include "files/FieldWriter.hpp"

#include "surface/Conversions.hpp"

#include <utility>

namespace Tessoro {

FieldWriter::FieldWriter(std::unique_ptr<OutputFile> file) : output(std::move(file)) {}

FieldWriter &FieldWriter::Text(std::string_view text) {
  NextField().append(1, '"').append(text).append(1, '"');
  return *this;
}

FieldWriter &FieldWriter::Number(int number) {
  NextField() += IntegerText(number);
  return *this;
}

FieldWriter &FieldWriter::Number(double number) {
  NextField() += NumberText(number);
  return *this;
}

FieldWriter &FieldWriter::Nothing() {
  NextField();
  return *this;
}

void FieldWriter::EndLine() {
  line += "\r\n";
  output->Write(line);
  line.clear();
  lineHasField = false;
}

void FieldWriter::Close() { output->Close(); }

std::string &FieldWriter::NextField() {
  if (lineHasField)
    line += ',';
  lineHasField = true;
  return line;
}

} // namespace Tessoro
