#include "service/builtin/BuiltinSource.hpp"

#include <utility>

namespace Tessoro {
namespace {

constexpr const char *OutName = "microQ (built-in)";
constexpr const char *InName = "Silence (built-in)";

// The numbers by which a microQ makes itself known in System Exclusive messages.
constexpr std::uint16_t Waldorf = 0x3E;
constexpr std::uint16_t MicroQ = 0x10;

// Shown in hexadecimal, as 1.00.
constexpr std::uint32_t Version = 0x0100;

constexpr std::uint16_t InternalSynth = 2;
constexpr std::uint16_t Voices = 25;
constexpr std::uint16_t AllChannels = 0xFFFF;

class MicroQEnd final : public OutputEnd {
public:
  explicit MicroQEnd(std::shared_ptr<BuiltinMicroQ> opened) : microQ(std::move(opened)) {
    microQ->Open();
  }
  ~MicroQEnd() override { microQ->Close(); }
  MicroQEnd(const MicroQEnd &) = delete;
  MicroQEnd &operator=(const MicroQEnd &) = delete;

  MidiResult Send(MidiBytes message) override {
    microQ->Receive(message);
    return MidiResultCode::Success;
  }

  void SendThru(MidiBytes message) override { microQ->Receive(message); }

private:
  std::shared_ptr<BuiltinMicroQ> microQ;
};

class BuiltinSource final : public DeviceSource {
public:
  explicit BuiltinSource(std::shared_ptr<BuiltinMicroQ> offered) : microQ(std::move(offered)) {}

  std::vector<OutDevice> OutDevices() override {
    OutDevice device{{OutName, {}}, {}};
    device.capabilities.wMid = Waldorf;
    device.capabilities.wPid = MicroQ;
    device.capabilities.vDriverVersion = Version;
    device.capabilities.wTechnology = InternalSynth;
    device.capabilities.wVoices = Voices;
    device.capabilities.wNotes = Voices;
    device.capabilities.wChannelMask = AllChannels;
    PutDeviceName(device.capabilities.szPname, OutName);
    return {device};
  }

  std::vector<InDevice> InDevices() override {
    InDevice device{{InName, {}}, {}};
    device.capabilities.wMid = Waldorf;
    device.capabilities.vDriverVersion = Version;
    PutDeviceName(device.capabilities.szPname, InName);
    return {device};
  }

  MidiResult OpenOut(const DeviceKey & /*key*/, std::unique_ptr<OutputEnd> &end) override {
    end = std::make_unique<MicroQEnd>(microQ);
    return MidiResultCode::Success;
  }

  // Nothing ever arrives here, so nothing is there to listen.
  MidiResult OpenIn(const DeviceKey & /*key*/, InputListener /*listener*/,
                    std::unique_ptr<InputEnd> &end) override {
    end = std::make_unique<InputEnd>();
    return MidiResultCode::Success;
  }

private:
  std::shared_ptr<BuiltinMicroQ> microQ;
};

} // namespace

std::unique_ptr<DeviceSource> MakeBuiltinSource(std::shared_ptr<BuiltinMicroQ> microQ) {
  return std::make_unique<BuiltinSource>(std::move(microQ));
}

} // namespace Tessoro
