#include "bench/Benches.hpp"
#include "bench/CountedHeap.hpp"
#include "bench/NullMidi.hpp"
#include "bench/QuietPlatform.hpp"

#include <benchmark/benchmark.h>

namespace Tessoro {

namespace {

// So many moves in one direction, that the box stays within its limits and each move is a step.
constexpr int MovesUpOrDown = 20;

void DragUpAndDown(Image &knob) {
  float y = 0;
  knob.UserMouseDown({.y = y});
  for (int move = 0; move < Benches::MovesInDrag; ++move) {
    y += move / MovesUpOrDown % 2 == 0 ? -1.0F : 1.0F;
    knob.UserMouseMove({.y = y});
  }
  knob.UserMouseUp({.y = y});
}

// A form that reads no settings as it loads; its knob is like all others.
void DragAtNullService(benchmark::State &state) {
  NullMidi midi;
  QuietRun run(midi);
  F_General &form = run.app.F_General;
  form.Show();
  midi.seen = 0;
  const std::uint64_t before = HeapAllocations();
  for ([[maybe_unused]] auto iteration : state) {
    form.TextUnisonoDetune.SetText("64");
    DragUpAndDown(form.knobUnisonoDetune);
    benchmark::DoNotOptimize(midi.seen);
  }
  if (midi.seen == 0)
    state.SkipWithError("nothing was sent");
  const auto moves = static_cast<double>(state.iterations()) * Benches::MovesInDrag;
  state.counters[Benches::Allocations] = static_cast<double>(HeapAllocations() - before) / moves;
}

} // namespace

void Benches::RegisterKnob() {
  benchmark::RegisterBenchmark(DragAtNullService, Tessoro::DragAtNullService);
}

} // namespace Tessoro
