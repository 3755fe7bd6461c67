#include "service/rtmidi/VirtualInPort.hpp"

#include "service/rtmidi/LibraryErrors.hpp"
#include "service/rtmidi/PortDirectory.hpp"

#include <exception>
#include <utility>

namespace Tessoro {
namespace {

class RtMidiVirtualIn final : public VirtualInPort {
public:
  RtMidiVirtualIn(std::shared_ptr<PortDirectory> ports, InputListener whoHears)
      : directory(std::move(ports)), hold(directory->Hold()), listener(std::move(whoHears)) {}

  ~RtMidiVirtualIn() override {
    if (port != nullptr) {
      directory->ClosePort([this] { port->closePort(); });
      directory->ClosePort([this] { port.reset(); });
    }
  }
  RtMidiVirtualIn(const RtMidiVirtualIn &) = delete;
  RtMidiVirtualIn &operator=(const RtMidiVirtualIn &) = delete;

  bool Open(const std::string &clientName, const std::string &portName) {
    try {
      port = std::make_unique<RtMidiIn>(directory->Api(), clientName);
      errors.ListenTo(*port);
      port->ignoreTypes(false, false, false);
      port->setCallback(&RtMidiVirtualIn::Arrived, this);
      directory->OpenPort([&] { port->openVirtualPort(portName); });
    } catch (const std::exception &) {
      return false;
    }
    return !errors.TakeAny();
  }

  bool IsThere() override { return directory->Answers(); }

private:
  static void Arrived(double /*time*/, std::vector<unsigned char> *bytes, void *self) {
    static_cast<RtMidiVirtualIn *>(self)->listener(*bytes);
  }

  std::shared_ptr<PortDirectory> directory;
  std::shared_ptr<void> hold; // goes behind the port
  InputListener listener;
  LibraryErrors errors;
  std::unique_ptr<RtMidiIn> port;
};

} // namespace

std::unique_ptr<VirtualInPort> OpenVirtualInPort(MidiSystem system, const std::string &clientName,
                                                 const std::string &portName,
                                                 InputListener listener) {
  auto directory = system == MidiSystem::Alsa ? MakeAlsaDirectory() : MakeJackDirectory();
  if (!directory->Answers()) {
    return nullptr;
  }
  auto port = std::make_unique<RtMidiVirtualIn>(std::move(directory), std::move(listener));
  return port->Open(clientName, portName) ? std::move(port) : nullptr;
}

} // namespace Tessoro
