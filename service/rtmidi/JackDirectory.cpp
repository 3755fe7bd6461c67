#include "service/rtmidi/JackLibrary.hpp"
#include "service/rtmidi/JackPresence.hpp"
#include "service/rtmidi/PortDirectory.hpp"

#include <jack/jack.h>

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <mutex>
#include <thread>

namespace Tessoro {
namespace {

using namespace std::chrono_literals;

constexpr auto TimeForNews = 60ms;

constexpr jack_nframes_t CyclesToConnect = 2;
constexpr auto LongestConnecting = 500ms;

constexpr const char *WatchClientName = "Tessoro watch";

// The library's ring for a JACK port has 16 KiB, with some bytes for itself.
constexpr std::size_t LongestJackMessage = 16000;

void Ignore(const char * /*message*/) {}

// Asks JACK itself: the library's own list cannot be read in one go, and it says on the terminal
// that no server runs before anybody can listen to it. The client has no ports and is not active,
// so nobody sees it in a patch bay.
class JackDirectory final : public PortDirectory {
public:
  JackDirectory() = default;
  ~JackDirectory() override { Leave(); }
  JackDirectory(const JackDirectory &) = delete;
  JackDirectory &operator=(const JackDirectory &) = delete;

  bool Answers() override {
    const std::lock_guard lock(mutex);
    return HasClient();
  }

  std::vector<std::string> Names(PortDirection direction) override {
    const std::lock_guard lock(mutex);
    return HasClient() ? NamesFromServer(direction) : std::vector<std::string>();
  }

  std::shared_ptr<void> Hold() override {
    ++holders;
    return {nullptr, [this](void * /*nothing*/) { --holders; }};
  }

  void OpenPort(const std::function<void()> &open) override {
    const std::lock_guard lock(changeMutex);
    open();
  }

  // JACK tells every client of a change a few cycles later, and its library does not bear to forget
  // a port while it is being told. Changes of our own, or a port that went just now, are what there
  // is to be told of.
  void ClosePort(const std::function<void()> &close) override {
    const std::lock_guard lock(changeMutex);
    std::this_thread::sleep_for(TimeForNews);
    close();
  }

  // The server takes a connection over between two cycles, and until then what is sent is lost.
  void AwaitConnection() override {
    const std::lock_guard lock(mutex);
    if (client == nullptr)
      return;
    const jack_nframes_t begin = jack_last_frame_time(client);
    const jack_nframes_t awaited = CyclesToConnect * jack_get_buffer_size(client);
    const auto end = std::chrono::steady_clock::now() + LongestConnecting;
    while (jack_last_frame_time(client) - begin < awaited && std::chrono::steady_clock::now() < end)
      std::this_thread::sleep_for(1ms);
  }

  RtMidi::Api Api() const override { return RtMidi::UNIX_JACK; }

  std::size_t LongestMessage() const override { return LongestJackMessage; }

private:
  bool HasClient() {
    if (isServerGone) {
      Leave();
    }
    // When its server has died, JACK's library destroys all clients of the process at the next
    // opening, also those that somebody is about to close.
    if (client == nullptr && holders == 0) {
      Join();
    }
    return client != nullptr;
  }

  void Join() {
    const auto environment = [](const char *variable) { return std::getenv(variable); };
    if (!MayNeedJackLibrary(environment, JackSocketFolder, PipeWireSystemFolder) ||
        !HasJackLibrary()) {
      return;
    }
    jack_set_error_function(Ignore);
    jack_set_info_function(Ignore);
    if (!MayHaveJackServer(JackLibraryVersion(), UsualJackServer(environment), JackSocketFolder)) {
      return;
    }
    client = jack_client_open(WatchClientName, JackNoStartServer, nullptr);
    if (client != nullptr) {
      jack_on_shutdown(client, &JackDirectory::ServerWent, this);
    }
  }

  void Leave() {
    if (client != nullptr) {
      jack_client_close(client);
      client = nullptr;
    }
    isServerGone = false;
  }

  static void ServerWent(void *self) { static_cast<JackDirectory *>(self)->isServerGone = true; }

  std::vector<std::string> NamesFromServer(PortDirection direction) {
    const unsigned long flags =
        direction == PortDirection::Out ? JackPortIsInput : JackPortIsOutput;
    const char **ports = jack_get_ports(client, nullptr, JACK_DEFAULT_MIDI_TYPE, flags);
    std::vector<std::string> names;
    for (const char **port = ports; port != nullptr && *port != nullptr; ++port) {
      names.emplace_back(*port);
    }
    jack_free(ports);
    return names;
  }

  std::mutex mutex;
  jack_client_t *client = nullptr;
  std::atomic<bool> isServerGone{false};
  std::atomic<int> holders{0};

  std::mutex changeMutex;
};

} // namespace

std::shared_ptr<PortDirectory> MakeJackDirectory() {
  static std::mutex mutex;
  static std::weak_ptr<JackDirectory> shared;
  const std::lock_guard lock(mutex);
  std::shared_ptr<JackDirectory> directory = shared.lock();
  if (directory == nullptr) {
    directory = std::make_shared<JackDirectory>();
    shared = directory;
  }
  return directory;
}

} // namespace Tessoro
