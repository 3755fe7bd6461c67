#include "bench/Benches.hpp"
#include "bench/QuietPlatform.hpp"
#include "service/MachineMidi.hpp"

#include <RtMidi.h>
#include <benchmark/benchmark.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <thread>

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

// The messages of an init come in a row, and then nothing for a while: in a longer row each sender
// would only wait for the server's next cycle.
template <typename Send> void MeasureRows(benchmark::State &state, Send &&send) {
  for ([[maybe_unused]] auto iteration : state) {
    const Clock::time_point begin = Clock::now();
    for (int i = 0; i < Benches::MessagesInRow; ++i)
      send(i);
    const std::chrono::duration<double> time = Clock::now() - begin;
    state.SetIterationTime(time.count() / Benches::MessagesInRow);
    if (!HaveArrived(Benches::MessagesInRow))
      state.SkipWithError("messages were lost");
    std::this_thread::sleep_for(RestBetweenRows);
    arrived = 0;
  }
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

void ChangeThroughJack(benchmark::State &state) {
  const auto service =
      MakeMachineMidiService(std::make_shared<BuiltinMicroQ>(), UnlimitedBytesPerSecond);
  QuietRun run(*service);
  run.app.Module1.MidiOutPort = DeviceNumberOfSynth(*service);
  run.app.Module1.OpenCloseMidiOut("open");
  TextBox &box = run.app.F_Tessoro.TextF1_cutoff;
  MeasureRows(state, [&box](int i) { box.SetText(i % 2 == 0 ? "64" : "63"); });
  run.app.Module1.OpenCloseMidiOut("close");
}

// Of a fresh run each time, as the first init sends most.
void InitThroughJack(benchmark::State &state) {
  const auto service =
      MakeMachineMidiService(std::make_shared<BuiltinMicroQ>(), UnlimitedBytesPerSecond);
  for ([[maybe_unused]] auto iteration : state) {
    QuietRun run(*service);
    run.app.Module1.MidiOutPort = DeviceNumberOfSynth(*service);
    run.app.Module1.OpenCloseMidiOut("open");
    const Clock::time_point begin = Clock::now();
    run.app.F_Tessoro.InitPanelParams();
    const std::chrono::duration<double> time = Clock::now() - begin;
    state.SetIterationTime(time.count());
    run.app.Module1.OpenCloseMidiOut("close");    // hands out what still waits
    if (!HaveArrived(Benches::MessagesInRow / 2)) // the others are shorter
      state.SkipWithError("messages were lost");
    std::this_thread::sleep_for(RestBetweenRows);
    arrived = 0;
  }
}

void MessageThroughJack(benchmark::State &state) {
  const auto service =
      MakeMachineMidiService(std::make_shared<BuiltinMicroQ>(), UnlimitedBytesPerSecond);
  MidiHandle handle = 0;
  service->midiOutOpen(handle, DeviceNumberOfSynth(*service), 0, 0, 0);
  constexpr std::uint32_t size = 24 + Message.size();
  MidiResult results = MidiResultCode::Success;
  MeasureRows(state, [&](int /*i*/) {
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
  MeasureRows(state, [&port](int /*i*/) { port.sendMessage(Message.data(), Message.size()); });
}

} // namespace

void Benches::RegisterWire() {
  Synth().ignoreTypes(false, false, false);
  Synth().setCallback(CountArrival);
  Synth().openVirtualPort("in");
  constexpr int rows = 12;
  benchmark::RegisterBenchmark(ChangeThroughJack, Tessoro::ChangeThroughJack)
      ->UseManualTime()
      ->Iterations(rows);
  benchmark::RegisterBenchmark(InitThroughJack, Tessoro::InitThroughJack)
      ->UseManualTime()
      ->Iterations(rows);
  benchmark::RegisterBenchmark(MessageThroughJack, Tessoro::MessageThroughJack)
      ->UseManualTime()
      ->Iterations(rows);
  benchmark::RegisterBenchmark(BareMessageOverJack, Tessoro::BareMessageOverJack)
      ->UseManualTime()
      ->Iterations(rows);
}

} // namespace Tessoro
