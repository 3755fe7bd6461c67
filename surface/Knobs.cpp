#include "surface/Knobs.hpp"

#include "shell/Application.hpp"
#include "surface/Conversions.hpp"

namespace Tessoro {

namespace {

// Down reads the box strictly, so that it fails on one that holds no number; up does not.
void StepDown(const KnobRow &row, KnobState &state, float y, int step) {
  if (y <= static_cast<float>(state.KnobLastY))
    return;
  if (NumericPrefix(row.box.Text()) > row.lower)
    row.box.SetText(NumberText(row.box.App().StrictNumber(row.box.Text()) - step));
  state.KnobLastY = RoundInteger(y);
}

void StepUp(const KnobRow &row, KnobState &state, float y, int step) {
  if (y >= static_cast<float>(state.KnobLastY))
    return;
  if (NumericPrefix(row.box.Text()) < row.upper)
    row.box.SetText(NumberText(NumericPrefix(row.box.Text()) + step));
  state.KnobLastY = RoundInteger(y);
}

// The ramp runs out with every move, whether or not it makes a step.
void StandardMove(const KnobRow &row, KnobState &state, float y) {
  const int rampCount = state.KnobRampCount.value_or(0);
  state.KnobStep = rampCount > 0 ? std::int16_t{1} : state.KnobStandardChange;
  state.KnobRampCount = rampCount - 1;
  StepDown(row, state, y, state.KnobStep);
  StepUp(row, state, y, state.KnobStep);
}

void FineMove(const KnobRow &row, KnobState &state, float y) {
  if (state.KnobFineCount != 0) {
    state.KnobFineCount -= 1;
    if (state.KnobFineCount < 0)
      state.KnobFineCount = 0;
    return;
  }
  StepDown(row, state, y, 1);
  StepUp(row, state, y, row.fineStepsRaise ? 1 : 0);
  state.KnobFineCount = state.KnobFineChange;
}

void Knob_MouseDown(const KnobRow &row, const MouseEvent &event) {
  KnobState &state = row.box.App().Module1;
  state.KnobDown = true;
  state.KnobLastY = RoundInteger(event.y);
  state.KnobRampCount = state.KnobRampLength;
}

void Knob_MouseMove(const KnobRow &row, const MouseEvent &event) {
  KnobState &state = row.box.App().Module1;
  if (!state.KnobDown)
    return;
  if (state.ShiftHeld == -1)
    FineMove(row, state, event.y);
  else
    StandardMove(row, state, event.y);
}

} // namespace

void AttachKnobs(std::span<const KnobRow> rows) {
  for (const KnobRow &row : rows) {
    row.knob.onMouseDown = [row](const MouseEvent &event) { Knob_MouseDown(row, event); };
    row.knob.onMouseMove = [row](const MouseEvent &event) { Knob_MouseMove(row, event); };
    row.knob.onMouseUp = [row](const MouseEvent &) { row.box.App().Module1.KnobDown = false; };
    if (row.doubleClick)
      row.knob.onDblClick = [row] { row.box.SetText(IntegerText(*row.doubleClick)); };
  }
}

} // namespace Tessoro
