// What is measured, by the names under which the table finds it again.
#pragma once

#include <array>
#include <string>

namespace Tessoro::Benches {

// One change of a box, from the write of its text to the return of the service's last operation.
inline constexpr const char *ChangeAtNullService = "change at a null service";
// The same so many times in a row.
std::string ChangesAtNullService(int changes);
inline constexpr std::array<int, 3> NumbersOfChanges = {1000, 10000, 100000};
// All messages of the first init of a run.
inline constexpr const char *InitAtNullService = "init at a null service";
// A drag of a knob, from each move of the pointer to the bytes of its step.
inline constexpr const char *DragAtNullService = "knob drag at a null service";
inline constexpr int MovesInDrag = 1000;
inline constexpr const char *ChangeAfterRest = "change at a null service after a rest";
inline constexpr const char *ChangeThroughJack = "change through the service over JACK";
// The service's part of it: prepare, send and release of ten bytes.
inline constexpr const char *MessageThroughJack = "message through the service over JACK";
// The same for the first message of a row, which finds the wire's thread asleep.
inline constexpr const char *FirstMessageThroughJack = "first message of a row over JACK";
// A thread that sleeps on a condition, and one that wakes it.
inline constexpr const char *WakeOfThread = "wake of a thread";
// The same init up to the return of its last send.
inline constexpr const char *InitAfterRest = "init at a null service after a rest";
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
void RegisterWire(int repetitions);

} // namespace Tessoro::Benches
