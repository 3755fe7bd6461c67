#include "midi/MidiLink.hpp"

#include "shell/Application.hpp"
#include "surface/Conversions.hpp"

#include <algorithm>
#include <array>
#include <cctype>
#include <limits>

namespace Tessoro {

namespace {

constexpr int NoteStatus = 144;
constexpr int ControllerStatus = 176;
constexpr int HighestNote = 127;
constexpr int SweepRounds = 16;
constexpr std::uint32_t AllNotesOffBase = 31664; // 0x7BB0; the status byte is counted up from here
constexpr std::uint32_t HeaderBaseSize = 24;
constexpr std::uint32_t ErrorTextRoom = 255;

struct ParameterAddress {
  int high;
  int low;
};

// The numbering has a gap at 256, so the third block begins one later than the second ends.
ParameterAddress AddressOf(int number) {
  constexpr int secondBlock = 128;
  constexpr int thirdBlock = 257;
  if (number >= thirdBlock)
    return {2, number - thirdBlock};
  if (number >= secondBlock)
    return {1, number - secondBlock};
  if (number >= 0)
    return {0, number};
  return {0, 0};
}

bool ContainsOut(std::string_view label) {
  constexpr std::string_view out = "out";
  return std::search(label.begin(), label.end(), out.begin(), out.end(), [](char left, char right) {
           return std::tolower(static_cast<unsigned char>(left)) == right;
         }) != label.end();
}

} // namespace

MidiService &MidiLink::Service() const { return app.System().midi; }

void MidiLink::SendSoundParam(int number, std::int16_t value) {
  constexpr int highestValue = 127;
  if (value < 0 || value > highestValue) {
    app.MsgBox("Wrong SysEx value, please report this error!", MsgBoxFlags::Information,
               "Error - Application will continue");
    value = 0;
  }
  const ParameterAddress address = AddressOf(number);
  if (address.low > std::numeric_limits<std::uint8_t>::max())
    throw Failure(FailureCode::InvalidProcedureCall);
  const std::array<std::uint8_t, 10> message{0xF0,
                                             0x3E,
                                             0x10,
                                             0x00,
                                             0x20,
                                             0x00,
                                             static_cast<std::uint8_t>(address.high),
                                             static_cast<std::uint8_t>(address.low),
                                             static_cast<std::uint8_t>(value),
                                             0xF7};
  SendLongMessage(message);
  SoundChanged = 1;
}

void MidiLink::SendLongMessage(std::span<const std::uint8_t> message) {
  MIDIHDR header;
  header.lpData = message.data();
  header.dwBufferLength = static_cast<std::uint32_t>(message.size());
  const std::uint32_t size = HeaderBaseSize + header.dwBufferLength;

  MidiResult result = Service().midiOutPrepareHeader(hMidiOut, header, size);
  if (result != MidiResultCode::Success) {
    ShowMidiError("midiOutPrepareHeader", result);
    return;
  }
  result = Service().midiOutLongMsg(hMidiOut, header, size);
  if (result != MidiResultCode::Success)
    ShowMidiError("midiOutLongMsg", result);
  else
    header.dwFlags = MidiHeaderDone; // nobody waits for the driver to say so
  result = Service().midiOutUnprepareHeader(hMidiOut, header, size);
  if (result != MidiResultCode::Success)
    ShowMidiError("midiOutUnprepareHeader", result);
}

void MidiLink::SendShort(int status, double data1, double data2) {
  const std::int64_t word =
      RoundHalfEven(0.0 + status + MidiChannel + 256.0 * data1 + 65536.0 * data2);
  if (word > std::numeric_limits<std::int32_t>::max() ||
      word < std::numeric_limits<std::int32_t>::min())
    throw Failure(FailureCode::Overflow);
  Service().midiOutShortMsg(hMidiOut, static_cast<std::uint32_t>(static_cast<std::int32_t>(word)));
}

void MidiLink::SendNoteOn(double note, double velocity) { SendShort(NoteStatus, note, velocity); }

void MidiLink::SendController(int controller, double value) {
  SendShort(ControllerStatus, controller, value);
  app.F_Tessoro.ShowChangeMark();
}

void MidiLink::SendController(int controller, std::string_view value) {
  if (!value.empty())
    SendController(controller, app.StrictNumber(value));
}

void MidiLink::SendNoteOffSweep() {
  for (int round = 0; round < SweepRounds; ++round)
    for (int note = 1; note <= HighestNote; ++note)
      SendNoteOn(note, 0);
}

void MidiLink::SendAllNotesOff() {
  for (std::uint32_t i = 1; i <= 16; ++i)
    Service().midiOutShortMsg(hMidiOut, AllNotesOffBase + i);
}

void MidiLink::OpenCloseMidiOut(std::string_view command) {
  if (command == "open") {
    const MidiResult result = Service().midiOutOpen(hMidiOut, MidiOutPort, 1, 0, 0);
    if (result != MidiResultCode::Success)
      ShowMidiError("midiOUT_Open", result);
    return;
  }
  if (hMidiOut == 0)
    return;
  const MidiResult result = Service().midiOutClose(hMidiOut);
  hMidiOut = 0;
  if (result != MidiResultCode::Success)
    ShowMidiError("midiOUT_Close", result);
}

void MidiLink::OpenCloseMidiThru(std::string_view command) {
  if (command == "open") {
    if (hMidiOut == 0)
      OpenCloseMidiOut("open");
    if (hMidiOut == 0)
      return;
    MidiResult result = Service().midiInOpen(hMidiIn, MidiInPort, 0, 0, 0);
    if (result != MidiResultCode::Success) {
      ShowMidiError("midiTHRU_Open", result);
      return;
    }
    result = Service().midiConnect(hMidiIn, hMidiOut);
    if (result != MidiResultCode::Success)
      ShowMidiError("midiConnect", result);
    Service().midiInStart(hMidiIn);
    return;
  }
  if (hMidiIn == 0)
    return;
  Service().midiInStop(hMidiIn);
  if (hMidiOut != 0) {
    const MidiResult result = Service().midiDisconnect(hMidiIn, hMidiOut);
    if (result != MidiResultCode::Success)
      ShowMidiError("midiDisconnect", result);
  }
  const MidiResult result = Service().midiInClose(hMidiIn);
  if (result != MidiResultCode::Success)
    ShowMidiError("midiTHRU_Close", result);
}

void MidiLink::ShowMidiError(std::string_view label, MidiResult code) {
  std::string errorText(ErrorTextRoom, ' ');
  if (ContainsOut(label))
    Service().midiOutGetErrorTextA(code, errorText, ErrorTextRoom);
  else
    Service().midiInGetErrorTextA(code, errorText, ErrorTextRoom);
  errorText.resize(std::min(errorText.find('\0'), errorText.size()));
  app.MsgBox("vrn midi out detection:\r\n" + errorText + "\r\n", MsgBoxFlags::OkOnly,
             app.System().title);
}

} // namespace Tessoro
