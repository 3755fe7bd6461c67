#include "service/MachineMidi.hpp"

#include "service/PlatformMidiService.hpp"
#include "service/builtin/BuiltinSource.hpp"
#include "service/rtmidi/RtMidiSource.hpp"

#include <utility>
#include <vector>

namespace Tessoro {

std::unique_ptr<MidiService> MakeMachineMidiService(std::shared_ptr<BuiltinMicroQ> microQ,
                                                    double bytesPerSecond) {
  std::vector<std::unique_ptr<DeviceSource>> sources;
  sources.push_back(MakeRtMidiSource(MakeAlsaDirectory(), bytesPerSecond));
  sources.push_back(MakeRtMidiSource(MakeJackDirectory(), bytesPerSecond));
  sources.push_back(MakeBuiltinSource(std::move(microQ)));
  return std::make_unique<PlatformMidiService>(std::move(sources));
}

} // namespace Tessoro
