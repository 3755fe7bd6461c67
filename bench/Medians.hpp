// Collects what Google Benchmark measures, and gives the median over the repetitions.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace Tessoro {

// Of an empty list: 0.
double Median(std::vector<double> numbers);

class Medians : public benchmark::BenchmarkReporter {
public:
  bool ReportContext(const Context & /*context*/) override { return true; }
  void ReportRuns(const std::vector<Run> &runs) override;

  // Seconds for one iteration.
  double Time(const std::string &name) const;
  double Counter(const std::string &name, const std::string &counter) const;
  // Whether every run of every benchmark went through.
  bool AllWentThrough() const { return allWentThrough; }

private:
  std::map<std::string, std::vector<double>> times;
  std::map<std::string, std::map<std::string, std::vector<double>>> counters;
  bool allWentThrough = true;
};

} // namespace Tessoro
