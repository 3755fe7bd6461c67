// The globals of each type as entries with a reader and a writer.
#pragma once

#include "sound/Shadow.hpp"
#include "surface/Property.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Tessoro {

PropertyEntry Global(std::string_view name, std::string &text);
PropertyEntry Global(std::string_view name, std::int16_t &number);
PropertyEntry Global(std::string_view name, int &number);
// A number that may never have held anything.
PropertyEntry Global(std::string_view name, std::optional<int> &number);
PropertyEntry Global(std::string_view name, bool &truth);
// A text that may be unset.
PropertyEntry GlobalText(std::string_view name, Value &value);
// A text written to a 16-bit shadow is read with a point.
PropertyEntry Global(std::string_view name, Shadow &shadow);

} // namespace Tessoro
