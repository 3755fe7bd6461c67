// Files and folders, as the editor sees them.
//
// Names are single-byte texts, Windows-1252. Every operation fails with the number that the user is
// to see: 52 for an empty name, 53 for a file that isn't there, 76 where a folder on the way to it
// isn't, 75 for all else that the system refuses, such as a folder in place of a file, and for what
// could keep the program waiting, such as a pipe.
#pragma once

#include "surface/Failure.hpp"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tessoro {

// A file that is being read, byte by byte from its begin. Going away closes it.
class InputFile {
public:
  InputFile() = default;
  InputFile(const InputFile &) = delete;
  InputFile &operator=(const InputFile &) = delete;
  virtual ~InputFile() = default;

  // Nothing at the end of the file. Fails with 75 where the system can't read on.
  virtual std::optional<std::uint8_t> NextByte() = 0;

  // As NextByte, but fails with 62 at the end.
  std::uint8_t ReadByte() {
    const std::optional<std::uint8_t> byte = NextByte();
    if (!byte)
      throw Failure(FailureCode::InputPastEndOfFile);
    return *byte;
  }
};

// A file that is being written. Bytes may wait in a buffer until Close, so only a Close that
// succeeds tells that they have all been taken. Going away without it closes the file as well, but
// tells nobody.
class OutputFile {
public:
  OutputFile() = default;
  OutputFile(const OutputFile &) = delete;
  OutputFile &operator=(const OutputFile &) = delete;
  virtual ~OutputFile() = default;

  // Fails with 75, for instance on a full disk, and with 52 after Close.
  virtual void Write(std::string_view bytes) = 0;
  // Fails with 75 where bytes that were written before don't reach the disk; the file is closed all
  // the same. Once more does nothing.
  virtual void Close() = 0;
};

class FileSystem {
public:
  FileSystem() = default;
  FileSystem(const FileSystem &) = delete;
  FileSystem &operator=(const FileSystem &) = delete;
  virtual ~FileSystem() = default;

  virtual std::unique_ptr<InputFile> OpenForReading(const std::string &name) = 0;
  // Creates the file, or replaces it as a whole: what stood in it is gone at once.
  virtual std::unique_ptr<OutputFile> OpenForWriting(const std::string &name) = 0;

  // The names of what stands in a folder, hidden folders left out, sorted without regard to case.
  // Both fail with 76 for a folder that isn't there, also for the empty text.
  virtual std::vector<std::string> Subfolders(const std::string &folder) const = 0;
  // The files whose whole name fits the pattern, in which * stands for any characters and ? for
  // one; case makes no difference.
  virtual std::vector<std::string> Files(const std::string &folder,
                                         const std::string &pattern) const = 0;
  // False where there is none, or something that is no folder. Doesn't fail.
  virtual bool FolderExists(const std::string &folder) const = 0;

  // The roots that a path can begin with, sorted. Never empty.
  virtual std::vector<std::string> Drives() const = 0;
  // That of the process, as a full path; no separator at its end unless it is a root. Fails with 76
  // if it has been removed.
  virtual std::string WorkingDirectory() const = 0;
  // Between the names of a path.
  virtual char Separator() const = 0;
};

} // namespace Tessoro
