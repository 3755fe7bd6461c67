// The editor as it starts for a user who has chosen ports, up to its first frame. The argument is
// the program's directory.
#include "bench/FirstFrame.hpp"
#include "face/qt/MidiOfBuild.hpp"
#include "face/qt/Program.hpp"

#include <QApplication>

int main(int argc, char *argv[]) {
  const QApplication application(argc, argv);
  const Tessoro::FirstFrame firstFrame;
  Tessoro::DressApplication();
  const auto midi = Tessoro::MakeMidiService();
  return Tessoro::Program(*midi, argc > 1 ? argv[1] : ".").Run();
}
