#include "midi/MidiService.hpp"

#include <algorithm>

namespace Tessoro {

MIDIOUTCAPS MapperCapabilities() {
  MIDIOUTCAPS record;
  record.wMid = 1;
  record.wPid = 1;
  record.vDriverVersion = 1280;
  record.wTechnology = 5;
  PutDeviceName(record.szPname, "MIDI Mapper");
  return record;
}

void PutDeviceName(std::array<char, 32> &field, const std::string &name) {
  field.fill('\0');
  const std::size_t length = std::min(name.size(), field.size() - 1);
  std::copy_n(name.begin(), length, field.begin());
}

} // namespace Tessoro
