// How the handlers of an editor nest, seen from outside.
#pragma once

#include "shell/Application.hpp"

#include <algorithm>
#include <functional>
#include <utility>

namespace Tessoro::Random {

// Counts each handler of each control as it begins and ends.
class HandlerWatch {
public:
  // Puts itself around all handlers that the controls have now. Must outlive the editor's last act.
  explicit HandlerWatch(const Application &app);
  HandlerWatch(const HandlerWatch &) = delete;
  HandlerWatch &operator=(const HandlerWatch &) = delete;

  // Runs as a text box begins to hear of its change.
  std::function<void(const TextBox &box)> onTextChange;

  int Deepest() const { return deepest; }
  std::size_t Begun() const { return begun; }

private:
  template <typename... Arguments>
  void Watch(std::function<void(Arguments...)> &handler, std::function<void()> before = {}) {
    if (!handler)
      return;
    handler = [this, inner = std::move(handler),
               first = std::move(before)](Arguments... arguments) {
      const Nested nested(*this);
      if (first)
        first();
      inner(arguments...);
    };
  }
  void WatchControl(Control &control);

  class Nested {
  public:
    explicit Nested(HandlerWatch &owner) : watch(owner) {
      ++watch.begun;
      watch.deepest = std::max(watch.deepest, ++watch.depth);
    }
    ~Nested() { --watch.depth; }
    Nested(const Nested &) = delete;
    Nested &operator=(const Nested &) = delete;

  private:
    HandlerWatch &watch;
  };

  int depth = 0;
  int deepest = 0;
  std::size_t begun = 0;
};

} // namespace Tessoro::Random
