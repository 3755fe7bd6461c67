#include "tests/faults/FaultyFiles.hpp"

namespace Tessoro::Tests {

namespace {

class FaultyInput : public InputFile {
public:
  FaultyInput(std::unique_ptr<InputFile> file, const FaultyFiles::Fault &faults)
      : inner(std::move(file)), fault(faults) {}

  std::optional<std::uint8_t> NextByte() override {
    const int number = fault(FileOperation::NextByte);
    if (number == EndOfFile)
      return std::nullopt;
    if (number != 0)
      throw Failure(number);
    return inner->NextByte();
  }

private:
  const std::unique_ptr<InputFile> inner;
  const FaultyFiles::Fault &fault;
};

class FaultyOutput : public OutputFile {
public:
  FaultyOutput(std::unique_ptr<OutputFile> file, const FaultyFiles::Fault &faults)
      : inner(std::move(file)), fault(faults) {}

  void Write(std::string_view bytes) override {
    const int number = fault(FileOperation::Write);
    inner->Write(number == 0 ? bytes : bytes.substr(0, bytes.size() / 2));
    if (number != 0)
      throw Failure(number);
  }

  void Close() override {
    inner->Close();
    if (const int number = fault(FileOperation::Close); number != 0)
      throw Failure(number);
  }

private:
  const std::unique_ptr<OutputFile> inner;
  const FaultyFiles::Fault &fault;
};

} // namespace

void FaultyFiles::Ask(FileOperation operation) const {
  if (const int number = fault(operation); number != 0)
    throw Failure(number);
}

std::unique_ptr<InputFile> FaultyFiles::OpenForReading(const std::string &name) {
  Ask(FileOperation::OpenForReading);
  return std::make_unique<FaultyInput>(inner.OpenForReading(name), fault);
}

std::unique_ptr<OutputFile> FaultyFiles::OpenForWriting(const std::string &name) {
  Ask(FileOperation::OpenForWriting);
  return std::make_unique<FaultyOutput>(inner.OpenForWriting(name), fault);
}

std::vector<std::string> FaultyFiles::Subfolders(const std::string &folder) const {
  Ask(FileOperation::Subfolders);
  return inner.Subfolders(folder);
}

std::vector<std::string> FaultyFiles::Files(const std::string &folder,
                                            const std::string &pattern) const {
  Ask(FileOperation::Files);
  return inner.Files(folder, pattern);
}

bool FaultyFiles::FolderExists(const std::string &folder) const {
  return fault(FileOperation::FolderExists) == 0 && inner.FolderExists(folder);
}

std::string FaultyFiles::WorkingDirectory() const {
  Ask(FileOperation::WorkingDirectory);
  return inner.WorkingDirectory();
}

} // namespace Tessoro::Tests
