// Measures the editor side by side with the least that the same work costs without it.
#include "bench/Benches.hpp"
#include "bench/KeystrokeTimes.hpp"
#include "bench/Medians.hpp"
#include "bench/MicroQInitTimes.hpp"
#include "bench/Table.hpp"
#include "bench/WindowStart.hpp"
#include "tests/endtoend/JackServer.hpp"

#include <cstdio>
#include <exception>
#include <string>
#include <string_view>

namespace {

constexpr double NanosecondsInSecond = 1e9;
constexpr double MicrosecondsInSecond = 1e6;
constexpr double MillisecondsInSecond = 1e3;
constexpr double NanosecondsInMicrosecond = 1e3;

struct Effort {
  int benchmarkRepetitions;
  int wireRepetitions; // fewer, as a cable takes its time
  int windowStarts;
};

// Repetitions of all benchmarks by turns, so that a slow moment of the machine meets all of them.
Tessoro::Medians RunBenchmarks(int repetitions) {
  std::string interleave = "--benchmark_enable_random_interleaving=true";
  std::string times = "--benchmark_repetitions=" + std::to_string(repetitions);
  std::string shortest = "--benchmark_min_time=0.05";
  std::string program = "tessoro-bench";
  char *arguments[] = {program.data(), interleave.data(), times.data(), shortest.data()};
  int count = std::size(arguments);
  benchmark::Initialize(&count, arguments);
  Tessoro::Medians medians;
  benchmark::RunSpecifiedBenchmarks(&medians);
  return medians;
}

void Measure(const Effort &effort) {
  using namespace Tessoro;
  const WindowStarts starts = MeasureWindowStarts(effort.windowStarts);
  const KeystrokeTimes keystrokes = MeasureKeystrokes();
  const MicroQInitTimes inits = MeasureMicroQInits();

  const Tests::JackServer jack;
  Benches::RegisterChange();
  Benches::RegisterFiles();
  Benches::RegisterInit();
  Benches::RegisterKnob();
  Benches::RegisterWire(effort.wireRepetitions);
  const Medians medians = RunBenchmarks(effort.benchmarkRepetitions);
  if (!medians.AllWentThrough())
    throw std::runtime_error("a benchmark failed");

  const auto nanoseconds = [&medians](const std::string &name) {
    return medians.Time(name) * NanosecondsInSecond;
  };
  const double change = nanoseconds(Benches::ChangeAtNullService);
  const double bare = nanoseconds(Benches::BareMessageOverJack);
  const auto eachOf = [&](int changes) {
    return nanoseconds(Benches::ChangesAtNullService(changes)) / changes;
  };
  const bool countsAreMet = PrintTable({
      {"one change, text to a null service", change, "ns", 1000},
      {"  its heap allocations",
       medians.Counter(Benches::ChangeAtNullService, Benches::Allocations), "", 0},
      {"  each of 10,000", eachOf(10000), "ns", 1.5, "of 1,000", eachOf(1000)},
      {"  each of 100,000", eachOf(100000), "ns", 1.5, "of 1,000", eachOf(1000)},
      {"a whole init to a null service",
       medians.Time(Benches::InitAtNullService) * MicrosecondsInSecond, "us", 200},
      {"  its heap allocations for a message",
       medians.Counter(Benches::InitAtNullService, Benches::Allocations), "", 0.02},
      {"one move of a knob, drag of 1000 moves",
       nanoseconds(Benches::DragAtNullService) / Benches::MovesInDrag, "ns", 1000},
      {"  its heap allocations", medians.Counter(Benches::DragAtNullService, Benches::Allocations),
       "", 0},
      {"one message of a row, JACK", nanoseconds(Benches::MessageThroughJack), "ns", 1.1,
       "bare sendMessage", bare},
      {"the first message of a row, JACK", nanoseconds(Benches::FirstMessageThroughJack), "ns", 2,
       "waking a thread", nanoseconds(Benches::WakeOfThread)},
      {"one change of a row, text to return, JACK", nanoseconds(Benches::ChangeThroughJack), "ns",
       1.1, "null service + bare send", nanoseconds(Benches::ChangeAfterRest) + bare},
      {"a whole init, call to return, JACK",
       medians.Time(Benches::InitThroughJack) * MicrosecondsInSecond, "us", 1.5,
       "null service + bare sends",
       medians.Time(Benches::InitAfterRest) * MicrosecondsInSecond +
           bare * Benches::MessagesInRow / NanosecondsInMicrosecond},
      {"a whole init, microQ with its window", inits.withWindow, "us", 3, "a null service",
       inits.atNullService},
      {"  the same", inits.withWindow, "us", 1.5, "without the window", inits.withoutWindow},
      {"  the window's look that shows it", inits.look, "ms", 16},
      {"one keystroke in the window (99th perc.)", keystrokes.editor, "us", 2,
       "a field of the library", keystrokes.bareField},
      {"load of a sound file", medians.Time(Benches::LoadOfSound) * MicrosecondsInSecond, "us", 20,
       "bare read", medians.Time(Benches::BareReadOfSound) * MicrosecondsInSecond},
      {"save of a sound file", medians.Time(Benches::SaveOfSound) * MicrosecondsInSecond, "us", 5,
       "bare write", medians.Time(Benches::BareWriteOfSound) * MicrosecondsInSecond},
      {"start to first frame", starts.editor.seconds * MillisecondsInSecond, "ms", 1.5,
       "empty window", starts.emptyWindow.seconds * MillisecondsInSecond},
      {"  the same", starts.editor.seconds * MillisecondsInSecond, "ms", 1.5, "window with a word",
       starts.windowWithWord.seconds * MillisecondsInSecond},
      {"peak memory", starts.editor.mebibytes, "MiB", 1.35, "empty window",
       starts.emptyWindow.mebibytes},
      {"  the same", starts.editor.mebibytes, "MiB", 1.35, "window with a word",
       starts.windowWithWord.mebibytes},
  });
  if (!countsAreMet)
    throw std::runtime_error("the heap is used where it must not be");
}

} // namespace

int main(int argc, char *argv[]) {
  const bool isShort = argc > 1 && std::string_view(argv[1]) == "--short";
  try {
    Measure(isShort ? Effort{3, 1, 3} : Effort{15, 9, 61});
  } catch (const std::exception &failure) {
    std::fprintf(stderr, "The benchmarks failed: %s.\n", failure.what());
    return 1;
  }
  return 0;
}
