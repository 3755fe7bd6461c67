// The files and folders of the machine, by way of the standard library.
//
// The machine's names are taken as UTF-8. A name that Windows-1252 can't tell appears with its
// bytes as they are, and is found again under them.
#pragma once

#include "files/FileSystem.hpp"

#include <filesystem>

namespace Tessoro {

// A path of the machine as a text of the model, and back. Of two names that read alike, one in
// UTF-8 and one in bytes, the way back prefers the one that exists, then the one in UTF-8.
std::string TextFromPath(const std::filesystem::path &path);
std::filesystem::path PathFromText(std::string_view text);

class StandardFileSystem : public FileSystem {
public:
  // The table tells what is mounted where. It need not exist.
  explicit StandardFileSystem(std::filesystem::path table = "/proc/self/mounts");

  std::unique_ptr<InputFile> OpenForReading(const std::string &name) override;
  std::unique_ptr<OutputFile> OpenForWriting(const std::string &name) override;

  std::vector<std::string> Subfolders(const std::string &folder) const override;
  std::vector<std::string> Files(const std::string &folder,
                                 const std::string &pattern) const override;
  bool FolderExists(const std::string &folder) const override;

  // On Windows the drives with a medium, as in "C:"; elsewhere the root and the folders on which
  // desktops mount removable media.
  std::vector<std::string> Drives() const override;
  std::string WorkingDirectory() const override;
  char Separator() const override;

private:
  std::filesystem::path mountTable;
};

} // namespace Tessoro
