// Everything that the system says to the synthesizer, and its two MIDI devices.
#pragma once

#include "midi/MidiService.hpp"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace Tessoro {

class Application;

// Nothing is read back, queued, merged or retried: a send has reached the service when it returns.
class MidiLink {
public:
  explicit MidiLink(Application &application) : app(application) {}

  // One parameter change to the edit buffer. A value outside 0 .. 127 is reported in a box and goes
  // out as 0. Fails with 5 for a number whose low part is no byte.
  void SendSoundParam(int number, std::int16_t value);
  void SendLongMessage(std::span<const std::uint8_t> message);
  // Velocity 0 switches the note off.
  void SendNoteOn(double note, double velocity);
  // Also puts the change mark into the main form's title. The value isn't rounded before it is
  // packed into the message.
  void SendController(int controller, double value);
  // Does nothing at all for an empty text; fails with 13 for a text that is no number.
  void SendController(int controller, std::string_view value);
  // Switches off the notes 1 to 127, sixteen times over, on the one channel.
  void SendNoteOffSweep();
  // Controller 123 from the second channel on; the last of the sixteen runs over into a program
  // change.
  void SendAllNotesOff();

  // "open" opens, any other text closes.
  void OpenCloseMidiOut(std::string_view command);
  void OpenCloseMidiThru(std::string_view command);
  // A label with "out" in it asks for the text of an OUT error.
  void ShowMidiError(std::string_view label, MidiResult code);

  // Device numbers; -1 is none chosen yet.
  int MidiOutPort = -1;
  int MidiInPort = -1;
  // 0 to 15.
  int MidiChannel = -1;
  // Saved and shown, used by no message.
  std::int16_t MidiInChannel = -1;
  MidiHandle hMidiOut = 0;
  // Keeps its value when the device is closed.
  MidiHandle hMidiIn = 0;
  std::int16_t SoundChanged = 0;

private:
  MidiService &Service() const;
  // Fails with 6 for a word beyond 32 bits.
  void SendShort(int status, double data1, double data2);

  Application &app;
};

} // namespace Tessoro
