// The editor as it starts for a user who has chosen ports, up to its first frame. The argument is
// the program's directory. The built-in microQ stands for an instrument, and so has no window.
#include "bench/FirstFrame.hpp"
#include "face/qt/Launch.hpp"
#include "face/qt/Program.hpp"
#include "service/MachineMidi.hpp"

int main(int argc, char *argv[]) {
  const Tessoro::Launch launch(argc, argv);
  const Tessoro::FirstFrame firstFrame;
  Tessoro::DressApplication();
  const auto midi = Tessoro::MakeMachineMidiService(std::make_shared<Tessoro::BuiltinMicroQ>());
  return Tessoro::Program(*midi, argc > 1 ? argv[1] : ".").Run();
}
