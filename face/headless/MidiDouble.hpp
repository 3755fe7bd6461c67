// A MIDI service without any port: it has the devices that it is given, traces every call, and
// fails where it is told to.
#pragma once

#include "face/headless/Trace.hpp"
#include "midi/MidiService.hpp"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tessoro {

class MidiDouble : public MidiService {
public:
  explicit MidiDouble(Trace &destination) : trace(destination) {}

  void AddOut(const MIDIOUTCAPS &device) { outDevices.push_back(device); }
  void AddIn(const MIDIINCAPS &device) { inDevices.push_back(device); }

  // Whether the operation gives a result code, and so can be made to fail.
  static bool CanFail(std::string_view operation);
  // The next so many calls of the operation, or all, return the code and do nothing else. Replaces
  // what was said of it before; code 0 ends it.
  void Fail(std::string_view operation, MidiResult code, std::optional<std::uint64_t> count);
  // If set, asked at each call of an operation that can fail; another result than success is what
  // the call comes to.
  std::function<MidiResult(std::string_view operation)> onCall;

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

private:
  struct Failing {
    MidiResult code;
    // Nothing: for good.
    std::optional<std::uint64_t> callsLeft;
  };
  // Handles that are open, with their device numbers.
  using OpenDevices = std::map<MidiHandle, std::int32_t>;
  using Work = std::function<MidiResult()>;

  // Does the work unless the operation is to fail, and traces the call with its arguments.
  MidiResult Call(std::string_view operation, std::string_view arguments, const Work &work);
  // The code to fail with, or success.
  MidiResult TakeFailure(std::string_view operation);
  MidiResult Open(OpenDevices &open, std::size_t deviceCount, std::int32_t device,
                  MidiHandle &handle);

  Trace &trace;
  std::vector<MIDIOUTCAPS> outDevices;
  std::vector<MIDIINCAPS> inDevices;
  OpenDevices openOuts;
  OpenDevices openIns;
  std::map<std::string, Failing, std::less<>> failing;
  MidiHandle lastHandle = 0;
};

} // namespace Tessoro
