#include "tests/endtoend/ServiceCalls.hpp"

#include <gtest/gtest.h>

#include <algorithm>

namespace Tessoro::Tests {

std::vector<std::uint8_t> Change(int number, int value) {
  const int high = number / 128;
  const int low = number % 128;
  return {0xF0,
          0x3E,
          0x10,
          0x00,
          0x20,
          0x00,
          static_cast<std::uint8_t>(high),
          static_cast<std::uint8_t>(low),
          static_cast<std::uint8_t>(value),
          0xF7};
}

MidiResult SendLong(MidiService &service, MidiHandle out, const std::vector<std::uint8_t> &bytes) {
  MIDIHDR header;
  header.lpData = bytes.data();
  header.dwBufferLength = static_cast<std::uint32_t>(bytes.size());
  const std::uint32_t size = 24 + header.dwBufferLength;
  MidiResult result = service.midiOutPrepareHeader(out, header, size);
  if (result == 0) {
    result = service.midiOutLongMsg(out, header, size);
    service.midiOutUnprepareHeader(out, header, size);
  }
  return result;
}

std::vector<std::string> OutNames(MidiService &service) {
  std::vector<std::string> names;
  const auto count = static_cast<std::int32_t>(service.midiOutGetNumDevs());
  for (std::int32_t i = 0; i < count; ++i) {
    MIDIOUTCAPS record;
    service.midiOutGetDevCapsA(i, record, 52);
    names.emplace_back(record.szPname.data());
  }
  return names;
}

std::vector<std::string> InNames(MidiService &service) {
  std::vector<std::string> names;
  const auto count = static_cast<std::int32_t>(service.midiInGetNumDevs());
  for (std::int32_t i = 0; i < count; ++i) {
    MIDIINCAPS record;
    service.midiInGetDevCapsA(i, record, 52);
    names.emplace_back(record.szPname.data());
  }
  return names;
}

std::int32_t IndexOf(const std::vector<std::string> &names, const std::string &name) {
  const auto found = std::find(names.begin(), names.end(), name);
  return found == names.end() ? -2 : static_cast<std::int32_t>(found - names.begin());
}

MidiHandle OpenOut(MidiService &service, const std::string &name) {
  MidiHandle handle = 0;
  EXPECT_EQ(service.midiOutOpen(handle, IndexOf(OutNames(service), name), 1, 0, 0), 0U) << name;
  return handle;
}

MidiHandle OpenThru(MidiService &service, const std::string &name, MidiHandle out) {
  MidiHandle handle = 0;
  EXPECT_EQ(service.midiInOpen(handle, IndexOf(InNames(service), name), 0, 0, 0), 0U) << name;
  EXPECT_EQ(service.midiConnect(handle, out), 0U);
  EXPECT_EQ(service.midiInStart(handle), 0U);
  return handle;
}

} // namespace Tessoro::Tests
