#include "files/FieldReader.hpp"

#include <utility>

namespace Tessoro {

FieldReader::FieldReader(std::unique_ptr<InputFile> file) : input(std::move(file)) {}

Field FieldReader::Read() {
  SkipBlanks();
  if (!Peek())
    throw Failure(FailureCode::InputPastEndOfFile);
  Field field;
  field.quoted = Peek() == '"';
  field.text = field.quoted ? ReadQuoted() : ReadBare();
  TakeDelimiter();
  return field;
}

std::optional<std::uint8_t> FieldReader::Peek() {
  if (!hasAhead) {
    ahead = input->NextByte();
    hasAhead = true;
  }
  return ahead;
}

void FieldReader::SkipBlanks() {
  while (Peek() == ' ')
    Take();
}

std::string FieldReader::ReadQuoted() {
  std::string text;
  Take();
  while (Peek() != '"') {
    if (!Peek())
      throw Failure(FailureCode::InputPastEndOfFile);
    text += static_cast<char>(*Peek());
    Take();
  }
  Take();
  SkipBlanks();
  return text;
}

std::string FieldReader::ReadBare() {
  std::string text;
  while (Peek() && Peek() != ',' && Peek() != '\r' && Peek() != '\n') {
    text += static_cast<char>(*Peek());
    Take();
  }
  return text;
}

void FieldReader::TakeDelimiter() {
  if (Peek() == ',' || Peek() == '\n') {
    Take();
  } else if (Peek() == '\r') {
    Take();
    if (Peek() == '\n')
      Take();
  }
}

} // namespace Tessoro
