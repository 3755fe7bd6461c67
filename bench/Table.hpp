// The one table that a run of the benchmarks ends in.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Tessoro {

struct TableRow {
  std::string measured;
  double value;
  std::string unit;
  // The value, or where there is a limit its ratio to it, is to stay at or below this.
  double goal;
  // The least that the same thing costs without the editor.
  std::string against = {};
  std::optional<double> limit = std::nullopt;
};

// Whether the goals are met that no busy machine can spoil: those of rows without a unit, which
// count something.
bool PrintTable(const std::vector<TableRow> &rows);

} // namespace Tessoro
