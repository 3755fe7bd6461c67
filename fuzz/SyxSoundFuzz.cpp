// A sound dump.
#include "fuzz/FuzzTarget.hpp"
#include "fuzz/SoundFileRun.hpp"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  Tessoro::OpenSoundFile("x.syx", Tessoro::Text(data, size));
  return 0;
}
