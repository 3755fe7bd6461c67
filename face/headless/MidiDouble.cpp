#include "face/headless/MidiDouble.hpp"

#include <algorithm>
#include <span>

namespace Tessoro {

namespace {

// What a call of an operation leaves in the trace.
enum class Traced : std::uint8_t { Always, WhenItFails };

struct Operation {
  std::string_view name;
  Traced traced;
};

constexpr Operation Operations[] = {
    {"midiOutOpen", Traced::Always},
    {"midiOutClose", Traced::Always},
    {"midiOutShortMsg", Traced::Always},
    {"midiOutPrepareHeader", Traced::WhenItFails},
    {"midiOutLongMsg", Traced::Always},
    {"midiOutUnprepareHeader", Traced::WhenItFails},
    {"midiOutGetDevCapsA", Traced::WhenItFails},
    {"midiInOpen", Traced::Always},
    {"midiInClose", Traced::Always},
    {"midiInStart", Traced::Always},
    {"midiInStop", Traced::Always},
    {"midiInGetDevCapsA", Traced::WhenItFails},
    {"midiConnect", Traced::Always},
    {"midiDisconnect", Traced::Always},
};

const Operation *FindOperation(std::string_view name) {
  const auto *const found = std::ranges::find(Operations, name, &Operation::name);
  return found == std::end(Operations) ? nullptr : found;
}

std::string BytesText(const MIDIHDR &header) {
  std::string text;
  for (const std::uint8_t byte : std::span(header.lpData, header.dwBufferLength))
    text += (text.empty() ? "" : " ") + HexText(byte, 2);
  return text;
}

template <typename Devices> bool HasDevice(const Devices &devices, std::int32_t device) {
  return device >= 0 && static_cast<std::size_t>(device) < devices.size();
}

MidiResult Known(bool isKnown) {
  return isKnown ? MidiResultCode::Success : MidiResultCode::InvalidHandle;
}

MidiResult PutErrorText(std::string_view direction, MidiResult code, std::string &buffer,
                        std::uint32_t size) {
  std::string text = std::string(direction) + " error " + std::to_string(code);
  text += '\0';
  const std::size_t room = std::min<std::size_t>(size, buffer.size());
  std::copy_n(text.begin(), std::min(room, text.size()), buffer.begin());
  return MidiResultCode::Success;
}

} // namespace

bool MidiDouble::CanFail(std::string_view operation) { return FindOperation(operation) != nullptr; }

void MidiDouble::Fail(std::string_view operation, MidiResult code,
                      std::optional<std::uint64_t> count) {
  failing.insert_or_assign(std::string(operation), Failing{code, count});
}

MidiResult MidiDouble::TakeFailure(std::string_view operation) {
  const auto found = failing.find(operation);
  if (found == failing.end() || found->second.callsLeft == 0)
    return MidiResultCode::Success;
  if (found->second.callsLeft)
    --*found->second.callsLeft;
  return found->second.code;
}

MidiResult MidiDouble::Call(std::string_view operation, std::string_view arguments,
                            const Work &work) {
  MidiResult result = TakeFailure(operation);
  if (onCall && result == MidiResultCode::Success)
    result = onCall(operation);
  if (result == MidiResultCode::Success)
    result = work();
  if (result == MidiResultCode::Success && FindOperation(operation)->traced == Traced::WhenItFails)
    return result;
  std::string line(operation);
  if (!arguments.empty())
    line.append(" ").append(arguments);
  if (result != MidiResultCode::Success)
    line.append(" -> ").append(std::to_string(result));
  trace.Line(line);
  return result;
}

MidiResult MidiDouble::Open(OpenDevices &open, std::size_t deviceCount, std::int32_t device,
                            MidiHandle &handle) {
  if (device < 0 || static_cast<std::size_t>(device) >= deviceCount)
    return MidiResultCode::BadDeviceNumber;
  if (std::ranges::find(open, device, &OpenDevices::value_type::second) != open.end())
    return MidiResultCode::Allocated;
  // Never the same twice, so that a handle that has been closed stays unknown.
  handle = ++lastHandle;
  open.emplace(handle, device);
  return MidiResultCode::Success;
}

MidiResult MidiDouble::midiOutOpen(MidiHandle &handle, std::int32_t device,
                                   std::uint32_t /*callback*/, std::uint32_t /*instance*/,
                                   std::uint32_t /*flags*/) {
  return Call("midiOutOpen", std::to_string(device),
              [&] { return Open(openOuts, outDevices.size(), device, handle); });
}

MidiResult MidiDouble::midiOutClose(MidiHandle handle) {
  return Call("midiOutClose", {}, [&] { return Known(openOuts.erase(handle) != 0); });
}

MidiResult MidiDouble::midiOutShortMsg(MidiHandle handle, std::uint32_t message) {
  return Call("midiOutShortMsg", HexText(message, 8),
              [&] { return Known(openOuts.contains(handle)); });
}

MidiResult MidiDouble::midiOutPrepareHeader(MidiHandle handle, MIDIHDR & /*header*/,
                                            std::uint32_t /*size*/) {
  return Call("midiOutPrepareHeader", {}, [&] { return Known(openOuts.contains(handle)); });
}

MidiResult MidiDouble::midiOutLongMsg(MidiHandle handle, MIDIHDR &header, std::uint32_t /*size*/) {
  return Call("midiOutLongMsg", BytesText(header),
              [&] { return Known(openOuts.contains(handle)); });
}

MidiResult MidiDouble::midiOutUnprepareHeader(MidiHandle handle, MIDIHDR & /*header*/,
                                              std::uint32_t /*size*/) {
  return Call("midiOutUnprepareHeader", {}, [&] { return Known(openOuts.contains(handle)); });
}

std::uint32_t MidiDouble::midiOutGetNumDevs() {
  return static_cast<std::uint32_t>(outDevices.size());
}

MidiResult MidiDouble::midiOutGetDevCapsA(std::int32_t device, MIDIOUTCAPS &record,
                                          std::uint32_t /*size*/) {
  if (device == MidiMapper) {
    record = MapperCapabilities();
    return MidiResultCode::Success;
  }
  return Call("midiOutGetDevCapsA", {}, [&]() -> MidiResult {
    if (!HasDevice(outDevices, device))
      return MidiResultCode::BadDeviceNumber;
    record = outDevices[static_cast<std::size_t>(device)];
    return MidiResultCode::Success;
  });
}

MidiResult MidiDouble::midiOutGetErrorTextA(MidiResult code, std::string &buffer,
                                            std::uint32_t size) {
  return PutErrorText("OUT", code, buffer, size);
}

MidiResult MidiDouble::midiInOpen(MidiHandle &handle, std::int32_t device,
                                  std::uint32_t /*callback*/, std::uint32_t /*instance*/,
                                  std::uint32_t /*flags*/) {
  return Call("midiInOpen", std::to_string(device),
              [&] { return Open(openIns, inDevices.size(), device, handle); });
}

MidiResult MidiDouble::midiInClose(MidiHandle handle) {
  return Call("midiInClose", {}, [&] { return Known(openIns.erase(handle) != 0); });
}

MidiResult MidiDouble::midiInStart(MidiHandle handle) {
  return Call("midiInStart", {}, [&] { return Known(openIns.contains(handle)); });
}

MidiResult MidiDouble::midiInStop(MidiHandle handle) {
  return Call("midiInStop", {}, [&] { return Known(openIns.contains(handle)); });
}

std::uint32_t MidiDouble::midiInGetNumDevs() {
  return static_cast<std::uint32_t>(inDevices.size());
}

MidiResult MidiDouble::midiInGetDevCapsA(std::int32_t device, MIDIINCAPS &record,
                                         std::uint32_t /*size*/) {
  return Call("midiInGetDevCapsA", {}, [&]() -> MidiResult {
    if (!HasDevice(inDevices, device))
      return MidiResultCode::BadDeviceNumber;
    record = inDevices[static_cast<std::size_t>(device)];
    return MidiResultCode::Success;
  });
}

MidiResult MidiDouble::midiInGetErrorTextA(MidiResult code, std::string &buffer,
                                           std::uint32_t size) {
  return PutErrorText("IN", code, buffer, size);
}

MidiResult MidiDouble::midiConnect(MidiHandle in, MidiHandle out) {
  return Call("midiConnect", {},
              [&] { return Known(openIns.contains(in) && openOuts.contains(out)); });
}

MidiResult MidiDouble::midiDisconnect(MidiHandle in, MidiHandle out) {
  return Call("midiDisconnect", {},
              [&] { return Known(openIns.contains(in) && openOuts.contains(out)); });
}

} // namespace Tessoro
