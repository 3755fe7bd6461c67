#include "face/qt/MidiOfBuild.hpp"

#include "face/microq/WatchedMicroQ.hpp"
#include "service/MachineMidi.hpp"
#include "service/PlatformMidiService.hpp"
#include "service/builtin/BuiltinSource.hpp"

namespace Tessoro {

std::unique_ptr<MidiService> MakeMidiService() {
  return MakeMachineMidiService(MakeMicroQWithWindow());
}

std::unique_ptr<MidiService> MakeBuiltinMidiService() {
  std::vector<std::unique_ptr<DeviceSource>> sources;
  sources.push_back(MakeBuiltinSource(std::make_shared<BuiltinMicroQ>()));
  return std::make_unique<PlatformMidiService>(std::move(sources));
}

} // namespace Tessoro
