// An empty folder of the machine for one test.
#pragma once

#include <filesystem>

namespace Tessoro {

// Is the working directory while it lives, and goes with all that stands in it.
class FreshDirectory {
public:
  FreshDirectory();
  ~FreshDirectory();
  FreshDirectory(const FreshDirectory &) = delete;
  FreshDirectory &operator=(const FreshDirectory &) = delete;

  const std::filesystem::path &Path() const { return path; }

private:
  std::filesystem::path before;
  std::filesystem::path path;
};

} // namespace Tessoro
