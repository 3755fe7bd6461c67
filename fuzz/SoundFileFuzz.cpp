// Any bytes under the name of a sound file: its first line says how the others are read.
#include "fuzz/FuzzTarget.hpp"
#include "fuzz/SoundFileRun.hpp"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  Tessoro::OpenSoundFile("x.tss", Tessoro::Text(data, size));
  return 0;
}
