#include "bench/Medians.hpp"

#include <algorithm>
#include <cstdio>

namespace Tessoro {

double Median(std::vector<double> numbers) {
  if (numbers.empty())
    return 0;
  const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
  std::nth_element(numbers.begin(), middle, numbers.end());
  return *middle;
}

void Medians::ReportRuns(const std::vector<Run> &runs) {
  for (const Run &run : runs) {
    if (run.error_occurred) {
      allWentThrough = false;
      std::fprintf(stderr, "%s: %s\n", run.benchmark_name().c_str(), run.error_message.c_str());
    }
    if (run.run_type != Run::RT_Iteration || run.error_occurred)
      continue;
    const std::string &name = run.run_name.function_name;
    times[name].push_back(run.real_accumulated_time / static_cast<double>(run.iterations));
    for (const auto &[counter, value] : run.counters)
      counters[name][counter].push_back(value.value);
  }
}

double Medians::Time(const std::string &name) const { return Median(times.at(name)); }

double Medians::Counter(const std::string &name, const std::string &counter) const {
  return Median(counters.at(name).at(counter));
}

} // namespace Tessoro
