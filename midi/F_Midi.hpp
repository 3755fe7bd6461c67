// The form for choosing MIDI ports and channels. No port is open while it is loaded.
#pragma once

#include "midi/MidiService.hpp"
#include "surface/Controls.hpp"
#include "surface/Form.hpp"

#include <array>
#include <cstdint>

namespace Tessoro {

class F_Midi : public Form {
public:
  explicit F_Midi(Application &app);

  // clang-format off
  Label Bezeichnung1            {*this, "Bezeichnung1",         { 240,  240, 2400, 255}, {.caption = "MIDI-port:", .style = LabelStyle::Heading}};
  Label Label1                  {*this, "Label1",               {4380,  240, 1380, 255}, {.caption = "MIDI-channel:", .style = LabelStyle::Heading, .align = LabelAlign::Right}};
  Label Label3                  {*this, "Label3",               { 240,  630,  420, 255}, {.caption = "out:"}};
  ComboBox AuswahlMIDIPort      {*this, "AuswahlMIDIPort",      { 705,  600, 3840, 315}, {.text = "", .says = "MIDI OUT port"}};
  ComboBox AuswahlMIDIChannel   {*this, "AuswahlMIDIChannel",   {4740,  600, 1020, 315}, {.text = "", .says = "MIDI OUT channel"}};
  Label Label2                  {*this, "Label2",               { 240, 1080,  420, 255}, {.caption = "in:"}};
  ComboBox AuswahlMIDIinPort    {*this, "AuswahlMIDIinPort",    { 705, 1050, 3840, 315}, {.text = "", .says = "MIDI IN port"}};
  ComboBox AuswahlMIDIinChannel {*this, "AuswahlMIDIinChannel", {4740, 1050, 1020, 315}, {.text = "", .says = "MIDI IN channel"}};
  Shape ShapeCapabilities       {*this, "ShapeCapabilities",    { 705, 1545, 3840, 1305}, ShapeKind::Inset};
  Label Text1                   {*this, "Text1",                { 810, 1620, 3600, 255}, {.caption = "Manufacturer ID: - not set -"}};
  Label Text2                   {*this, "Text2",                { 810, 1920, 3600, 255}, {.caption = "Product ID: - not set -"}};
  Label Text3                   {*this, "Text3",                { 810, 2220, 3600, 255}, {.caption = "Driver ver.: - not set -"}};
  Label Text4                   {*this, "Text4",                { 810, 2520, 3600, 255}, {.caption = "Type: - not set -"}};
  CommandButton Command1        {*this, "Command1",             {4740, 2430, 1020, 420}, {.caption = "&Close"}};
  // clang-format on

protected:
  void Form_Load() override;

private:
  static constexpr std::size_t TableRoom = 100;

  void AuswahlMIDIPort_Click();
  void Command1_Click();
  bool ListOutDevices();
  bool ListInDevices();
  void ShowCapabilities(const MIDIOUTCAPS &record);

  // Both tables fail with 9 beyond their room.
  std::array<MIDIOUTCAPS, TableRoom> outRecords{};
  std::array<MIDIINCAPS, TableRoom> inRecords{};
};

} // namespace Tessoro
