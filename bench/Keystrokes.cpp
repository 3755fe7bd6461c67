// Types into a box of the editor and into a bare field, and tells what a keystroke takes. The
// argument is the program's directory. One line: the 99th percentiles of both, in microseconds.
#include "bench/NullMidi.hpp"
#include "face/qt/FormWindow.hpp"
#include "face/qt/Launch.hpp"
#include "face/qt/Program.hpp"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::duration<double, std::micro>;

constexpr int Keystrokes = 4000;
constexpr int FirstOnesLeftOut = 200;

struct Samples {
  std::vector<Microseconds> times;

  double Percentile99() {
    std::sort(times.begin(), times.end());
    return times[times.size() * 99 / 100].count();
  }
};

Microseconds Strike(QWidget &field, int key, const QString &text) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  const Clock::time_point begin = Clock::now();
  QCoreApplication::sendEvent(&field, &press);
  const Microseconds time = Clock::now() - begin;
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
  QCoreApplication::sendEvent(&field, &release);
  return time;
}

// A digit comes and goes by turns, so that each keystroke is a change.
Microseconds StrikeByTurns(QWidget &field, int i) {
  const Microseconds time = i % 2 == 0 ? Strike(field, Qt::Key_4, QStringLiteral("4"))
                                       : Strike(field, Qt::Key_Backspace, QStringLiteral("\b"));
  QCoreApplication::processEvents(); // paints it, as between two keystrokes of a user
  return time;
}

} // namespace

int main(int argc, char *argv[]) {
  using namespace Tessoro;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  ChooseEventLoop();
  const QApplication application(argc, argv);
  DressApplication();
  NullMidi midi;
  Program program(midi, argc > 1 ? argv[1] : ".");
  program.Editor().Start();
  TextBox &box = program.Editor().F_Tessoro.TextF1_cutoff;
  box.SetText("6");
  FormWindow *window = program.Windows().WindowOf(program.Editor().F_Tessoro);
  QWidget *field = window == nullptr ? nullptr : window->WidgetOf(box);
  if (field == nullptr)
    return EXIT_FAILURE;
  QLineEdit bare(QStringLiteral("6"));
  bare.show();

  Samples editor;
  Samples library;
  for (int i = 0; i < Keystrokes; ++i) {
    const std::uint32_t before = midi.seen;
    const Microseconds inEditor = StrikeByTurns(*field, i);
    if (midi.seen == before)
      return EXIT_FAILURE;
    const Microseconds inField = StrikeByTurns(bare, i);
    if (i < FirstOnesLeftOut)
      continue;
    editor.times.push_back(inEditor);
    library.times.push_back(inField);
  }
  std::printf("%g %g\n", editor.Percentile99(), library.Percentile99());
  std::fflush(stdout);
  std::_Exit(EXIT_SUCCESS);
}
