// The state that all knobs share, since only one can be dragged at a time.
#pragma once

#include <cstdint>
#include <optional>

namespace Tessoro {

struct KnobState {
  // True between a knob's press and its release.
  bool KnobDown = false;
  // -1 while the Shift key is down, 0 else.
  std::int16_t ShiftHeld = 0;
  // How many moves of a standard drag go at step 1.
  int KnobRampLength = 6;
  // Moves left at step 1; counts down past 0. Nothing before the first press.
  std::optional<int> KnobRampCount;
  std::int16_t KnobStep = 0;
  // The fast step, 1 to 5.
  std::int16_t KnobStandardChange = 3;
  // Moves to skip between two fine steps, 1 to 5.
  int KnobFineChange = 3;
  // Moves still to skip; carries over from one drag to the next.
  int KnobFineCount = 0;
  // The pointer's Y in twips when a step was last evaluated.
  std::int16_t KnobLastY = 0;
};

} // namespace Tessoro
