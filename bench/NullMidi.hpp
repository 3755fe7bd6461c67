// A MIDI service without devices: every operation succeeds, and messages are only looked at.
#pragma once

#include "midi/MidiService.hpp"

namespace Tessoro {

class NullMidi : public MidiService {
public:
  MidiResult midiOutOpen(MidiHandle &handle, std::int32_t, std::uint32_t, std::uint32_t,
                         std::uint32_t) override {
    handle = 1;
    return MidiResultCode::Success;
  }
  MidiResult midiOutClose(MidiHandle) override { return MidiResultCode::Success; }
  MidiResult midiOutShortMsg(MidiHandle, std::uint32_t message) override {
    seen += message;
    return MidiResultCode::Success;
  }
  MidiResult midiOutPrepareHeader(MidiHandle, MIDIHDR &, std::uint32_t) override {
    return MidiResultCode::Success;
  }
  MidiResult midiOutLongMsg(MidiHandle, MIDIHDR &header, std::uint32_t) override {
    for (std::uint32_t i = 0; i < header.dwBufferLength; ++i)
      seen += header.lpData[i];
    return MidiResultCode::Success;
  }
  MidiResult midiOutUnprepareHeader(MidiHandle, MIDIHDR &, std::uint32_t) override {
    return MidiResultCode::Success;
  }
  std::uint32_t midiOutGetNumDevs() override { return 0; }
  MidiResult midiOutGetDevCapsA(std::int32_t, MIDIOUTCAPS &, std::uint32_t) override {
    return MidiResultCode::Success;
  }
  MidiResult midiOutGetErrorTextA(MidiResult, std::string &, std::uint32_t) override {
    return MidiResultCode::Success;
  }
  MidiResult midiInOpen(MidiHandle &, std::int32_t, std::uint32_t, std::uint32_t,
                        std::uint32_t) override {
    return MidiResultCode::Success;
  }
  MidiResult midiInClose(MidiHandle) override { return MidiResultCode::Success; }
  MidiResult midiInStart(MidiHandle) override { return MidiResultCode::Success; }
  MidiResult midiInStop(MidiHandle) override { return MidiResultCode::Success; }
  std::uint32_t midiInGetNumDevs() override { return 0; }
  MidiResult midiInGetDevCapsA(std::int32_t, MIDIINCAPS &, std::uint32_t) override {
    return MidiResultCode::Success;
  }
  MidiResult midiInGetErrorTextA(MidiResult, std::string &, std::uint32_t) override {
    return MidiResultCode::Success;
  }
  MidiResult midiConnect(MidiHandle, MidiHandle) override { return MidiResultCode::Success; }
  MidiResult midiDisconnect(MidiHandle, MidiHandle) override { return MidiResultCode::Success; }

  // Keeps the bytes from being optimized away.
  std::uint32_t seen = 0;
};

} // namespace Tessoro
