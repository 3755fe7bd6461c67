// Waiting for what other programs do, and places for their files.
#pragma once

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>

namespace Tessoro::Tests {

// The ends of a test's patience are far off: they are met only where something is wrong.
inline bool Eventually(const std::function<bool()> &condition,
                       std::chrono::steady_clock::duration patience = std::chrono::seconds(20)) {
  const auto deadline = std::chrono::steady_clock::now() + patience;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > deadline)
      return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return true;
}

// Throws where it never comes.
inline void WaitFor(const std::string &what, const std::function<bool()> &condition) {
  if (!Eventually(condition))
    throw std::runtime_error("in vain waited for " + what);
}

// Empty, and the caller's to remove.
inline std::filesystem::path NewTestDirectory() {
  std::string name = (std::filesystem::temp_directory_path() / "tessoro-test-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr)
    throw std::runtime_error("no directory for the test");
  return name;
}

} // namespace Tessoro::Tests
