#include "bench/Benches.hpp"
#include "bench/CountedHeap.hpp"
#include "bench/NullMidi.hpp"
#include "bench/QuietPlatform.hpp"

#include <benchmark/benchmark.h>

namespace Tessoro {

namespace {

void ChangeAtNullService(benchmark::State &state) {
  NullMidi midi;
  QuietRun run(midi);
  TextBox &box = run.app.F_Tessoro.TextF1_cutoff;
  bool odd = false;
  const std::uint64_t before = HeapAllocations();
  for ([[maybe_unused]] auto iteration : state) {
    box.SetText(odd ? "63" : "64");
    odd = !odd;
    benchmark::DoNotOptimize(midi.seen);
  }
  state.counters[Benches::Allocations] = benchmark::Counter(
      static_cast<double>(HeapAllocations() - before), benchmark::Counter::kAvgIterations);
}

} // namespace

void Benches::RegisterChange() {
  benchmark::RegisterBenchmark(ChangeAtNullService, Tessoro::ChangeAtNullService);
}

} // namespace Tessoro
