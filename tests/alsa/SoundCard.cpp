#include "tests/alsa/SoundCard.hpp"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace Tessoro::Tests {

namespace {

constexpr int PatienceInMilliseconds = 10000;

bool Run(const std::string &command) {
  const char *const by = std::getenv("TESSORO_MODULES_BY");
  return by != nullptr && std::system((by + (" " + command)).c_str()) == 0;
}

void TellDriver(const char *file) {
  std::ofstream(std::filesystem::path("/sys/bus/platform/drivers/snd_virmidi") / file)
      << "snd_virmidi.0";
}

std::filesystem::path FirstRawPort() {
  for (const auto &entry : std::filesystem::directory_iterator("/dev/snd"))
    if (entry.path().filename().string().starts_with("midiC"))
      return entry.path().string().substr(0, entry.path().string().size() - 1) + "0";
  throw std::runtime_error("there is no raw MIDI port");
}

} // namespace

bool LoadModule(const std::string &name) { return Run("modprobe " + name); }
bool UnloadModule(const std::string &name) { return Run("rmmod " + name); }

void PullCard() { TellDriver("unbind"); }
void PutCardIn() { TellDriver("bind"); }

Wire::Wire() : device(open(FirstRawPort().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {
  if (device < 0)
    throw std::runtime_error("the raw MIDI port can't be opened");
  char nothing = 0;
  (void)!read(device, &nothing, 1); // it listens from the first reading on
}

Wire::~Wire() { close(device); }

std::vector<std::uint8_t> Wire::Take(std::size_t count) {
  std::vector<std::uint8_t> bytes;
  pollfd waiting{device, POLLIN, 0};
  while (bytes.size() < count && poll(&waiting, 1, PatienceInMilliseconds) > 0) {
    std::array<std::uint8_t, 4096> part{};
    const ssize_t length = read(device, part.data(), part.size());
    if (length <= 0)
      break;
    bytes.insert(bytes.end(), part.begin(), part.begin() + length);
  }
  return bytes;
}

bool Wire::Brings(const std::vector<std::uint8_t> &awaited) {
  std::vector<std::uint8_t> bytes;
  while (std::search(bytes.begin(), bytes.end(), awaited.begin(), awaited.end()) == bytes.end()) {
    const std::vector<std::uint8_t> next = Take(1);
    if (next.empty())
      return false;
    bytes.insert(bytes.end(), next.begin(), next.end());
  }
  return true;
}

} // namespace Tessoro::Tests
