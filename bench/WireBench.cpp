#include "bench/Benches.hpp"
#include "bench/Medians.hpp"
#include "bench/NullMidi.hpp"
#include "bench/QuietPlatform.hpp"
#include "service/MachineMidi.hpp"

#include <RtMidi.h>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

namespace Tessoro {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr const char *PortName = "tessoro-bench-synth";

// Long enough for a JACK server to take all messages of a row, whoever sent them.
constexpr auto RestBetweenRows = 40ms;
constexpr auto LongestWait = 5s;

constexpr std::array<std::uint8_t, 10> Message{0xF0, 0x3E, 0x10, 0x00, 0x20,
                                               0x00, 0x00, 0x4E, 0x40, 0xF7};

std::atomic<int> arrived{0};

void CountArrival(double /*time*/, std::vector<unsigned char> *message, void * /*data*/) {
  if (message->size() == Message.size())
    ++arrived;
}

// The port that everything goes to. It is there for the whole run.
RtMidiIn &Synth() {
  static RtMidiIn port(RtMidi::UNIX_JACK, PortName);
  return port;
}

// On a busy machine the server may take its time.
bool HaveArrived(int count) {
  const Clock::time_point end = Clock::now() + LongestWait;
  while (arrived < count && Clock::now() < end)
    std::this_thread::sleep_for(1ms);
  return arrived >= count;
}

// What the synth has to get, and then a rest, in which whoever sends forgets how it went.
void Settle(benchmark::State &state, int messages) {
  if (!HaveArrived(messages))
    state.SkipWithError("messages were lost");
  std::this_thread::sleep_for(RestBetweenRows);
  arrived = 0;
}

// The cable is as long on its way with a row that goes to a port. Whoever needs less time for a row
// rests as long, and looks as often whether the time is over as they do whether all has arrived.
void RestLikeTheCable() {
  const Clock::time_point end = Clock::now() + 1s;
  while (Clock::now() < end)
    std::this_thread::sleep_for(1ms);
}

// The messages of an init come in a row, and then nothing for a while: in a longer row a bare
// sender would only wait for the server's next cycle. The first one wakes the thread that paces the
// wire, and is measured apart from the others.
enum class Part : std::uint8_t { First, EachOfTheOthers };

template <typename Send> double SecondsOfRow(Part part, Send &&send) {
  const Clock::time_point begin = Clock::now();
  send(0);
  const Clock::time_point second = Clock::now();
  for (int i = 1; i < Benches::MessagesInRow; ++i)
    send(i);
  const std::chrono::duration<double> first = second - begin;
  const std::chrono::duration<double> others = Clock::now() - second;
  return part == Part::First ? first.count() : others.count() / (Benches::MessagesInRow - 1);
}

// What counts of some rows. The thread that is woken may work on the other half of the same core,
// which halves the speed of the row in one run and not in the next: so the fastest row tells what
// the calls cost. Waking itself is told by the median.
double Telling(Part part, std::vector<double> rows) {
  return part == Part::First ? Median(std::move(rows))
                             : *std::min_element(rows.begin(), rows.end());
}

template <typename Send, typename Settle>
void MeasureRows(benchmark::State &state, Part part, Send &&send, Settle &&settle) {
  constexpr std::size_t rows = 5; // of a second each
  for ([[maybe_unused]] auto iteration : state) {
    RestLikeTheCable(); // behind the setting up
    std::vector<double> times;
    while (times.size() < rows) {
      times.push_back(SecondsOfRow(part, send));
      settle();
    }
    state.SetIterationTime(Telling(part, std::move(times)));
  }
}

template <typename Send> void MeasureRowsOnWire(benchmark::State &state, Part part, Send &&send) {
  MeasureRows(state, part, send, [&state] { Settle(state, Benches::MessagesInRow); });
}

std::int32_t DeviceNumberOfSynth(MidiService &service) {
  const auto count = static_cast<std::int32_t>(service.midiOutGetNumDevs());
  for (std::int32_t device = 0; device < count; ++device) {
    MIDIOUTCAPS record;
    service.midiOutGetDevCapsA(device, record, sizeof record);
    if (std::strncmp(record.szPname.data(), PortName, std::strlen(PortName)) == 0)
      return device;
  }
  std::fputs("The port of the benchmark is not in the list of devices.\n", stderr);
  std::exit(EXIT_FAILURE);
}

std::string_view ValueOfTurn(int turn) { return turn % 2 == 0 ? "64" : "63"; }

void ChangeAfterRest(benchmark::State &state) {
  NullMidi midi;
  QuietRun run(midi);
  TextBox &box = run.app.F_Tessoro.TextF1_cutoff;
  MeasureRows(
      state, Part::EachOfTheOthers, [&box](int i) { box.SetText(ValueOfTurn(i)); },
      RestLikeTheCable);
}

void ChangeThroughJack(benchmark::State &state) {
  const auto service = MakeMachineMidiService(std::make_shared<BuiltinMicroQ>());
  QuietRun run(*service);
  run.app.Module1.MidiOutPort = DeviceNumberOfSynth(*service);
  run.app.Module1.OpenCloseMidiOut("open");
  TextBox &box = run.app.F_Tessoro.TextF1_cutoff;
  MeasureRowsOnWire(state, Part::EachOfTheOthers, [&box](int i) { box.SetText(ValueOfTurn(i)); });
  run.app.Module1.OpenCloseMidiOut("close");
}

double SecondsOfInit(Application &app) {
  const Clock::time_point begin = Clock::now();
  app.F_Tessoro.InitPanelParams();
  const std::chrono::duration<double> time = Clock::now() - begin;
  return time.count();
}

// Of a fresh run each time, as the first init sends most.
void InitAfterRest(benchmark::State &state) {
  for ([[maybe_unused]] auto iteration : state) {
    NullMidi midi;
    QuietRun run(midi);
    RestLikeTheCable();
    state.SetIterationTime(SecondsOfInit(run.app));
  }
}

void InitThroughJack(benchmark::State &state) {
  const auto service = MakeMachineMidiService(std::make_shared<BuiltinMicroQ>());
  for ([[maybe_unused]] auto iteration : state) {
    QuietRun run(*service);
    run.app.Module1.MidiOutPort = DeviceNumberOfSynth(*service);
    run.app.Module1.OpenCloseMidiOut("open");
    RestLikeTheCable();
    state.SetIterationTime(SecondsOfInit(run.app));
    run.app.Module1.OpenCloseMidiOut("close"); // hands out what still waits
    Settle(state, Benches::MessagesInRow / 2); // the others are shorter
  }
}

void MessageThroughJack(benchmark::State &state, Part part) {
  const auto service = MakeMachineMidiService(std::make_shared<BuiltinMicroQ>());
  MidiHandle handle = 0;
  service->midiOutOpen(handle, DeviceNumberOfSynth(*service), 0, 0, 0);
  constexpr std::uint32_t size = 24 + Message.size();
  MidiResult results = MidiResultCode::Success;
  MeasureRowsOnWire(state, part, [&](int /*i*/) {
    MIDIHDR header;
    header.lpData = Message.data();
    header.dwBufferLength = Message.size();
    results |= service->midiOutPrepareHeader(handle, header, size);
    results |= service->midiOutLongMsg(handle, header, size);
    results |= service->midiOutUnprepareHeader(handle, header, size);
  });
  if (results != MidiResultCode::Success)
    state.SkipWithError("a message was not taken");
  service->midiOutClose(handle);
}

void BareMessageOverJack(benchmark::State &state) {
  RtMidiOut port(RtMidi::UNIX_JACK, "tessoro-bench-bare");
  unsigned number = 0;
  while (number < port.getPortCount() && port.getPortName(number).find(PortName) != 0)
    ++number;
  port.openPort(number);
  MeasureRows(
      state, Part::EachOfTheOthers,
      [&port](int /*i*/) { port.sendMessage(Message.data(), Message.size()); },
      [&state] {
        RestLikeTheCable();
        Settle(state, Benches::MessagesInRow);
      });
}

// What nobody can do without who lets another thread do the work.
void WakeOfThread(benchmark::State &state) {
  std::mutex mutex;
  std::condition_variable condition;
  bool isRung = false;
  bool isOver = false;
  std::jthread sleeper([&] {
    std::unique_lock lock(mutex);
    while (!isOver) {
      condition.wait(lock, [&] { return isRung; });
      isRung = false;
    }
  });
  const auto ring = [&](bool last) {
    {
      const std::lock_guard lock(mutex);
      isRung = true;
      isOver = last;
    }
    condition.notify_one();
  };
  for ([[maybe_unused]] auto iteration : state) {
    std::this_thread::sleep_for(RestBetweenRows); // so that it sleeps
    const Clock::time_point begin = Clock::now();
    ring(false);
    const std::chrono::duration<double> time = Clock::now() - begin;
    state.SetIterationTime(time.count());
  }
  ring(true);
}

} // namespace

void Benches::RegisterWire(int repetitions) {
  Synth().ignoreTypes(false, false, false);
  Synth().setCallback(CountArrival);
  Synth().openVirtualPort("in");
  constexpr int once = 1;
  constexpr int initsOnCable = 2; // of a second each
  constexpr int wakes = 12;
  const auto measure = [repetitions](const char *name, int iterations, auto &&...what) {
    benchmark::RegisterBenchmark(name, what...)
        ->UseManualTime()
        ->Iterations(iterations)
        ->Repetitions(repetitions);
  };
  measure(ChangeAfterRest, once, Tessoro::ChangeAfterRest);
  measure(ChangeThroughJack, once, Tessoro::ChangeThroughJack);
  measure(InitAfterRest, initsOnCable, Tessoro::InitAfterRest);
  measure(InitThroughJack, initsOnCable, Tessoro::InitThroughJack);
  measure(MessageThroughJack, once, Tessoro::MessageThroughJack, Part::EachOfTheOthers);
  measure(FirstMessageThroughJack, once, Tessoro::MessageThroughJack, Part::First);
  measure(BareMessageOverJack, once, Tessoro::BareMessageOverJack);
  measure(WakeOfThread, wakes, Tessoro::WakeOfThread);
}

} // namespace Tessoro
