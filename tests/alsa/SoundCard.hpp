// The virtual sound cards of the kernel, whose MIDI ports a test plugs in and out. Needs root, and
// TESSORO_MODULES_BY: what stands before the commands that load and unload modules.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Tessoro::Tests {

// Whether the module could be loaded or unloaded. One that is in use can't be unloaded.
bool LoadModule(const std::string &name);
bool UnloadModule(const std::string &name);

// As if the cable of the virtual MIDI card was pulled or put in again, whoever uses it.
void PullCard();
void PutCardIn();

// What goes out at the wire of the card: the bytes that arrive at its first raw port.
class Wire {
public:
  // Throws std::runtime_error where there is no card.
  Wire();
  ~Wire();
  Wire(const Wire &) = delete;
  Wire &operator=(const Wire &) = delete;

  // Waits until so many bytes came, or for some seconds without any.
  std::vector<std::uint8_t> Take(std::size_t count);

  // Whether these come, be it behind others.
  bool Brings(const std::vector<std::uint8_t> &awaited);

private:
  int device;
};

} // namespace Tessoro::Tests
