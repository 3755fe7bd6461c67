#include "bench/ProgramDirectory.hpp"

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <system_error>

namespace Tessoro {

ProgramDirectory::ProgramDirectory() {
  std::string name = (std::filesystem::temp_directory_path() / "tessoro-bench-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr)
    throw std::runtime_error("no temporary directory");
  path = name;
  std::ofstream(path / "Tessoro.ini") << "\"Tessoro v1.3.1\"\r\n,\"\"\r\n3,3\r\n0,0\r\n0,0\r\n"
                                         "\"?\"\r\n\"No\"\r\n";
}

ProgramDirectory::~ProgramDirectory() {
  std::error_code ignored;
  std::filesystem::remove_all(path, ignored);
}

} // namespace Tessoro
