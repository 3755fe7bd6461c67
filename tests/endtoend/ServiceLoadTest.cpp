// Knobs dragged, sounds loaded and notes played at once, over real ports. TESSORO_LOAD_MINUTES says
// for how long.
#include "service/MachineMidi.hpp"
#include "tests/endtoend/JackInstruments.hpp"
#include "tests/endtoend/JackServer.hpp"
#include "tests/support/TestRun.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <fstream>
#include <iterator>
#include <map>

#include <malloc.h>

namespace Tessoro::Tests {
namespace {

constexpr unsigned CycleFrames = 256;
constexpr auto Cycle = std::chrono::microseconds(CycleFrames * 1000000ULL / 48000);
constexpr auto LatencyBeyondCycle = 2ms;
// In milliseconds: what a machine wakes threads with that has nothing else to do.
constexpr float Punctual = 0.5F;

// A move of a hand in each frame of a screen, and a sound every so often: three quarters of what a
// MIDI cable carries.
constexpr auto MoveInterval = 16ms;
constexpr int MovesPerDrag = 40;
constexpr int MovesPerLoad = 150;

constexpr std::size_t SteadyHeapBytes = 256UL * 1024;

Clock::duration Duration() {
  const char *const minutes = std::getenv("TESSORO_LOAD_MINUTES");
  if (minutes == nullptr || *minutes == '\0')
    return 8s;
  return std::chrono::duration_cast<Clock::duration>(
      std::chrono::duration<double, std::ratio<60>>(std::stod(minutes)));
}

std::string SoundFile(const std::string &name) {
  std::ifstream file(std::string(TESSORO_FILES_DIRECTORY) + "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Plays numbered notes, now and then, as long as it lives.
class Player {
public:
  explicit Player(Keyboard &played) : keyboard(played), thread([this] { Play(); }) {}
  ~Player() { Stop(); }
  Player(const Player &) = delete;
  Player &operator=(const Player &) = delete;

  void Stop() {
    isPlaying = false;
    if (thread.joinable())
      thread.join();
  }

  static Bytes Note(int number) {
    return {0x90, static_cast<std::uint8_t>(number % 128),
            static_cast<std::uint8_t>(number / 128 % 128)};
  }

  int Count() const { return count; }

private:
  void Play() {
    while (isPlaying) {
      keyboard.Play(Note(count++));
      std::this_thread::sleep_for(20ms + std::chrono::milliseconds(count * 7 % 13));
    }
  }

  Keyboard &keyboard;
  std::atomic<bool> isPlaying{true};
  std::atomic<int> count{0};
  std::thread thread;
};

// The smallest time that so many in a hundred don't exceed.
float Percentile(std::vector<float> &times, double percent) {
  const auto place =
      static_cast<std::ptrdiff_t>(std::ceil(static_cast<double>(times.size()) * percent / 100) - 1);
  std::nth_element(times.begin(), times.begin() + place, times.end());
  return times[static_cast<std::size_t>(place)];
}

// How late the machine wakes a thread whose time has come. On one that has other things to do,
// nothing of ours can be punctual.
class Lateness {
public:
  Lateness() : thread([this] { Watch(); }) {}
  ~Lateness() { Stop(); }
  Lateness(const Lateness &) = delete;
  Lateness &operator=(const Lateness &) = delete;

  // Ends the watch; in milliseconds, of 99 in a hundred times.
  float Stop() {
    isWatching = false;
    if (thread.joinable())
      thread.join();
    return Percentile(times, 99);
  }

private:
  void Watch() {
    constexpr auto nap = 2ms;
    times.reserve(1 << 20);
    while (isWatching) {
      const auto begin = Clock::now();
      std::this_thread::sleep_for(nap);
      times.push_back(std::chrono::duration<float, std::milli>(Clock::now() - begin - nap).count());
    }
  }

  std::vector<float> times;
  std::atomic<bool> isWatching{true};
  std::thread thread;
};

// The editor on the machine's ports, and beside it one without any, to which the same is done: what
// that one sends is what must arrive.
class TwoEditors {
public:
  explicit TwoEditors(MidiService &service)
      : real({.midi = service,
              .screen = desk.screen,
              .clock = desk.clock,
              .files = desk.files,
              .random = desk.random,
              .programPath = "/editor"}) {
    desk.files.contents["/editor/Tessoro.ini"] =
        "\"Tessoro v1.3.1\"\r\n\"\",\"\"\r\n3,3\r\n0,0\r\n0,0\r\n\"?\"\r\n\"No\"\r\n";
    for (const char *const sound : {"complete.tss", "before.tss"})
      desk.files.contents[std::string("/") + sound] =
          twin.files.contents[std::string("/") + sound] = SoundFile(sound);
    real.Start();
    twin.StartWithOpenPorts();
  }

  // The next thing that the hand does.
  void Act(int move) {
    for (Application *app : {&real, &twin.app}) {
      if (move % MovesPerLoad == 0)
        Load(*app, move / MovesPerLoad % 2 == 0 ? "complete.tss" : "before.tss");
      Drag(*app, move);
    }
    boxes += desk.screen.boxes.size();
    desk.Forget();
    std::move(twin.midi.messages.begin(), twin.midi.messages.end(), std::back_inserter(sent));
    twin.Forget();
  }

  void Stop() {
    real.F_Tessoro.UserClose();
    twin.app.F_Tessoro.UserClose();
  }

  // What must arrive and hasn't been checked off yet.
  std::deque<std::string> sent;
  std::size_t boxes = 0;

private:
  static void Load(Application &app, const std::string &name) {
    app.F_Tessoro.Menu_OpenSound.UserClick();
    app.F_FileIO.TextFilename.UserEdit(name);
    app.F_FileIO.C_File.UserClick();
  }

  // Up and down, with another knob at each drag; some of them send controllers.
  static void Drag(Application &app, int move) {
    F_Tessoro &form = app.F_Tessoro;
    Image *const knobs[] = {&form.knobF1_cutoff, &form.knobEnvAmp1, &form.knobF2_pan,
                            &form.knobOSC1pw, &form.knobEnvFilt3};
    Image &knob = *knobs[static_cast<std::size_t>(move / MovesPerDrag) % std::size(knobs)];
    const int place = move % MovesPerDrag;
    if (place == 0)
      knob.UserMouseDown({});
    const int way = place < MovesPerDrag / 2 ? place : MovesPerDrag - place;
    knob.UserMouseMove({.button = 1, .x = 0, .y = static_cast<float>(-way * 15 - place)});
    if (place == MovesPerDrag - 1)
      knob.UserMouseUp({});
  }

  TestRun desk;
  TestRun twin;
  Application real;
};

// Follows what arrives, and lets go of it.
class Listener {
public:
  Listener(Synth &synthesizer, Synth &atKeyboard) : synth(synthesizer), ear(atKeyboard) {
    latencies.reserve(1 << 20);
  }

  void Check(std::deque<std::string> &sent) {
    // The ear may have been plugged in too late for the first notes.
    for (const Arrival &each : ear.TakeArrivals())
      played[each.bytes] = each.time;
    for (const Arrival &each : synth.TakeArrivals()) {
      if (each.bytes.front() == 0x90) {
        EXPECT_EQ(each.bytes, Player::Note(notes)) << "note " << notes;
        ++notes;
        arrived[each.bytes] = each.time;
      } else {
        ASSERT_FALSE(sent.empty()) << NotedMessage(each.bytes) << " was never sent";
        ASSERT_EQ(NotedMessage(each.bytes), sent.front()) << "message " << messages;
        sent.pop_front();
        ++messages;
      }
    }
    for (auto each = arrived.begin(); each != arrived.end();) {
      const auto start = played.find(each->first);
      if (start == played.end()) {
        ++each;
        continue;
      }
      latencies.push_back(
          std::chrono::duration<float, std::milli>(each->second - start->second).count());
      played.erase(start);
      each = arrived.erase(each);
    }
  }

  float LatencyOf(double percent) { return Percentile(latencies, percent); }

  int notes = 0;
  std::size_t messages = 0;

private:
  Synth &synth;
  Synth &ear;
  // By the note, which no other is like for minutes.
  std::map<Bytes, Clock::time_point> played;
  std::map<Bytes, Clock::time_point> arrived;
  std::vector<float> latencies;
};

TEST(ServiceLoadTest, NothingIsLostOrLateWhileAllIsBusy) {
  JackServer server(CycleFrames);
  Synth synth("synth");
  Keyboard keyboard("keyboard");
  const auto service = MakeMachineMidiService(std::make_shared<BuiltinMicroQ>());
  TwoEditors editors(*service);
  Synth ear("ear", "keyboard:out");
  Listener listener(synth, ear);
  Player player(keyboard);
  Lateness lateness;

  const Clock::duration duration = Duration();
  const auto begin = Clock::now();
  std::size_t steadyHeap = 0;
  for (int move = 0; Clock::now() - begin < duration; ++move) {
    editors.Act(move);
    ASSERT_NO_FATAL_FAILURE(listener.Check(editors.sent));
    if (steadyHeap == 0 && Clock::now() - begin > duration / 4)
      steadyHeap = mallinfo2().uordblks;
    std::this_thread::sleep_until(begin + move * MoveInterval);
  }
  const std::size_t heap = mallinfo2().uordblks;
  const float machineIsLate = lateness.Stop();
  player.Stop();
  EXPECT_TRUE(Eventually([&] {
    listener.Check(editors.sent);
    return testing::Test::HasFatalFailure() ||
           (editors.sent.empty() && listener.notes == player.Count());
  })) << editors.sent.size()
      << " messages and " << player.Count() - listener.notes << " notes are lost";
  editors.Stop();

  const auto highest = std::chrono::duration<float, std::milli>(Cycle + LatencyBeyondCycle).count();
  const float latency = listener.LatencyOf(99);
  std::cout << listener.messages << " messages and " << listener.notes
            << " notes, all whole and in order; from IN to OUT " << listener.LatencyOf(50)
            << " ms, 99th percentile " << latency << " ms (a cycle is "
            << std::chrono::duration<float, std::milli>(Cycle).count() << " ms), longest "
            << listener.LatencyOf(100) << " ms, where the machine wakes threads " << machineIsLate
            << " ms late; heap " << steadyHeap / 1024 << " KiB, at the end " << heap / 1024
            << " KiB\n";
  if (machineIsLate < Punctual) {
    EXPECT_LT(latency, highest);
  } else {
    std::cout << "The machine is too busy to tell how late a note is.\n";
  }
  EXPECT_EQ(editors.boxes, 0U);
  EXPECT_LT(heap, steadyHeap + SteadyHeapBytes);
}

} // namespace
} // namespace Tessoro::Tests
