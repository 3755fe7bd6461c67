#include "tests/support/FreshDirectory.hpp"

#include <cstdlib>
#include <string>
#include <system_error>

namespace Tessoro {

namespace fs = std::filesystem;

FreshDirectory::FreshDirectory() : before(fs::current_path()) {
  std::string name = (fs::temp_directory_path() / "tessoro-test-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr)
    throw fs::filesystem_error("no fresh directory", name,
                               std::error_code(errno, std::generic_category()));
  path = name;
  fs::current_path(path);
}

FreshDirectory::~FreshDirectory() {
  fs::current_path(before);
  fs::remove_all(path);
}

} // namespace Tessoro
