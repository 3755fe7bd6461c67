#include "tests/support/TestMidi.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <initializer_list>

namespace Tessoro {

namespace {

std::string Bytes(std::span<const std::uint8_t> bytes) {
  std::string text;
  for (const std::uint8_t byte : bytes) {
    std::array<char, 4> digits{};
    std::snprintf(digits.data(), digits.size(), "%02X", byte);
    text.append(text.empty() ? "" : " ").append(digits.data());
  }
  return text;
}

std::string Word(std::uint32_t word) {
  std::array<char, 9> digits{};
  std::snprintf(digits.data(), digits.size(), "%08X", word);
  return digits.data();
}

std::string Numbers(std::initializer_list<std::uint32_t> numbers) {
  std::string text;
  for (const std::uint32_t number : numbers)
    text += " " + std::to_string(number);
  return text;
}

void PutText(std::string &buffer, const std::string &text) {
  buffer.replace(0, std::min(buffer.size(), text.size() + 1), text + '\0');
}

} // namespace

std::string NotedMessage(std::span<const std::uint8_t> bytes) {
  if (bytes.front() == 0xF0)
    return Bytes(bytes);
  std::uint32_t word = 0;
  for (std::size_t i = 0; i < bytes.size(); ++i)
    word |= std::uint32_t{bytes[i]} << 8 * i;
  return Word(word);
}

MidiResult TestMidi::ResultOf(const std::string &operation) const {
  const auto found = results.find(operation);
  return found == results.end() ? MidiResultCode::Success : found->second;
}

MidiResult TestMidi::Note(const std::string &operation, const std::string &rest) {
  calls.push_back(rest.empty() ? operation : operation + " " + rest);
  if (onCall)
    onCall();
  return ResultOf(operation);
}

void TestMidi::NoteBuffer(const std::string &operation, const std::string &buffer,
                          std::uint32_t size) {
  const bool isBlank = buffer.find_first_not_of(' ') == std::string::npos;
  constants.push_back(operation + " " + std::to_string(size) + " for " +
                      std::to_string(buffer.size()) + (isBlank ? " blanks" : " bytes"));
}

MidiResult TestMidi::midiOutOpen(MidiHandle &handle, std::int32_t device, std::uint32_t callback,
                                 std::uint32_t instance, std::uint32_t flags) {
  constants.push_back("midiOutOpen" + Numbers({callback, instance, flags}));
  const MidiResult result = Note("midiOutOpen", std::to_string(device));
  if (result == MidiResultCode::Success)
    handle = OutHandle;
  return result;
}

MidiResult TestMidi::midiOutClose(MidiHandle handle) {
  return Note("midiOutClose", std::to_string(handle));
}

MidiResult TestMidi::midiOutShortMsg(MidiHandle, std::uint32_t message) {
  messages.push_back(Word(message));
  return Note("midiOutShortMsg", Word(message));
}

MidiResult TestMidi::midiOutPrepareHeader(MidiHandle, MIDIHDR &, std::uint32_t size) {
  return Note("midiOutPrepareHeader", std::to_string(size));
}

MidiResult TestMidi::midiOutLongMsg(MidiHandle, MIDIHDR &header, std::uint32_t) {
  const std::string bytes = Bytes({header.lpData, header.dwBufferLength});
  messages.push_back(bytes);
  return Note("midiOutLongMsg", bytes);
}

MidiResult TestMidi::midiOutUnprepareHeader(MidiHandle, MIDIHDR &header, std::uint32_t size) {
  return Note("midiOutUnprepareHeader",
              std::to_string(size) + " flags " + std::to_string(header.dwFlags));
}

std::uint32_t TestMidi::midiOutGetNumDevs() {
  return static_cast<std::uint32_t>(outDevices.size());
}

MidiResult TestMidi::midiOutGetDevCapsA(std::int32_t device, MIDIOUTCAPS &record,
                                        std::uint32_t size) {
  constants.push_back("midiOutGetDevCapsA" + Numbers({size}));
  if (device == MidiMapper) {
    record = MapperCapabilities();
    return MidiResultCode::Success;
  }
  record = {.wMid = 1, .wPid = 1, .vDriverVersion = 0x0500, .wTechnology = 1};
  PutDeviceName(record.szPname, outDevices.at(static_cast<std::size_t>(device)));
  return ResultOf("midiOutGetDevCapsA");
}

MidiResult TestMidi::midiOutGetErrorTextA(MidiResult code, std::string &buffer,
                                          std::uint32_t size) {
  NoteBuffer("midiOutGetErrorTextA", buffer, size);
  PutText(buffer, "OUT error " + std::to_string(code));
  return MidiResultCode::Success;
}

MidiResult TestMidi::midiInOpen(MidiHandle &handle, std::int32_t device, std::uint32_t callback,
                                std::uint32_t instance, std::uint32_t flags) {
  constants.push_back("midiInOpen" + Numbers({callback, instance, flags}));
  const MidiResult result = Note("midiInOpen", std::to_string(device));
  if (result == MidiResultCode::Success)
    handle = InHandle;
  return result;
}

MidiResult TestMidi::midiInClose(MidiHandle handle) {
  return Note("midiInClose", std::to_string(handle));
}

MidiResult TestMidi::midiInStart(MidiHandle handle) {
  return Note("midiInStart", std::to_string(handle));
}

MidiResult TestMidi::midiInStop(MidiHandle handle) {
  return Note("midiInStop", std::to_string(handle));
}

std::uint32_t TestMidi::midiInGetNumDevs() { return static_cast<std::uint32_t>(inDevices.size()); }

MidiResult TestMidi::midiInGetDevCapsA(std::int32_t device, MIDIINCAPS &record,
                                       std::uint32_t size) {
  constants.push_back("midiInGetDevCapsA" + Numbers({size}));
  record = {};
  PutDeviceName(record.szPname, inDevices.at(static_cast<std::size_t>(device)));
  return ResultOf("midiInGetDevCapsA");
}

MidiResult TestMidi::midiInGetErrorTextA(MidiResult code, std::string &buffer, std::uint32_t size) {
  NoteBuffer("midiInGetErrorTextA", buffer, size);
  PutText(buffer, "IN error " + std::to_string(code));
  return MidiResultCode::Success;
}

MidiResult TestMidi::midiConnect(MidiHandle in, MidiHandle out) {
  return Note("midiConnect", std::to_string(in) + " " + std::to_string(out));
}

MidiResult TestMidi::midiDisconnect(MidiHandle in, MidiHandle out) {
  return Note("midiDisconnect", std::to_string(in) + " " + std::to_string(out));
}

} // namespace Tessoro
