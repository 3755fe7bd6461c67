#include "face/qt/MidiOfBuild.hpp"

#include <algorithm>

namespace Tessoro {

namespace {

class NoMidi : public MidiService {
public:
  MidiResult midiOutOpen(MidiHandle & /*handle*/, std::int32_t /*device*/,
                         std::uint32_t /*callback*/, std::uint32_t /*instance*/,
                         std::uint32_t /*flags*/) override {
    return MidiResultCode::NoDriver;
  }
  MidiResult midiOutClose(MidiHandle /*handle*/) override { return MidiResultCode::InvalidHandle; }
  MidiResult midiOutShortMsg(MidiHandle /*handle*/, std::uint32_t /*message*/) override {
    return MidiResultCode::InvalidHandle;
  }
  MidiResult midiOutPrepareHeader(MidiHandle /*handle*/, MIDIHDR & /*header*/,
                                  std::uint32_t /*size*/) override {
    return MidiResultCode::InvalidHandle;
  }
  MidiResult midiOutLongMsg(MidiHandle /*handle*/, MIDIHDR & /*header*/,
                            std::uint32_t /*size*/) override {
    return MidiResultCode::InvalidHandle;
  }
  MidiResult midiOutUnprepareHeader(MidiHandle /*handle*/, MIDIHDR & /*header*/,
                                    std::uint32_t /*size*/) override {
    return MidiResultCode::InvalidHandle;
  }
  std::uint32_t midiOutGetNumDevs() override { return 0; }
  MidiResult midiOutGetDevCapsA(std::int32_t device, MIDIOUTCAPS &record,
                                std::uint32_t /*size*/) override {
    if (device != MidiMapper)
      return MidiResultCode::BadDeviceNumber;
    record = MapperCapabilities();
    return MidiResultCode::Success;
  }
  MidiResult midiOutGetErrorTextA(MidiResult /*code*/, std::string &buffer,
                                  std::uint32_t size) override {
    return PutErrorText(buffer, size);
  }

  MidiResult midiInOpen(MidiHandle & /*handle*/, std::int32_t /*device*/,
                        std::uint32_t /*callback*/, std::uint32_t /*instance*/,
                        std::uint32_t /*flags*/) override {
    return MidiResultCode::NoDriver;
  }
  MidiResult midiInClose(MidiHandle /*handle*/) override { return MidiResultCode::InvalidHandle; }
  MidiResult midiInStart(MidiHandle /*handle*/) override { return MidiResultCode::InvalidHandle; }
  MidiResult midiInStop(MidiHandle /*handle*/) override { return MidiResultCode::InvalidHandle; }
  std::uint32_t midiInGetNumDevs() override { return 0; }
  MidiResult midiInGetDevCapsA(std::int32_t /*device*/, MIDIINCAPS & /*record*/,
                               std::uint32_t /*size*/) override {
    return MidiResultCode::BadDeviceNumber;
  }
  MidiResult midiInGetErrorTextA(MidiResult /*code*/, std::string &buffer,
                                 std::uint32_t size) override {
    return PutErrorText(buffer, size);
  }

  MidiResult midiConnect(MidiHandle /*in*/, MidiHandle /*out*/) override {
    return MidiResultCode::InvalidHandle;
  }
  MidiResult midiDisconnect(MidiHandle /*in*/, MidiHandle /*out*/) override {
    return MidiResultCode::InvalidHandle;
  }

private:
  static MidiResult PutErrorText(std::string &buffer, std::uint32_t size) {
    const std::string text = "This build of the editor has no MIDI.";
    const std::size_t room = std::min<std::size_t>(size, buffer.size());
    if (room > text.size())
      buffer.replace(0, text.size() + 1, text + '\0');
    return MidiResultCode::Success;
  }
};

} // namespace

std::unique_ptr<MidiService> MakeMidiService() { return std::make_unique<NoMidi>(); }

std::unique_ptr<MidiService> MakeBuiltinMidiService() { return std::make_unique<NoMidi>(); }

std::unique_ptr<MidiService> MakeBuiltinMidiServiceWithWindow() {
  return std::make_unique<NoMidi>();
}

} // namespace Tessoro
