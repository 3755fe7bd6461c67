#include "bench/Benches.hpp"
#include "bench/CountedHeap.hpp"
#include "bench/NullMidi.hpp"
#include "bench/QuietPlatform.hpp"

#include <benchmark/benchmark.h>

#include <chrono>

namespace Tessoro {

namespace {

using Clock = std::chrono::steady_clock;

class CountingMidi : public NullMidi {
public:
  MidiResult midiOutShortMsg(MidiHandle handle, std::uint32_t message) override {
    ++messages;
    return NullMidi::midiOutShortMsg(handle, message);
  }
  MidiResult midiOutLongMsg(MidiHandle handle, MIDIHDR &header, std::uint32_t size) override {
    ++messages;
    return NullMidi::midiOutLongMsg(handle, header, size);
  }

  std::uint64_t messages = 0;
};

// The first init of a run is the whole one: every control changes and sends for itself. So each
// iteration has a fresh run, whose making isn't measured.
void InitAtNullService(benchmark::State &state) {
  CountingMidi midi;
  std::uint64_t allocations = 0;
  for ([[maybe_unused]] auto iteration : state) {
    QuietRun run(midi);
    const std::uint64_t before = HeapAllocations();
    const Clock::time_point begin = Clock::now();
    run.app.F_Tessoro.InitPanelParams();
    const std::chrono::duration<double> time = Clock::now() - begin;
    allocations += HeapAllocations() - before;
    state.SetIterationTime(time.count());
    benchmark::DoNotOptimize(midi.seen);
  }
  if (midi.messages == 0) {
    state.SkipWithError("nothing was sent");
    return;
  }
  state.counters[Benches::Allocations] =
      static_cast<double>(allocations) / static_cast<double>(midi.messages);
}

} // namespace

void Benches::RegisterInit() {
  benchmark::RegisterBenchmark(InitAtNullService, Tessoro::InitAtNullService)->UseManualTime();
}

} // namespace Tessoro
