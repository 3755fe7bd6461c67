// What libFuzzer calls, and what a target says that must hold.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

// The name and the result are libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace Tessoro {

// Ends the process, which is what libFuzzer takes for a finding.
inline void MustHold(bool condition, const char *claim) {
  if (condition)
    return;
  std::fprintf(stderr, "Does not hold: %s\n", claim);
  std::abort();
}

inline std::string Text(const std::uint8_t *data, std::size_t size) {
  return {reinterpret_cast<const char *>(data), size};
}

} // namespace Tessoro
