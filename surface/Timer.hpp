// A control that raises an event again and again while its form is shown.
#pragma once

#include "surface/Control.hpp"

namespace Tessoro {

struct TimerDesign {
  // Milliseconds.
  int interval = 0;
  bool enabled = true;
};

// Begins to tick when its form is first shown. The clock of the platform does the waiting.
class Timer : public Control {
public:
  Timer(Form &form, std::string_view name, const TimerDesign &design);

  ControlType Type() const override { return ControlType::Timer; }
  PropertyEntries Properties() override;
  void ResetToDesign() override;

  int Interval() const { return interval; }
  // Begins a new wait of that length.
  void SetInterval(int milliseconds);
  void SetEnabled(bool value) override;

  // Called by the form as it comes and goes.
  void FormShown();
  void FormGone();
  // Called by the clock when the wait is over.
  void Tick();

  std::function<void()> onTimer;

private:
  void Schedule();

  const TimerDesign design;
  int interval;
  bool formShown = false;
};

} // namespace Tessoro
