// Inits sounds into a built-in microQ whose window is up, and tells what that takes the editor. One
// line, medians: an init at a null service, at a microQ without a window, at one with its window,
// in microseconds; and the look that shows an init in that window, in milliseconds.
#include "bench/NullMidi.hpp"
#include "bench/QuietPlatform.hpp"
#include "face/microq/MicroQWindow.hpp"
#include "face/qt/Launch.hpp"
#include "face/qt/MidiOfBuild.hpp"
#include "face/qt/Program.hpp"

#include <QApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

using namespace Tessoro;
using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::duration<double, std::micro>;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int Inits = 300;
constexpr int FirstOnesLeftOut = 20;

double MedianOf(std::vector<double> numbers) {
  const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
  std::nth_element(numbers.begin(), middle, numbers.end());
  return *middle;
}

// Of a run of its own, as the first init sends most.
double TimeOfInit(MidiService &service) {
  QuietRun run(service);
  run.app.Module1.MidiOutPort = 0;
  run.app.Module1.OpenCloseMidiOut("open");
  const Clock::time_point begin = Clock::now();
  run.app.F_Tessoro.InitPanelParams();
  const Microseconds time = Clock::now() - begin;
  run.app.Module1.OpenCloseMidiOut("close");
  return time.count();
}

MicroQWindow *FindWindow() {
  for (QWidget *widget : QApplication::topLevelWidgets())
    if (auto *window = qobject_cast<MicroQWindow *>(widget))
      return window;
  return nullptr;
}

// Up to the picture.
double TimeOfLook(MicroQWindow &window) {
  const Clock::time_point begin = Clock::now();
  window.Refresh();
  QCoreApplication::processEvents();
  const Milliseconds time = Clock::now() - begin;
  return time.count();
}

} // namespace

int main(int argc, char *argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  ChooseEventLoop();
  const QApplication application(argc, argv);
  DressApplication();
  NullMidi nullService;
  const auto bare = MakeBuiltinMidiService();
  const auto watched = MakeBuiltinMidiServiceWithWindow();
  TimeOfInit(*watched);
  QCoreApplication::processEvents(); // its window comes up
  MicroQWindow *window = FindWindow();
  if (window == nullptr || !window->isVisible())
    return EXIT_FAILURE;

  std::vector<double> atNull;
  std::vector<double> atBare;
  std::vector<double> atWatched;
  std::vector<double> looks;
  for (int i = 0; i < Inits; ++i) {
    const double nullTime = TimeOfInit(nullService);
    const double bareTime = TimeOfInit(*bare);
    const double watchedTime = TimeOfInit(*watched);
    const double look = TimeOfLook(*window);
    if (i < FirstOnesLeftOut)
      continue;
    atNull.push_back(nullTime);
    atBare.push_back(bareTime);
    atWatched.push_back(watchedTime);
    looks.push_back(look);
  }
  if (window->Messages().rowCount() < static_cast<int>(MessageModel::MostLines))
    return EXIT_FAILURE; // it was not shown what was sent
  std::printf("%g %g %g %g\n", MedianOf(atNull), MedianOf(atBare), MedianOf(atWatched),
              MedianOf(looks));
  return EXIT_SUCCESS;
}
