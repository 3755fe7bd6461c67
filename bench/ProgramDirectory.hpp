// A directory for a program that is measured.
#pragma once

#include <filesystem>
#include <string>

namespace Tessoro {

// Its settings name ports, so that no window but the main one comes up. The constructor throws
// where no directory can be made.
class ProgramDirectory {
public:
  ProgramDirectory();
  ~ProgramDirectory();
  ProgramDirectory(const ProgramDirectory &) = delete;
  ProgramDirectory &operator=(const ProgramDirectory &) = delete;

  std::string Name() const { return path.string(); }

private:
  std::filesystem::path path;
};

} // namespace Tessoro
