#include "face/qt/MidiOfBuild.hpp"

#include "face/microq/WatchedMicroQ.hpp"
#include "service/MachineMidi.hpp"
#include "service/PlatformMidiService.hpp"
#include "service/builtin/BuiltinSource.hpp"

namespace Tessoro {

namespace {

std::unique_ptr<MidiService> MakeServiceOf(std::shared_ptr<BuiltinMicroQ> microQ) {
  std::vector<std::unique_ptr<DeviceSource>> sources;
  sources.push_back(MakeBuiltinSource(std::move(microQ)));
  return std::make_unique<PlatformMidiService>(std::move(sources));
}

} // namespace

std::unique_ptr<MidiService> MakeMidiService() {
  return MakeMachineMidiService(MakeMicroQWithWindow());
}

std::unique_ptr<MidiService> MakeBuiltinMidiService() {
  return MakeServiceOf(std::make_shared<BuiltinMicroQ>());
}

std::unique_ptr<MidiService> MakeBuiltinMidiServiceWithWindow() {
  return MakeServiceOf(MakeMicroQWithWindow());
}

} // namespace Tessoro
