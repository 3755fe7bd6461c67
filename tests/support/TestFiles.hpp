// A file system in memory, with "/" as its one drive.
#pragma once

#include "files/FileSystem.hpp"

#include <map>
#include <string>
#include <vector>

namespace Tessoro {

class TestFiles : public FileSystem {
public:
  std::unique_ptr<InputFile> OpenForReading(const std::string &name) override;
  std::unique_ptr<OutputFile> OpenForWriting(const std::string &name) override;
  std::vector<std::string> Subfolders(const std::string &folder) const override;
  std::vector<std::string> Files(const std::string &folder,
                                 const std::string &pattern) const override;
  bool FolderExists(const std::string &folder) const override;
  std::vector<std::string> Drives() const override { return drives; }
  std::string WorkingDirectory() const override { return workingDirectory; }
  char Separator() const override { return separator; }

  // Full name to content.
  std::map<std::string, std::string> contents;
  // Folder to its subfolders.
  std::map<std::string, std::vector<std::string>> folders{{"/", {}}};
  std::vector<std::string> drives{"/"};
  std::string workingDirectory = "/";
  char separator = '/';
  // The failures of the next openings; 0 for none.
  int readingFailsWith = 0;
  int writingFailsWith = 0;
  // How many files are open.
  int open = 0;
};

} // namespace Tessoro
