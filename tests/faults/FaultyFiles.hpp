// A file system that fails where it is told to.
#pragma once

#include "files/FileSystem.hpp"

#include <cstdint>
#include <functional>

namespace Tessoro::Tests {

enum class FileOperation : std::uint8_t {
  OpenForReading,
  NextByte,
  OpenForWriting,
  Write,
  Close,
  Subfolders,
  Files,
  FolderExists,
  WorkingDirectory,
};

// What a fault comes to, besides the numbers of failures: a file that ends too early.
inline constexpr int EndOfFile = -1;

class FaultyFiles : public FileSystem {
public:
  // Asked at each operation; 0 lets it pass. A folder that is asked for is missing, whatever the
  // number. A write that fails has taken half of the bytes.
  using Fault = std::function<int(FileOperation operation)>;

  FaultyFiles(FileSystem &files, Fault faults) : inner(files), fault(std::move(faults)) {}

  std::unique_ptr<InputFile> OpenForReading(const std::string &name) override;
  std::unique_ptr<OutputFile> OpenForWriting(const std::string &name) override;
  std::vector<std::string> Subfolders(const std::string &folder) const override;
  std::vector<std::string> Files(const std::string &folder,
                                 const std::string &pattern) const override;
  bool FolderExists(const std::string &folder) const override;
  std::vector<std::string> Drives() const override { return inner.Drives(); }
  std::string WorkingDirectory() const override;
  char Separator() const override { return inner.Separator(); }

private:
  void Ask(FileOperation operation) const;

  FileSystem &inner;
  const Fault fault;
};

} // namespace Tessoro::Tests
