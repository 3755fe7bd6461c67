// What is measured, by the names under which the table finds it again.
#pragma once

namespace Tessoro::Benches {

// One change of a box, from the write of its text to the return of the service's last operation.
inline constexpr const char *ChangeAtNullService = "change at a null service";
// All messages of the first init of a run.
inline constexpr const char *InitAtNullService = "init at a null service";
// A drag of a knob, from each move of the pointer to the bytes of its step.
inline constexpr const char *DragAtNullService = "knob drag at a null service";
inline constexpr int MovesInDrag = 1000;
inline constexpr const char *ChangeThroughJack = "change through the service over JACK";
// The service's part of it: prepare, send and release of ten bytes.
inline constexpr const char *MessageThroughJack = "message through the service over JACK";
// The same init up to the return of its last send.
inline constexpr const char *InitThroughJack = "init through the service over JACK";
// RtMidiOut::sendMessage of the same ten bytes.
inline constexpr const char *BareMessageOverJack = "bare sendMessage over JACK";
// What a bare call makes of an init: so many changes come in a row.
inline constexpr int MessagesInRow = 310;

// A sound file of version 1.5, and no more than the reading and the writing of its bytes.
inline constexpr const char *LoadOfSound = "load of a sound";
inline constexpr const char *BareReadOfSound = "bare read of a sound";
inline constexpr const char *SaveOfSound = "save of a sound";
inline constexpr const char *BareWriteOfSound = "bare write of a sound";

// The name of the counter of heap allocations for one change, or for one message of an init.
inline constexpr const char *Allocations = "allocations";

void RegisterChange();
void RegisterFiles();
void RegisterInit();
void RegisterKnob();
// Needs a JACK server, as long as anything is measured.
void RegisterWire();

} // namespace Tessoro::Benches
