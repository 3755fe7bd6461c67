#include "service/PortNames.hpp"
#include "service/rtmidi/LibraryErrors.hpp"
#include "service/rtmidi/PortDirectory.hpp"

#include <fcntl.h>
#include <unistd.h>

#include <mutex>

namespace Tessoro {
namespace {

// A port of the sequencer takes as much as the service's interface can say.
constexpr std::size_t LongestAlsaMessage = 0xFFFF;

// The library would say on the terminal that there is no sequencer, before anybody can listen to
// it. Opening the device also makes the kernel load its module.
bool HasSequencer() {
  const int device = open("/dev/snd/seq", O_RDWR | O_NONBLOCK | O_CLOEXEC);
  if (device < 0) {
    return false;
  }
  close(device);
  return true;
}

class AlsaDirectory final : public PortDirectory {
public:
  bool Answers() override { return HasSequencer(); }

  std::vector<std::string> Names(PortDirection direction) override {
    const std::lock_guard lock(mutex);
    try {
      if (!HasClients()) {
        return {};
      }
      return direction == PortDirection::Out ? NamesOf(*outClient) : NamesOf(*inClient);
    } catch (const std::exception &) {
      return {};
    }
  }

  std::shared_ptr<void> Hold() override { return nullptr; }

  void OpenPort(const std::function<void()> &open) override { open(); }

  void ClosePort(const std::function<void()> &close) override { close(); }

  void AwaitConnection() override {} // the kernel makes it before the call returns

  RtMidi::Api Api() const override { return RtMidi::LINUX_ALSA; }

  std::size_t LongestMessage() const override { return LongestAlsaMessage; }

private:
  // Kept once they are there, because each new client is announced to every program.
  bool HasClients() {
    if (outClient == nullptr || inClient == nullptr) {
      if (!HasSequencer()) {
        return false;
      }
      outClient = std::make_unique<RtMidiOut>(RtMidi::LINUX_ALSA, OwnClientName);
      inClient = std::make_unique<RtMidiIn>(RtMidi::LINUX_ALSA, OwnClientName);
      errors.ListenTo(*outClient);
      errors.ListenTo(*inClient);
    }
    return true;
  }

  static std::vector<std::string> NamesOf(RtMidi &client) {
    std::vector<std::string> names;
    const unsigned count = client.getPortCount();
    for (unsigned i = 0; i < count; ++i) {
      names.push_back(client.getPortName(i));
    }
    return names;
  }

  std::mutex mutex;
  LibraryErrors errors; // a port that goes while it is listed has no name, and that is all
  std::unique_ptr<RtMidiOut> outClient;
  std::unique_ptr<RtMidiIn> inClient;
};

} // namespace

std::shared_ptr<PortDirectory> MakeAlsaDirectory() { return std::make_shared<AlsaDirectory>(); }

} // namespace Tessoro
