#include "surface/Timer.hpp"

#include "shell/Application.hpp"

namespace Tessoro {

Timer::Timer(Form &form, std::string_view name, const TimerDesign &timerDesign)
    : Control(form, name, {}, {.enabled = timerDesign.enabled}), design(timerDesign),
      interval(timerDesign.interval) {}

PropertyEntries Timer::Properties() {
  PropertyEntries entries = Control::Properties();
  entries.push_back(NumberProperty(
      "Interval", [this] { return interval; }, nullptr));
  return entries;
}

void Timer::ResetToDesign() {
  Control::ResetToDesign();
  interval = design.interval;
}

void Timer::SetEnabled(bool value) {
  if (value == Enabled())
    return;
  Control::SetEnabled(value);
  Schedule();
}

void Timer::SetInterval(int milliseconds) {
  interval = milliseconds;
  Schedule();
}

void Timer::FormShown() {
  if (formShown)
    return;
  formShown = true;
  Schedule();
}

void Timer::FormGone() {
  formShown = false;
  Schedule();
}

void Timer::Schedule() {
  if (formShown && Enabled() && interval > 0)
    App().System().clock.StartTimer(*this, interval);
  else
    App().System().clock.StopTimer(*this);
}

void Timer::Tick() {
  App().Event([this] {
    if (onTimer)
      onTimer();
  });
}

} // namespace Tessoro
