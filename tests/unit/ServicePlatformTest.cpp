// The operations of the MIDI service and their results, over devices of the test.
#include "service/PlatformMidiService.hpp"

#include "service/ErrorTexts.hpp"
#include "service/PortNames.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Tessoro {
namespace {

using namespace MidiResultCode;
using Bytes = std::vector<std::uint8_t>;
using Names = std::vector<std::string>;

// The devices of one source, as the test plugs and unplugs them, and all that they got.
struct Rack {
  Names outs;
  Names ins;
  MidiResult openResult = Success;
  std::vector<std::pair<std::string, Bytes>> got; // the device, and the message
  std::map<std::string, InputListener> listeners; // of the IN devices that are open
  Names log;
};

class RackOut final : public OutputEnd {
public:
  RackOut(Rack &itsRack, std::string itsName) : rack(itsRack), name(std::move(itsName)) {}
  ~RackOut() override { rack.log.push_back("closed " + name); }
  RackOut(const RackOut &) = delete;
  RackOut &operator=(const RackOut &) = delete;

  MidiResult Send(MidiBytes message) override {
    rack.got.emplace_back(name, Bytes(message.begin(), message.end()));
    return Success;
  }
  void SendThru(MidiBytes message) override {
    rack.got.emplace_back("thru " + name, Bytes(message.begin(), message.end()));
  }

private:
  Rack &rack;
  std::string name;
};

class RackIn final : public InputEnd {
public:
  RackIn(Rack &itsRack, std::string itsName) : rack(itsRack), name(std::move(itsName)) {}
  ~RackIn() override {
    // What is on its way while the device closes must still find a listener.
    rack.listeners.at(name)(Bytes{0xFE});
    rack.listeners.erase(name);
    rack.log.push_back("closed " + name);
  }
  RackIn(const RackIn &) = delete;
  RackIn &operator=(const RackIn &) = delete;

private:
  Rack &rack;
  std::string name;
};

class RackSource final : public DeviceSource {
public:
  explicit RackSource(Rack &itsRack) : rack(itsRack) {}

  std::vector<OutDevice> OutDevices() override {
    std::vector<OutDevice> devices;
    for (std::size_t i = 0; i < rack.outs.size(); ++i) {
      devices.push_back({KeyOf(rack.outs, i), {}});
      PutDeviceName(devices.back().capabilities.szPname, rack.outs[i]);
    }
    return devices;
  }

  std::vector<InDevice> InDevices() override {
    std::vector<InDevice> devices;
    for (std::size_t i = 0; i < rack.ins.size(); ++i) {
      devices.push_back({KeyOf(rack.ins, i), {}});
      PutDeviceName(devices.back().capabilities.szPname, rack.ins[i]);
    }
    return devices;
  }

  MidiResult OpenOut(const DeviceKey &key, std::unique_ptr<OutputEnd> &end) override {
    if (!FindPort(rack.outs, key)) {
      return NoDevice;
    }
    if (rack.openResult == Success) {
      end = std::make_unique<RackOut>(rack, key.exactName);
    }
    return rack.openResult;
  }

  MidiResult OpenIn(const DeviceKey &key, InputListener listener,
                    std::unique_ptr<InputEnd> &end) override {
    rack.listeners[key.exactName] = std::move(listener);
    end = std::make_unique<RackIn>(rack, key.exactName);
    return Success;
  }

private:
  Rack &rack;
};

class ServicePlatformTest : public testing::Test {
protected:
  Rack first{{"alpha", "beta"}, {"keys", "pads"}, Success, {}, {}, {}};
  Rack second{{"gamma"}, {"wheel"}, Success, {}, {}, {}};
  std::unique_ptr<PlatformMidiService> service = Make();

  std::unique_ptr<PlatformMidiService> Make() {
    std::vector<std::unique_ptr<DeviceSource>> sources;
    sources.push_back(std::make_unique<RackSource>(first));
    sources.push_back(std::make_unique<RackSource>(second));
    return std::make_unique<PlatformMidiService>(std::move(sources));
  }

  MidiHandle OpenOut(std::int32_t device) {
    MidiHandle handle = 0;
    EXPECT_EQ(service->midiOutOpen(handle, device, 1, 0, 0), Success);
    return handle;
  }

  MidiHandle OpenIn(std::int32_t device) {
    MidiHandle handle = 0;
    EXPECT_EQ(service->midiInOpen(handle, device, 0, 0, 0), Success);
    return handle;
  }

  static MIDIHDR HeaderFor(const Bytes &bytes) {
    MIDIHDR header;
    header.lpData = bytes.data();
    header.dwBufferLength = static_cast<std::uint32_t>(bytes.size());
    return header;
  }
};

TEST_F(ServicePlatformTest, ListsTheSourcesOneBehindTheOther) {
  ASSERT_EQ(service->midiOutGetNumDevs(), 3U);
  ASSERT_EQ(service->midiInGetNumDevs(), 3U);
  MIDIOUTCAPS out;
  ASSERT_EQ(service->midiOutGetDevCapsA(2, out, 52), Success);
  EXPECT_STREQ(out.szPname.data(), "gamma");
  MIDIINCAPS in;
  ASSERT_EQ(service->midiInGetDevCapsA(0, in, 52), Success);
  EXPECT_STREQ(in.szPname.data(), "keys");
}

TEST_F(ServicePlatformTest, TheMapperTellsItsCapabilitiesAndCannotBeOpened) {
  MIDIOUTCAPS record;
  ASSERT_EQ(service->midiOutGetDevCapsA(MidiMapper, record, 52), Success);
  EXPECT_STREQ(record.szPname.data(), "MIDI Mapper");
  EXPECT_EQ(record.wMid, 1);
  EXPECT_EQ(record.wPid, 1);
  EXPECT_EQ(record.vDriverVersion, 1280U);
  EXPECT_EQ(record.wTechnology, 5);
  MidiHandle handle = 9;
  EXPECT_EQ(service->midiOutOpen(handle, MidiMapper, 1, 0, 0), BadDeviceNumber);
  EXPECT_EQ(service->midiOutOpen(handle, 3, 1, 0, 0), BadDeviceNumber);
  EXPECT_EQ(handle, 9U);
}

TEST_F(ServicePlatformTest, ANumberOutsideTheListIsRefused) {
  MidiHandle handle = 9;
  EXPECT_EQ(service->midiInOpen(handle, -1, 0, 0, 0), BadDeviceNumber);
  EXPECT_EQ(service->midiInOpen(handle, 3, 0, 0, 0), BadDeviceNumber);
  MIDIOUTCAPS out;
  MIDIINCAPS in;
  EXPECT_EQ(service->midiOutGetDevCapsA(3, out, 52), BadDeviceNumber);
  EXPECT_EQ(service->midiInGetDevCapsA(-1, in, 52), BadDeviceNumber);
  EXPECT_EQ(handle, 9U);
}

TEST_F(ServicePlatformTest, ARecordThatIsTooSmallIsRefused) {
  MIDIOUTCAPS out;
  MIDIINCAPS in;
  EXPECT_EQ(service->midiOutGetDevCapsA(0, out, 51), InvalidParameter);
  EXPECT_EQ(service->midiInGetDevCapsA(0, in, 43), InvalidParameter);
}

TEST_F(ServicePlatformTest, ANumberKeepsItsMeaningUntilTheListIsReadAgain) {
  ASSERT_EQ(service->midiOutGetNumDevs(), 3U);
  first.outs = {"new", "alpha", "beta"};
  const MidiHandle out = OpenOut(1);
  ASSERT_EQ(service->midiOutShortMsg(out, 0x00642490), Success);
  EXPECT_EQ(first.got.back().first, "beta");
  EXPECT_EQ(service->midiOutGetNumDevs(), 4U);
  const MidiHandle other = OpenOut(1);
  ASSERT_EQ(service->midiOutShortMsg(other, 0x00642490), Success);
  EXPECT_EQ(first.got.back().first, "alpha");
}

TEST_F(ServicePlatformTest, ADeviceThatHasGoneCannotBeOpened) {
  ASSERT_EQ(service->midiOutGetNumDevs(), 3U);
  first.outs = {"alpha"};
  MidiHandle handle = 9;
  EXPECT_EQ(service->midiOutOpen(handle, 1, 1, 0, 0), NoDevice);
  EXPECT_EQ(handle, 9U);
}

TEST_F(ServicePlatformTest, ADeviceIsOpenOnlyOnce) {
  const MidiHandle out = OpenOut(0);
  MidiHandle handle = 9;
  EXPECT_EQ(service->midiOutOpen(handle, 0, 1, 0, 0), Allocated);
  EXPECT_EQ(handle, 9U);
  EXPECT_EQ(service->midiOutClose(out), Success);
  EXPECT_EQ(service->midiOutOpen(handle, 0, 1, 0, 0), Success);
  OpenIn(1);
  EXPECT_EQ(service->midiInOpen(handle, 1, 0, 0, 0), Allocated);
}

TEST_F(ServicePlatformTest, AFailedOpeningLeavesTheHandleAlone) {
  first.openResult = NotReady;
  MidiHandle handle = 9;
  EXPECT_EQ(service->midiOutOpen(handle, 0, 1, 0, 0), NotReady);
  EXPECT_EQ(handle, 9U);
}

TEST_F(ServicePlatformTest, ADeadHandleIsRefusedEverywhere) {
  const MidiHandle out = OpenOut(0);
  const MidiHandle in = OpenIn(0);
  ASSERT_EQ(service->midiOutClose(out), Success);
  ASSERT_EQ(service->midiInClose(in), Success);
  const MidiHandle openOut = OpenOut(0);
  const MidiHandle openIn = OpenIn(0);
  EXPECT_NE(openOut, out);
  EXPECT_NE(openIn, in);
  const Bytes bytes = {0xF0, 0xF7};
  MIDIHDR header = HeaderFor(bytes);
  for (const MidiHandle dead : {MidiHandle{0}, out, in, openIn}) {
    EXPECT_EQ(service->midiOutClose(dead), InvalidHandle);
    EXPECT_EQ(service->midiOutShortMsg(dead, 0x90), InvalidHandle);
    EXPECT_EQ(service->midiOutPrepareHeader(dead, header, 26), InvalidHandle);
    EXPECT_EQ(service->midiOutLongMsg(dead, header, 26), InvalidHandle);
    EXPECT_EQ(service->midiOutUnprepareHeader(dead, header, 26), InvalidHandle);
    EXPECT_EQ(service->midiConnect(openIn, dead), InvalidHandle);
    EXPECT_EQ(service->midiDisconnect(openIn, dead), InvalidHandle);
  }
  for (const MidiHandle dead : {MidiHandle{0}, out, in, openOut}) {
    EXPECT_EQ(service->midiInClose(dead), InvalidHandle);
    EXPECT_EQ(service->midiInStart(dead), InvalidHandle);
    EXPECT_EQ(service->midiInStop(dead), InvalidHandle);
    EXPECT_EQ(service->midiConnect(dead, openOut), InvalidHandle);
    EXPECT_EQ(service->midiDisconnect(dead, openOut), InvalidHandle);
  }
}

TEST_F(ServicePlatformTest, AShortMessageIsAsLongAsItsStatusSays) {
  const MidiHandle out = OpenOut(0);
  ASSERT_EQ(service->midiOutShortMsg(out, 0x000134B0), Success);
  ASSERT_EQ(service->midiOutShortMsg(out, 0x00007BC0), Success);
  ASSERT_EQ(service->midiOutShortMsg(out, 0x000000F8), Success);
  ASSERT_EQ(first.got.size(), 3U);
  EXPECT_EQ(first.got[0].second, (Bytes{0xB0, 0x34, 0x01}));
  EXPECT_EQ(first.got[1].second, (Bytes{0xC0, 0x7B}));
  EXPECT_EQ(first.got[2].second, (Bytes{0xF8}));
  EXPECT_EQ(service->midiOutShortMsg(out, 0x00000040), InvalidParameter);
  EXPECT_EQ(service->midiOutShortMsg(out, 0x000000F0), InvalidParameter);
}

TEST_F(ServicePlatformTest, ALongMessageGoesOutByteForByteAndIsDone) {
  const MidiHandle out = OpenOut(2);
  const Bytes bytes = {0xF0, 0x3E, 0x10, 0x00, 0x20, 0x00, 0x01, 0x80, 0x05, 0xF7};
  MIDIHDR header = HeaderFor(bytes);
  EXPECT_EQ(service->midiOutPrepareHeader(out, header, 34), Success);
  EXPECT_EQ(header.dwFlags & MidiHeaderDone, 0U);
  EXPECT_EQ(service->midiOutLongMsg(out, header, 34), Success);
  EXPECT_EQ(header.dwFlags & MidiHeaderDone, MidiHeaderDone);
  header.dwFlags = MidiHeaderDone; // as the editor does by hand
  EXPECT_EQ(service->midiOutUnprepareHeader(out, header, 34), Success);
  ASSERT_EQ(second.got.size(), 1U);
  EXPECT_EQ(second.got[0].second, bytes);
}

TEST_F(ServicePlatformTest, ALongMessageHasToBePrepared) {
  const MidiHandle out = OpenOut(0);
  const Bytes bytes = {0xF0, 0xF7};
  MIDIHDR header = HeaderFor(bytes);
  EXPECT_EQ(service->midiOutLongMsg(out, header, 26), Unprepared);
  ASSERT_EQ(service->midiOutPrepareHeader(out, header, 26), Success);
  ASSERT_EQ(service->midiOutUnprepareHeader(out, header, 26), Success);
  EXPECT_EQ(service->midiOutLongMsg(out, header, 26), Unprepared);
  EXPECT_TRUE(first.got.empty());
}

TEST_F(ServicePlatformTest, AHeaderWithoutBytesOrTooSmallIsRefused) {
  const MidiHandle out = OpenOut(0);
  const Bytes bytes = {0xF0, 0xF7};
  MIDIHDR header = HeaderFor(bytes);
  EXPECT_EQ(service->midiOutPrepareHeader(out, header, 23), InvalidParameter);
  EXPECT_EQ(service->midiOutUnprepareHeader(out, header, 23), InvalidParameter);
  header.dwBufferLength = 0;
  EXPECT_EQ(service->midiOutPrepareHeader(out, header, 26), InvalidParameter);
  header = HeaderFor(bytes);
  header.lpData = nullptr;
  EXPECT_EQ(service->midiOutPrepareHeader(out, header, 26), InvalidParameter);
}

TEST_F(ServicePlatformTest, ThruPassesWhileStartedAndConnected) {
  const MidiHandle out = OpenOut(0);
  const MidiHandle in = OpenIn(0);
  const auto play = [this](std::uint8_t note) { first.listeners.at("keys")(Bytes{0x90, note, 1}); };
  play(1);
  ASSERT_EQ(service->midiConnect(in, out), Success);
  play(2);
  ASSERT_EQ(service->midiInStart(in), Success);
  play(3);
  ASSERT_EQ(service->midiInStop(in), Success);
  play(4);
  ASSERT_EQ(service->midiInStart(in), Success);
  ASSERT_EQ(service->midiDisconnect(in, out), Success);
  play(5);
  ASSERT_EQ(first.got.size(), 1U);
  EXPECT_EQ(first.got[0].first, "thru alpha");
  EXPECT_EQ(first.got[0].second, (Bytes{0x90, 3, 1}));
}

TEST_F(ServicePlatformTest, AnInDeviceFeedsOneOutDeviceOnly) {
  const MidiHandle alpha = OpenOut(0);
  const MidiHandle beta = OpenOut(1);
  const MidiHandle in = OpenIn(0);
  ASSERT_EQ(service->midiConnect(in, alpha), Success);
  EXPECT_EQ(service->midiConnect(in, beta), NotReady);
  EXPECT_EQ(service->midiDisconnect(in, beta), InvalidHandle);
  EXPECT_EQ(service->midiDisconnect(in, alpha), Success);
  EXPECT_EQ(service->midiDisconnect(in, alpha), InvalidHandle);
  EXPECT_EQ(service->midiConnect(in, beta), Success);
}

TEST_F(ServicePlatformTest, ClosingTheOutDeviceEndsItsConnections) {
  const MidiHandle out = OpenOut(0);
  const MidiHandle in = OpenIn(0);
  ASSERT_EQ(service->midiConnect(in, out), Success);
  ASSERT_EQ(service->midiInStart(in), Success);
  ASSERT_EQ(service->midiOutClose(out), Success);
  first.listeners.at("keys")(Bytes{0x90, 1, 1});
  EXPECT_TRUE(first.got.empty());
  EXPECT_EQ(service->midiConnect(in, OpenOut(1)), Success);
  EXPECT_EQ(service->midiInClose(in), Success);
}

TEST_F(ServicePlatformTest, TheFirstOfTwoInDevicesClosesWhileItStillPlays) {
  const MidiHandle out = OpenOut(0);
  const MidiHandle keys = OpenIn(0);
  OpenIn(1);
  ASSERT_EQ(service->midiConnect(keys, out), Success);
  ASSERT_EQ(service->midiInStart(keys), Success);
  EXPECT_EQ(service->midiInClose(keys), Success);
  ASSERT_EQ(first.got.size(), 1U);
  EXPECT_EQ(first.got[0].second, (Bytes{0xFE}));
}

TEST_F(ServicePlatformTest, TheEndOfTheServiceClosesTheInDevicesFirst) {
  OpenOut(0);
  OpenIn(0);
  service.reset();
  EXPECT_EQ(first.log, (Names{"closed keys", "closed alpha"}));
}

TEST_F(ServicePlatformTest, AnErrorTextStandsAtTheBeginningOfTheBuffer) {
  std::string buffer(255, ' ');
  ASSERT_EQ(service->midiOutGetErrorTextA(InvalidHandle, buffer, 255), Success);
  EXPECT_EQ(buffer.size(), 255U);
  EXPECT_STREQ(buffer.c_str(), "No MIDI OUT port is open.");
  EXPECT_EQ(buffer.back(), ' ');
  ASSERT_EQ(service->midiInGetErrorTextA(InvalidHandle, buffer, 255), Success);
  EXPECT_STREQ(buffer.c_str(), "No MIDI IN port is open.");
}

TEST_F(ServicePlatformTest, AnErrorTextIsCutToTheRoom) {
  std::string buffer(255, ' ');
  ASSERT_EQ(service->midiOutGetErrorTextA(InvalidHandle, buffer, 8), Success);
  EXPECT_STREQ(buffer.c_str(), "No MIDI");
  EXPECT_EQ(buffer[8], ' ');
  EXPECT_EQ(service->midiOutGetErrorTextA(InvalidHandle, buffer, 0), InvalidParameter);
  std::string small(4, ' ');
  ASSERT_EQ(service->midiOutGetErrorTextA(InvalidHandle, small, 255), Success);
  EXPECT_STREQ(small.c_str(), "No ");
}

TEST(ServiceErrorTextsTest, EveryCodeHasAText) {
  for (MidiResult code = 0; code < 200; ++code) {
    EXPECT_FALSE(OutErrorText(code).empty()) << code;
    EXPECT_FALSE(InErrorText(code).empty()) << code;
    EXPECT_LT(OutErrorText(code).size(), 255U) << code;
  }
  EXPECT_EQ(OutErrorText(999), "The MIDI device gave the error 999, which is not known here.");
}

TEST(ServiceDeviceNameTest, ANameIsCutAndItsFieldEndsInZeros) {
  std::array<char, 32> field{};
  field.fill('x');
  PutDeviceName(field, "abc");
  EXPECT_TRUE(std::all_of(field.begin() + 3, field.end(), [](char c) { return c == '\0'; }));
  PutDeviceName(field, std::string(40, 'y'));
  EXPECT_EQ(std::string(field.data()), std::string(31, 'y'));
}

} // namespace
} // namespace Tessoro
