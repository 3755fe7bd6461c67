#include "bench/Benches.hpp"
#include "bench/CountedHeap.hpp"
#include "bench/NullMidi.hpp"
#include "bench/QuietPlatform.hpp"

#include <benchmark/benchmark.h>

#include <memory>

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

// A run of its own for each row, so that what a change leaves behind would be felt by the next.
void ChangesAtNullService(benchmark::State &state, int changes) {
  for ([[maybe_unused]] auto iteration : state) {
    state.PauseTiming();
    NullMidi midi;
    auto run = std::make_unique<QuietRun>(midi);
    TextBox &box = run->app.F_Tessoro.TextF1_cutoff;
    state.ResumeTiming();
    for (int i = 0; i < changes; ++i)
      box.SetText(i % 2 == 0 ? "64" : "63");
    benchmark::DoNotOptimize(midi.seen);
    state.PauseTiming();
    run.reset();
    state.ResumeTiming();
  }
}

} // namespace

std::string Benches::ChangesAtNullService(int changes) {
  return std::to_string(changes) + " changes at a null service";
}

void Benches::RegisterChange() {
  for (const int changes : NumbersOfChanges)
    benchmark::RegisterBenchmark(ChangesAtNullService(changes).c_str(),
                                 Tessoro::ChangesAtNullService, changes);
  benchmark::RegisterBenchmark(ChangeAtNullService, Tessoro::ChangeAtNullService);
}

} // namespace Tessoro
