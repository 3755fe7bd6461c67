// Any bytes as fields; and any text without a quote, written and read again.
#include "files/FieldReader.hpp"
#include "files/FieldWriter.hpp"
#include "fuzz/FuzzTarget.hpp"
#include "tests/support/TestFiles.hpp"

#include <algorithm>
#include <vector>

namespace {

using namespace Tessoro;

constexpr const char *Name = "/x";

std::vector<Field> FieldsOf(TestFiles &files) {
  std::vector<Field> fields;
  FieldReader reader(files.OpenForReading(Name));
  try {
    while (true)
      fields.push_back(reader.Read());
  } catch (const Failure &failure) {
    MustHold(failure.Number() == FailureCode::InputPastEndOfFile, "only the end stops a reader");
  }
  return fields;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  TestFiles files;
  files.contents[Name] = Text(data, size);
  const std::vector<Field> fields = FieldsOf(files);
  MustHold(fields.size() <= size, "each field takes a byte at least");

  std::vector<Field> written;
  FieldWriter writer(files.OpenForWriting(Name));
  for (const Field &field : fields) {
    if (std::ranges::find(field.text, '"') != field.text.end())
      continue;
    writer.Text(field.text).EndLine();
    written.push_back({.quoted = true, .text = field.text});
  }
  writer.Close();
  MustHold(FieldsOf(files) == written, "what is written is read");
  return 0;
}
