#include "bench/Table.hpp"

#include <cstdio>

namespace Tessoro {

bool PrintTable(const std::vector<TableRow> &rows) {
  std::printf("%-44s %12s   %-34s %7s %7s\n", "measured (medians)", "value", "against", "ratio",
              "goal");
  bool countsAreMet = true;
  for (const TableRow &row : rows) {
    std::printf("%-44s %8.2f %-3s   ", row.measured.c_str(), row.value, row.unit.c_str());
    double judged = row.value;
    if (row.limit) {
      judged = row.value / *row.limit;
      std::printf("%-23s%8.2f %-3s %6.2f ", row.against.c_str(), *row.limit, row.unit.c_str(),
                  judged);
    } else {
      std::printf("%-34s %7s ", "", "");
    }
    const bool isMet = judged <= row.goal;
    std::printf("%7.2f  %s\n", row.goal, isMet ? "met" : "MISSED");
    countsAreMet = countsAreMet && (isMet || !row.unit.empty());
  }
  return countsAreMet;
}

} // namespace Tessoro
