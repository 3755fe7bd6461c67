// The MIDI service over the devices of this machine.
#pragma once

#include "midi/MidiService.hpp"
#include "service/MidiDevices.hpp"
#include "service/ThruRoute.hpp"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace Tessoro {

// A device number is a place in the list as it was last read. The count of devices reads the list;
// an opening finds the device that stood there again by its name, and so never takes another one.
// All operations are called by one thread; the devices have threads of their own behind them.
class PlatformMidiService final : public MidiService {
public:
  // Lists show the devices of the sources in this order.
  explicit PlatformMidiService(std::vector<std::unique_ptr<DeviceSource>> inOrder);
  ~PlatformMidiService() override;
  PlatformMidiService(const PlatformMidiService &) = delete;
  PlatformMidiService &operator=(const PlatformMidiService &) = delete;

  MidiResult midiOutOpen(MidiHandle &handle, std::int32_t device, std::uint32_t callback,
                         std::uint32_t instance, std::uint32_t flags) override;
  // First sends what was accepted.
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

private:
  struct ListedOut {
    DeviceSource *source;
    OutDevice device;
  };
  struct ListedIn {
    DeviceSource *source;
    InDevice device;
  };
  struct OpenOut {
    MidiHandle handle;
    DeviceSource *source;
    std::string name;
    std::unique_ptr<OutputEnd> end;
  };
  struct OpenIn {
    MidiHandle handle;
    DeviceSource *source;
    std::string name;
    std::unique_ptr<ThruRoute> route; // outlives the end, which feeds it
    std::unique_ptr<InputEnd> end;
  };

  const ListedOut *ListedOutAt(std::int32_t device);
  const ListedIn *ListedInAt(std::int32_t device);
  OpenOut *FindOut(MidiHandle handle);
  OpenIn *FindIn(MidiHandle handle);

  std::vector<std::unique_ptr<DeviceSource>> sources;
  std::optional<std::vector<ListedOut>> outList;
  std::optional<std::vector<ListedIn>> inList;
  std::vector<OpenOut> openOuts;
  std::vector<OpenIn> openIns;
  MidiHandle lastHandle = 0; // never given twice, so a dead handle stays dead
};

} // namespace Tessoro
