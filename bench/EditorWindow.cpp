// The editor as it starts for a user who has chosen ports, up to its first frame. The argument is
// the program's directory. The built-in microQ stands for an instrument, and so has no window.
#include "bench/FirstFrame.hpp"
#include "face/qt/BusConnecting.hpp"
#include "face/qt/FontReading.hpp"
#include "face/qt/Program.hpp"
#include "service/MachineMidi.hpp"

#include <QApplication>

int main(int argc, char *argv[]) {
  Tessoro::ChooseEventLoop();
  Tessoro::FontReading fonts;
  const QApplication application(argc, argv);
  fonts.End();
  const Tessoro::BusConnecting bus;
  const Tessoro::FirstFrame firstFrame;
  Tessoro::DressApplication();
  const auto midi = Tessoro::MakeMachineMidiService(std::make_shared<Tessoro::BuiltinMicroQ>());
  return Tessoro::Program(*midi, argc > 1 ? argv[1] : ".").Run();
}
