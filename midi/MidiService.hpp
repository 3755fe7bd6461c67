// The MIDI service of the platform, as the editor sees it.
//
// Operations and records carry the names of the multimedia interface that they follow, and every
// result is a code, 0 for success. No operation throws, prints or waits for a cable.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace Tessoro {

// 0 is no device.
using MidiHandle = std::uint32_t;

// 0 is success; what else a code means is told by the two operations that give error texts.
using MidiResult = std::uint32_t;

// The codes that the services of this program give of their own accord.
namespace MidiResultCode {
inline constexpr MidiResult Success = 0;
inline constexpr MidiResult Unspecified = 1;
inline constexpr MidiResult BadDeviceNumber = 2;
inline constexpr MidiResult Allocated = 4;
inline constexpr MidiResult InvalidHandle = 5;
inline constexpr MidiResult NoDriver = 6;
inline constexpr MidiResult InvalidParameter = 11;
inline constexpr MidiResult Unprepared = 64;
inline constexpr MidiResult NotReady = 67;
inline constexpr MidiResult NoDevice = 68;
} // namespace MidiResultCode

// The device number of the mapper, which only the question for capabilities takes.
inline constexpr std::int32_t MidiMapper = -1;

// The bytes of one long message. The caller owns them until the header is released.
struct MIDIHDR {
  const std::uint8_t *lpData = nullptr;
  std::uint32_t dwBufferLength = 0;
  std::uint32_t dwBytesRecorded = 0;
  std::uint32_t dwUser = 0;
  std::uint32_t dwFlags = 0;
  MIDIHDR *lpNext = nullptr;
  std::uint32_t reserved = 0;
  std::uint32_t dwOffset = 0;
  std::array<std::uint32_t, 4> dwReserved{};
};

// The flag that says that a long message has been dealt with.
inline constexpr std::uint32_t MidiHeaderDone = 1;

// What an OUT device says of itself. The name ends at its first zero byte, or fills the field.
struct MIDIOUTCAPS {
  std::uint16_t wMid = 0;
  std::uint16_t wPid = 0;
  std::uint32_t vDriverVersion = 0;
  std::array<char, 32> szPname{};
  std::uint16_t wTechnology = 0;
  std::uint16_t wVoices = 0;
  std::uint16_t wNotes = 0;
  std::uint16_t wChannelMask = 0;
  std::uint32_t dwSupport = 0;
};

// What an IN device says of itself.
struct MIDIINCAPS {
  std::uint16_t wMid = 0;
  std::uint16_t wPid = 0;
  std::uint32_t vDriverVersion = 0;
  std::array<char, 32> szPname{};
  std::uint32_t dwSupport = 0;
};

// The record of the mapper, the same for every service: it always answers.
MIDIOUTCAPS MapperCapabilities();

// Writes a name into the field of a record: cut to 31 bytes, zero bytes behind it.
void PutDeviceName(std::array<char, 32> &field, const std::string &name);

class MidiService {
public:
  virtual ~MidiService() = default;

  // The handle is stored only on success.
  virtual MidiResult midiOutOpen(MidiHandle &handle, std::int32_t device, std::uint32_t callback,
                                 std::uint32_t instance, std::uint32_t flags) = 0;
  virtual MidiResult midiOutClose(MidiHandle handle) = 0;
  // One to three bytes, the lowest byte of the message first.
  virtual MidiResult midiOutShortMsg(MidiHandle handle, std::uint32_t message) = 0;
  virtual MidiResult midiOutPrepareHeader(MidiHandle handle, MIDIHDR &header,
                                          std::uint32_t size) = 0;
  virtual MidiResult midiOutLongMsg(MidiHandle handle, MIDIHDR &header, std::uint32_t size) = 0;
  virtual MidiResult midiOutUnprepareHeader(MidiHandle handle, MIDIHDR &header,
                                            std::uint32_t size) = 0;
  virtual std::uint32_t midiOutGetNumDevs() = 0;
  virtual MidiResult midiOutGetDevCapsA(std::int32_t device, MIDIOUTCAPS &record,
                                        std::uint32_t size) = 0;
  // Writes the text for a code over the beginning of the buffer, with a zero byte behind it;
  // size is the room that may be used.
  virtual MidiResult midiOutGetErrorTextA(MidiResult code, std::string &buffer,
                                          std::uint32_t size) = 0;

  virtual MidiResult midiInOpen(MidiHandle &handle, std::int32_t device, std::uint32_t callback,
                                std::uint32_t instance, std::uint32_t flags) = 0;
  virtual MidiResult midiInClose(MidiHandle handle) = 0;
  virtual MidiResult midiInStart(MidiHandle handle) = 0;
  virtual MidiResult midiInStop(MidiHandle handle) = 0;
  virtual std::uint32_t midiInGetNumDevs() = 0;
  virtual MidiResult midiInGetDevCapsA(std::int32_t device, MIDIINCAPS &record,
                                       std::uint32_t size) = 0;
  virtual MidiResult midiInGetErrorTextA(MidiResult code, std::string &buffer,
                                         std::uint32_t size) = 0;

  // All that arrives at the IN device goes straight to the OUT device.
  virtual MidiResult midiConnect(MidiHandle in, MidiHandle out) = 0;
  virtual MidiResult midiDisconnect(MidiHandle in, MidiHandle out) = 0;
};

} // namespace Tessoro
