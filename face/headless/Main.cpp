#include "face/headless/CommandLine.hpp"

#include <iostream>

int main(int argc, char **argv) {
  const std::span<const char *const> all(argv, static_cast<std::size_t>(argc));
  return Tessoro::RunCommandLine(all.subspan(all.empty() ? 0 : 1), std::cin, std::cout, std::cerr);
}
