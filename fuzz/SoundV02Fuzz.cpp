// Everything behind the first line of a sound file of version 0.2.
#include "fuzz/FuzzTarget.hpp"
#include "fuzz/SoundFileRun.hpp"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
  Tessoro::OpenSoundFile("x.tss", "v.0.2\r\n" + Tessoro::Text(data, size));
  return 0;
}
