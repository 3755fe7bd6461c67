#include "tests/random/Shrinker.hpp"

#include <algorithm>

namespace Tessoro::Random {

namespace {

Script Without(const Script &script, std::size_t begin, std::size_t count) {
  const auto from = script.begin() + static_cast<std::ptrdiff_t>(begin);
  Script rest(script.begin(), from);
  rest.insert(rest.end(),
              from + static_cast<std::ptrdiff_t>(std::min(count, script.size() - begin)),
              script.end());
  return rest;
}

// Leaves out what it can in pieces of that length, from the end on: what comes late hangs on what
// comes early, so the late lines go more easily. True if anything went.
bool DropPieces(Script &script, std::size_t length,
                const std::function<bool(const Script &)> &fails) {
  bool dropped = false;
  for (std::size_t end = script.size(); end > 0;) {
    const std::size_t begin = end > length ? end - length : 0;
    if (Script rest = Without(script, begin, end - begin); fails(rest)) {
      script = std::move(rest);
      dropped = true;
    }
    end = begin;
  }
  return dropped;
}

} // namespace

Script Shrunk(Script script, const std::function<bool(const Script &)> &fails) {
  for (std::size_t length = script.size() / 2; length > 1; length /= 2)
    DropPieces(script, length, fails);
  // A line may become needless when a later one has gone.
  while (DropPieces(script, 1, fails)) {
  }
  return script;
}

} // namespace Tessoro::Random
