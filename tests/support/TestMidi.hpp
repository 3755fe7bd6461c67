// A MIDI service that notes every call, and gives the results that a test asks for.
#pragma once

#include "midi/MidiService.hpp"

#include <functional>
#include <map>
#include <span>
#include <string>
#include <vector>

namespace Tessoro {

// A message as it stands in `messages` below: the bytes of a long one, the word of a short one.
std::string NotedMessage(std::span<const std::uint8_t> bytes);

class TestMidi : public MidiService {
public:
  MidiResult midiOutOpen(MidiHandle &handle, std::int32_t device, std::uint32_t callback,
                         std::uint32_t instance, std::uint32_t flags) override;
  MidiResult midiOutClose(MidiHandle handle) override;
  MidiResult midiOutShortMsg(MidiHandle handle, std::uint32_t message) override;
  MidiResult midiOutPrepareHeader(MidiHandle handle, MIDIHDR &header, std::uint32_t size) override;
  MidiResult midiOutLongMsg(MidiHandle handle, MIDIHDR &header, std::uint32_t size) override;
  MidiResult midiOutUnprepareHeader(MidiHandle handle, MIDIHDR &header,
                                    std::uint32_t size) override;
  std::uint32_t midiOutGetNumDevs() override;
  MidiResult midiOutGetDevCapsA(std::int32_t device, MIDIOUTCAPS &record,
                                std::uint32_t size) override;
  MidiResult midiOutGetErrorTextA(MidiResult code, std::string &buffer,
                                  std::uint32_t size) override;
  MidiResult midiInOpen(MidiHandle &handle, std::int32_t device, std::uint32_t callback,
                        std::uint32_t instance, std::uint32_t flags) override;
  MidiResult midiInClose(MidiHandle handle) override;
  MidiResult midiInStart(MidiHandle handle) override;
  MidiResult midiInStop(MidiHandle handle) override;
  std::uint32_t midiInGetNumDevs() override;
  MidiResult midiInGetDevCapsA(std::int32_t device, MIDIINCAPS &record,
                               std::uint32_t size) override;
  MidiResult midiInGetErrorTextA(MidiResult code, std::string &buffer, std::uint32_t size) override;
  MidiResult midiConnect(MidiHandle in, MidiHandle out) override;
  MidiResult midiDisconnect(MidiHandle in, MidiHandle out) override;

  // "midiOutOpen 0", "midiOutShortMsg 00643C90", "midiOutLongMsg F0 3E F7"; handles as they are.
  std::vector<std::string> calls;
  // Runs at each call, after it was noted.
  std::function<void()> onCall;
  // What is the same at every call of an operation, and so isn't told in `calls`: "midiOutOpen 1 0
  // 0", "midiOutGetDevCapsA 52", "midiInGetErrorTextA 255 for 255 blanks".
  std::vector<std::string> constants;
  // What stands in `calls`, but only the messages: "00643C90", "F0 3E F7".
  std::vector<std::string> messages;
  // By operation; an operation that isn't named succeeds.
  std::map<std::string, MidiResult> results;
  std::vector<std::string> outDevices{"Synth"};
  std::vector<std::string> inDevices{"Keyboard"};

  static constexpr MidiHandle OutHandle = 41;
  static constexpr MidiHandle InHandle = 42;

private:
  MidiResult Note(const std::string &operation, const std::string &rest);
  void NoteBuffer(const std::string &operation, const std::string &buffer, std::uint32_t size);
  MidiResult ResultOf(const std::string &operation) const;
};

} // namespace Tessoro
