// An input method on a virtual display, as those who write Korean or with accents have it.
#pragma once

#include "tests/endtoend/ChildProcess.hpp"
#include "tests/endtoend/VirtualDisplay.hpp"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace Tessoro::Tests {

// ibus on a session bus of its own, in a home of its own, so that the user's is left alone.
class InputMethod {
public:
  // Whether ibus is there, and what it needs for Korean.
  static bool IsInstalled();

  // Returns when it answers.
  explicit InputMethod(const VirtualDisplay &display);
  ~InputMethod();
  InputMethod(const InputMethod &) = delete;
  InputMethod &operator=(const InputMethod &) = delete;

  // For programs that shall be typed into with it.
  const std::vector<std::string> &Environment() const { return environment; }

  // What composes from now on: "hangul", or a keyboard with accents as "xkb:us:intl:eng".
  void Choose(const std::string &engine) const;

private:
  std::string Ask(const std::string &command) const;

  const std::filesystem::path home;
  const std::vector<std::string> environment;
  std::unique_ptr<ChildProcess> sessionBus;
  std::unique_ptr<ChildProcess> daemon;
};

} // namespace Tessoro::Tests
