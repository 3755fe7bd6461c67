#include "bench/QuietPlatform.hpp"

#include <cstdio>
#include <cstdlib>

namespace Tessoro {

MsgBoxButton QuietScreen::MsgBox(const std::string &text, int /*flags*/, const std::string &title) {
  std::fprintf(stderr, "%s: %s\n", title.c_str(), text.c_str());
  std::exit(EXIT_FAILURE);
}

} // namespace Tessoro
