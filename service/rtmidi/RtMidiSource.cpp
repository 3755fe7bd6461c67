#include "service/rtmidi/RtMidiSource.hpp"

#include "service/PortNames.hpp"
#include "service/rtmidi/RtMidiInEnd.hpp"
#include "service/rtmidi/RtMidiOutEnd.hpp"

#include <charconv>
#include <string>
#include <utility>

namespace Tessoro {
namespace {

// What a driver without numbers of its own is registered as.
constexpr std::uint16_t NoAssignedNumber = 0xFFFF;

constexpr std::uint16_t OutputPort = 1;
constexpr std::uint16_t AllChannels = 0xFFFF;

// The first two numbers of the library's version, one byte each, in decimal digits: the version is
// shown in hexadecimal and must hold no letter.
std::uint32_t LibraryVersion() {
  const std::string text = RtMidi::getVersion();
  const char *const end = text.data() + text.size();
  unsigned major = 0;
  unsigned minor = 0;
  const auto afterMajor = std::from_chars(text.data(), end, major);
  if (afterMajor.ptr != end) {
    std::from_chars(afterMajor.ptr + 1, end, minor);
  }
  const auto inDigits = [](unsigned number) { return number / 10 % 10 * 16 + number % 10; };
  return inDigits(major) << 8 | inDigits(minor);
}

class RtMidiSource final : public DeviceSource {
public:
  RtMidiSource(std::shared_ptr<PortDirectory> ports, double outPace)
      : directory(std::move(ports)), bytesPerSecond(outPace) {}

  std::vector<OutDevice> OutDevices() override {
    return Devices<OutDevice>(PortDirection::Out, [](MIDIOUTCAPS &capabilities) {
      capabilities.wTechnology = OutputPort;
      capabilities.wChannelMask = AllChannels;
    });
  }

  std::vector<InDevice> InDevices() override {
    return Devices<InDevice>(PortDirection::In, [](MIDIINCAPS & /*capabilities*/) {});
  }

  MidiResult OpenOut(const DeviceKey &key, std::unique_ptr<OutputEnd> &end) override {
    auto port = std::make_unique<RtMidiOutEnd>(directory, key);
    const MidiResult result = port->Connect();
    if (result == MidiResultCode::Success) {
      end = std::make_unique<PacedWire>(std::move(port), bytesPerSecond);
    }
    return result;
  }

  MidiResult OpenIn(const DeviceKey &key, InputListener listener,
                    std::unique_ptr<InputEnd> &end) override {
    auto port = std::make_unique<RtMidiInEnd>(directory, key, std::move(listener));
    const MidiResult result = port->Open();
    if (result == MidiResultCode::Success) {
      end = std::move(port);
    }
    return result;
  }

private:
  std::vector<std::string> NamesOfOthers(PortDirection direction) {
    std::vector<std::string> names;
    for (std::string &name : directory->Names(direction)) {
      if (!name.empty() && !IsOwnPort(name)) {
        names.push_back(std::move(name));
      }
    }
    return names;
  }

  template <typename Device, typename Complete>
  std::vector<Device> Devices(PortDirection direction, const Complete &complete) {
    const std::vector<std::string> names = NamesOfOthers(direction);
    const std::vector<std::string> shown = ShownNames(names);
    std::vector<Device> devices;
    for (std::size_t i = 0; i < names.size(); ++i) {
      Device device{KeyOf(names, i), {}};
      device.capabilities.wMid = NoAssignedNumber;
      device.capabilities.wPid = NoAssignedNumber;
      device.capabilities.vDriverVersion = LibraryVersion();
      PutDeviceName(device.capabilities.szPname, shown[i]);
      complete(device.capabilities);
      devices.push_back(std::move(device));
    }
    return devices;
  }

  std::shared_ptr<PortDirectory> directory;
  double bytesPerSecond;
};

} // namespace

std::unique_ptr<DeviceSource> MakeRtMidiSource(std::shared_ptr<PortDirectory> directory,
                                               double bytesPerSecond) {
  return std::make_unique<RtMidiSource>(std::move(directory), bytesPerSecond);
}

} // namespace Tessoro
