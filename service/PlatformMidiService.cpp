#include "service/PlatformMidiService.hpp"

#include "service/ErrorTexts.hpp"
#include "service/MessageLength.hpp"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace Tessoro {
namespace {

using namespace MidiResultCode;

// The flag in a header that says that it may be sent.
constexpr std::uint32_t HeaderPrepared = 2;

// The sizes that these records have in the interface that the operations follow, in bytes.
constexpr std::uint32_t HeaderSize = 24;
constexpr std::uint32_t OutCapabilitiesSize = 52;
constexpr std::uint32_t InCapabilitiesSize = 44;

constexpr std::uint32_t LongestLongMessage = 0xFFFF;

bool IsUsable(const MIDIHDR &header, std::uint32_t size) {
  return size >= HeaderSize && header.lpData != nullptr && header.dwBufferLength > 0 &&
         header.dwBufferLength <= LongestLongMessage;
}

MidiResult PutErrorText(const std::string &text, std::string &buffer, std::uint32_t size) {
  const std::size_t room = std::min<std::size_t>(size, buffer.size());
  if (room == 0) {
    return InvalidParameter;
  }
  const std::string_view fitting = std::string_view(text).substr(0, room - 1);
  std::copy(fitting.begin(), fitting.end(), buffer.begin());
  buffer[fitting.size()] = '\0';
  return Success;
}

template <typename Open> Open *Find(std::vector<Open> &open, MidiHandle handle) {
  const auto found = std::find_if(open.begin(), open.end(),
                                  [handle](const Open &each) { return each.handle == handle; });
  return found == open.end() ? nullptr : &*found;
}

template <typename Listed> const Listed *At(const std::vector<Listed> &list, std::int32_t device) {
  const bool isListed = device >= 0 && static_cast<std::size_t>(device) < list.size();
  return isListed ? &list[static_cast<std::size_t>(device)] : nullptr;
}

template <typename Open, typename Listed>
bool IsOpen(const std::vector<Open> &open, const Listed &listed) {
  return std::any_of(open.begin(), open.end(), [&listed](const Open &each) {
    return each.source == listed.source && each.name == listed.device.key.exactName;
  });
}

template <typename Open> void Erase(std::vector<Open> &open, const Open *one) {
  open.erase(open.begin() + (one - open.data()));
}

} // namespace

PlatformMidiService::PlatformMidiService(std::vector<std::unique_ptr<DeviceSource>> inOrder)
    : sources(std::move(inOrder)) {}

PlatformMidiService::~PlatformMidiService() {
  openIns.clear();
  openOuts.clear();
}

MidiResult PlatformMidiService::midiOutOpen(MidiHandle &handle, std::int32_t device,
                                            std::uint32_t /*callback*/, std::uint32_t /*instance*/,
                                            std::uint32_t /*flags*/) {
  const ListedOut *listed = ListedOutAt(device);
  if (listed == nullptr) {
    return BadDeviceNumber;
  }
  if (IsOpen(openOuts, *listed)) {
    return Allocated;
  }
  std::unique_ptr<OutputEnd> end;
  const MidiResult result = listed->source->OpenOut(listed->device.key, end);
  if (result != Success) {
    return result;
  }
  openOuts.push_back({++lastHandle, listed->source, listed->device.key.exactName, std::move(end)});
  handle = lastHandle;
  return Success;
}

MidiResult PlatformMidiService::midiOutClose(MidiHandle handle) {
  OpenOut *out = FindOut(handle);
  if (out == nullptr) {
    return InvalidHandle;
  }
  for (OpenIn &in : openIns) {
    if (in.route->IsConnectedTo(*out->end)) {
      in.route->Disconnect();
    }
  }
  Erase(openOuts, out);
  return Success;
}

MidiResult PlatformMidiService::midiOutShortMsg(MidiHandle handle, std::uint32_t message) {
  OpenOut *out = FindOut(handle);
  if (out == nullptr) {
    return InvalidHandle;
  }
  const std::array<std::uint8_t, 3> bytes = {static_cast<std::uint8_t>(message & 0xFFU),
                                             static_cast<std::uint8_t>(message >> 8 & 0xFFU),
                                             static_cast<std::uint8_t>(message >> 16 & 0xFFU)};
  const std::size_t length = ShortMessageLength(bytes[0]);
  if (length == 0) {
    return InvalidParameter;
  }
  return out->end->Send(MidiBytes(bytes.data(), length));
}

MidiResult PlatformMidiService::midiOutPrepareHeader(MidiHandle handle, MIDIHDR &header,
                                                     std::uint32_t size) {
  if (FindOut(handle) == nullptr) {
    return InvalidHandle;
  }
  if (!IsUsable(header, size)) {
    return InvalidParameter;
  }
  header.dwFlags |= HeaderPrepared;
  return Success;
}

MidiResult PlatformMidiService::midiOutLongMsg(MidiHandle handle, MIDIHDR &header,
                                               std::uint32_t size) {
  OpenOut *out = FindOut(handle);
  if (out == nullptr) {
    return InvalidHandle;
  }
  if (!IsUsable(header, size)) {
    return InvalidParameter;
  }
  if ((header.dwFlags & HeaderPrepared) == 0) {
    return Unprepared;
  }
  // The end copies the bytes, so for the caller the message is done.
  const MidiResult result = out->end->Send(MidiBytes(header.lpData, header.dwBufferLength));
  if (result == Success) {
    header.dwFlags |= MidiHeaderDone;
  }
  return result;
}

// A header that is not prepared needs nothing, and that is no error: callers write the flags too.
MidiResult PlatformMidiService::midiOutUnprepareHeader(MidiHandle handle, MIDIHDR &header,
                                                       std::uint32_t size) {
  if (FindOut(handle) == nullptr) {
    return InvalidHandle;
  }
  if (size < HeaderSize) {
    return InvalidParameter;
  }
  header.dwFlags &= ~HeaderPrepared;
  return Success;
}

std::uint32_t PlatformMidiService::midiOutGetNumDevs() {
  outList.emplace();
  for (const auto &source : sources) {
    for (OutDevice &device : source->OutDevices()) {
      outList->push_back({source.get(), std::move(device)});
    }
  }
  return static_cast<std::uint32_t>(outList->size());
}

MidiResult PlatformMidiService::midiOutGetDevCapsA(std::int32_t device, MIDIOUTCAPS &record,
                                                   std::uint32_t size) {
  if (size < OutCapabilitiesSize) {
    return InvalidParameter;
  }
  if (device == MidiMapper) {
    record = MapperCapabilities();
    return Success;
  }
  const ListedOut *listed = ListedOutAt(device);
  if (listed == nullptr) {
    return BadDeviceNumber;
  }
  record = listed->device.capabilities;
  return Success;
}

MidiResult PlatformMidiService::midiOutGetErrorTextA(MidiResult code, std::string &buffer,
                                                     std::uint32_t size) {
  return PutErrorText(OutErrorText(code), buffer, size);
}

MidiResult PlatformMidiService::midiInOpen(MidiHandle &handle, std::int32_t device,
                                           std::uint32_t /*callback*/, std::uint32_t /*instance*/,
                                           std::uint32_t /*flags*/) {
  const ListedIn *listed = ListedInAt(device);
  if (listed == nullptr) {
    return BadDeviceNumber;
  }
  if (IsOpen(openIns, *listed)) {
    return Allocated;
  }
  auto route = std::make_unique<ThruRoute>();
  std::unique_ptr<InputEnd> end;
  const MidiResult result = listed->source->OpenIn(
      listed->device.key, [to = route.get()](MidiBytes message) { to->Pass(message); }, end);
  if (result != Success) {
    return result;
  }
  openIns.push_back({++lastHandle, listed->source, listed->device.key.exactName, std::move(route),
                     std::move(end)});
  handle = lastHandle;
  return Success;
}

MidiResult PlatformMidiService::midiInClose(MidiHandle handle) {
  OpenIn *in = FindIn(handle);
  if (in == nullptr) {
    return InvalidHandle;
  }
  in->end.reset(); // before its route goes
  Erase(openIns, in);
  return Success;
}

MidiResult PlatformMidiService::midiInStart(MidiHandle handle) {
  OpenIn *in = FindIn(handle);
  if (in == nullptr) {
    return InvalidHandle;
  }
  in->route->Start();
  return Success;
}

MidiResult PlatformMidiService::midiInStop(MidiHandle handle) {
  OpenIn *in = FindIn(handle);
  if (in == nullptr) {
    return InvalidHandle;
  }
  in->route->Stop();
  return Success;
}

std::uint32_t PlatformMidiService::midiInGetNumDevs() {
  inList.emplace();
  for (const auto &source : sources) {
    for (InDevice &device : source->InDevices()) {
      inList->push_back({source.get(), std::move(device)});
    }
  }
  return static_cast<std::uint32_t>(inList->size());
}

MidiResult PlatformMidiService::midiInGetDevCapsA(std::int32_t device, MIDIINCAPS &record,
                                                  std::uint32_t size) {
  if (size < InCapabilitiesSize) {
    return InvalidParameter;
  }
  const ListedIn *listed = ListedInAt(device);
  if (listed == nullptr) {
    return BadDeviceNumber;
  }
  record = listed->device.capabilities;
  return Success;
}

MidiResult PlatformMidiService::midiInGetErrorTextA(MidiResult code, std::string &buffer,
                                                    std::uint32_t size) {
  return PutErrorText(InErrorText(code), buffer, size);
}

MidiResult PlatformMidiService::midiConnect(MidiHandle in, MidiHandle out) {
  OpenIn *from = FindIn(in);
  OpenOut *to = FindOut(out);
  if (from == nullptr || to == nullptr) {
    return InvalidHandle;
  }
  if (from->route->IsConnected()) {
    return NotReady;
  }
  from->route->Connect(*to->end);
  return Success;
}

MidiResult PlatformMidiService::midiDisconnect(MidiHandle in, MidiHandle out) {
  OpenIn *from = FindIn(in);
  OpenOut *to = FindOut(out);
  if (from == nullptr || to == nullptr || !from->route->IsConnectedTo(*to->end)) {
    return InvalidHandle;
  }
  from->route->Disconnect();
  return Success;
}

const PlatformMidiService::ListedOut *PlatformMidiService::ListedOutAt(std::int32_t device) {
  if (!outList) {
    midiOutGetNumDevs();
  }
  return At(*outList, device);
}

const PlatformMidiService::ListedIn *PlatformMidiService::ListedInAt(std::int32_t device) {
  if (!inList) {
    midiInGetNumDevs();
  }
  return At(*inList, device);
}

PlatformMidiService::OpenOut *PlatformMidiService::FindOut(MidiHandle handle) {
  return Find(openOuts, handle);
}

PlatformMidiService::OpenIn *PlatformMidiService::FindIn(MidiHandle handle) {
  return Find(openIns, handle);
}

} // namespace Tessoro
