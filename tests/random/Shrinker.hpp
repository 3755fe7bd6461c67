// Makes a script that shows a fault as short as it gets.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace Tessoro::Random {

using Script = std::vector<std::string>;

// A part of the script that still fails and of which no single line can be left out any more. Asks
// whether a part fails; the whole does.
Script Shrunk(Script script, const std::function<bool(const Script &)> &fails);

} // namespace Tessoro::Random
