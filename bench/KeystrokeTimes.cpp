#include "bench/KeystrokeTimes.hpp"

#include "bench/ProgramDirectory.hpp"

#include <cstdio>
#include <stdexcept>
#include <string>

namespace Tessoro {

KeystrokeTimes MeasureKeystrokes() {
  const ProgramDirectory directory;
  const std::string command = "'" TESSORO_KEYSTROKES "' '" + directory.Name() + "'";
  FILE *output = popen(command.c_str(), "r");
  if (output == nullptr)
    throw std::runtime_error("no typing program");
  KeystrokeTimes times;
  const int found = std::fscanf(output, "%lf %lf", &times.editor, &times.bareField);
  if (pclose(output) != 0 || found != 2)
    throw std::runtime_error("the keystrokes were not heard");
  return times;
}

} // namespace Tessoro
