#include "midi/F_Midi.hpp"

#include "shell/Application.hpp"
#include "surface/Conversions.hpp"

#include <algorithm>
#include <charconv>

namespace Tessoro {

namespace {

constexpr std::uint32_t CapabilitiesSize = 52;
constexpr int ChannelCount = 16;

template <typename Table> auto &RecordAt(Table &table, std::size_t index) {
  if (index >= table.size())
    throw Failure(FailureCode::SubscriptOutOfRange);
  return table[index];
}

std::string NameOf(const std::array<char, 32> &field) {
  return {field.begin(), std::find(field.begin(), field.end(), '\0')};
}

std::string HexText(std::uint32_t number) {
  std::array<char, 8> digits{};
  const auto end = std::to_chars(digits.begin(), digits.end(), number, 16).ptr;
  std::string text(digits.begin(), end);
  for (char &digit : text)
    if (digit >= 'a')
      digit = static_cast<char>(digit - 'a' + 'A');
  return text;
}

// 0x0500 reads " 5.00". The digits are taken for a decimal number, which those with letters aren't.
std::string VersionText(std::uint32_t version) {
  const std::string digits = HexText(version);
  if (digits.find_first_not_of("0123456789") != std::string::npos)
    throw Failure(FailureCode::TypeMismatch);
  const std::string number = SignedNumberText(StrictNumber(digits, '.'));
  return number.substr(0, 2) + "." + number.substr(2);
}

std::string TechnologyText(std::uint16_t technology) {
  switch (technology) {
  case 1:
    return " output port";
  case 2:
    return " internal synth";
  case 3:
    return " square wave internal synth";
  case 4:
    return " FM synth";
  case 5:
    return " MIDI mapper";
  case 7:
    return " Wavetable synth";
  default:
    return "unknown";
  }
}

} // namespace

F_Midi::F_Midi(Application &app)
    : Form(app, "F_Midi", {.caption = "MIDI settings", .width = 6000, .height = 3060}) {
  AuswahlMIDIPort.onClick = [this] { AuswahlMIDIPort_Click(); };
  AuswahlMIDIinPort.onClick = [this] { App().Module1.MidiInPort = AuswahlMIDIinPort.ListIndex(); };
  AuswahlMIDIChannel.onClick = [this] {
    App().Module1.MidiChannel = AuswahlMIDIChannel.ListIndex();
  };
  AuswahlMIDIinChannel.onChange = [this] {
    App().Module1.MidiInChannel = static_cast<std::int16_t>(AuswahlMIDIinChannel.ListIndex());
  };
  Command1.onClick = [this] { Command1_Click(); };
}

void F_Midi::Form_Load() {
  Module1 &globals = App().Module1;
  App().Display().KeepOnTop(*this);
  globals.OpenCloseMidiOut("close");
  globals.OpenCloseMidiThru("close");
  if (!ListOutDevices() || !ListInDevices())
    return;
  AuswahlMIDIPort.SetListIndex(std::max(globals.MidiOutPort, -1));
  AuswahlMIDIinPort.SetListIndex(std::max(globals.MidiInPort, -1));
  for (int channel = 1; channel <= ChannelCount; ++channel) {
    AuswahlMIDIChannel.AddItem("#" + IntegerText(channel));
    AuswahlMIDIinChannel.AddItem("#" + IntegerText(channel));
  }
  if (globals.MidiChannel > -1) {
    AuswahlMIDIChannel.SetListIndex(globals.MidiChannel);
  } else {
    AuswahlMIDIChannel.SetListIndex(0);
    globals.MidiChannel = 0;
  }
  if (globals.MidiInChannel < 0) {
    AuswahlMIDIinChannel.SetListIndex(0);
    globals.MidiInChannel = 0;
  } else {
    AuswahlMIDIinChannel.SetListIndex(globals.MidiInChannel);
  }
}

// False where a device could not be asked, which leaves the lists empty.
bool F_Midi::ListOutDevices() {
  MidiService &service = App().System().midi;
  const std::uint32_t count = service.midiOutGetNumDevs();
  Bezeichnung1.SetCaption("MIDI-port (" + IntegerText(static_cast<int>(count) + 1) + "):");
  outRecords.fill({});
  for (std::uint32_t i = 0; i < count; ++i) {
    const MidiResult result = service.midiOutGetDevCapsA(static_cast<std::int32_t>(i),
                                                         RecordAt(outRecords, i), CapabilitiesSize);
    if (result != MidiResultCode::Success) {
      App().Module1.ShowMidiError("OUTCaps", result);
      return false;
    }
  }
  service.midiOutGetDevCapsA(MidiMapper, RecordAt(outRecords, count), CapabilitiesSize);
  for (std::uint32_t i = 0; i <= count; ++i) {
    const std::string deviceName = NameOf(outRecords[i].szPname);
    PutDeviceName(outRecords[i].szPname, deviceName);
    AuswahlMIDIPort.AddItem(deviceName);
  }
  return true;
}

bool F_Midi::ListInDevices() {
  MidiService &service = App().System().midi;
  const std::uint32_t count = service.midiInGetNumDevs();
  inRecords.fill({});
  for (std::uint32_t i = 0; i < count; ++i) {
    const MidiResult result = service.midiInGetDevCapsA(static_cast<std::int32_t>(i),
                                                        RecordAt(inRecords, i), CapabilitiesSize);
    if (result != MidiResultCode::Success) {
      App().Module1.ShowMidiError("INCaps", result);
      return false;
    }
  }
  for (std::uint32_t i = 0; i < count; ++i)
    AuswahlMIDIinPort.AddItem(NameOf(inRecords[i].szPname));
  return true;
}

void F_Midi::AuswahlMIDIPort_Click() {
  if (AuswahlMIDIPort.Text().empty())
    return;
  App().Module1.SendAllNotesOff();
  App().Module1.MidiOutPort = AuswahlMIDIPort.ListIndex();
  ShowCapabilities(RecordAt(outRecords, static_cast<std::size_t>(AuswahlMIDIPort.ListIndex())));
}

void F_Midi::ShowCapabilities(const MIDIOUTCAPS &record) {
  Text1.SetCaption("Manufacturer ID: " + HexText(record.wMid) + "\r\n");
  Text2.SetCaption("Product ID: " + HexText(record.wPid) + "\r\n");
  Text3.SetCaption("Driver ver.:" + VersionText(record.vDriverVersion));
  Text4.SetCaption("Type: " + TechnologyText(record.wTechnology));
}

void F_Midi::Command1_Click() {
  if (App().Module1.MidiOutPort == -1) {
    App().MsgBox("You have to select a MIDI OUT port first!", MsgBoxFlags::Exclamation,
                 "No MIDI port set");
    return;
  }
  App().Module1.OpenCloseMidiOut("open");
  App().Module1.OpenCloseMidiThru("open");
  Unload();
}

} // namespace Tessoro
