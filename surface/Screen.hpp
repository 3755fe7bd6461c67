// What the control layer needs of whatever shows it: a window system, or a double without a screen.
//
// All texts are single bytes, Windows-1252.
#pragma once

#include "surface/Property.hpp"

#include <cstdint>
#include <string>

namespace Tessoro {

class Control;
class Failure;
class Form;
class Timer;

enum class MsgBoxButton : std::uint8_t { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

// The flags of a message box: the sum of one set of buttons and one icon.
namespace MsgBoxFlags {
inline constexpr int OkOnly = 0;
inline constexpr int OkCancel = 1;
inline constexpr int YesNo = 4;
inline constexpr int Critical = 16;
inline constexpr int Question = 32;
inline constexpr int Exclamation = 48;
inline constexpr int Information = 64;
inline constexpr int ButtonMask = 15;
inline constexpr int IconMask = 112;
} // namespace MsgBoxFlags

enum class MousePointer : std::uint8_t { Default, Hourglass };

// How a run ended: by the menu, with its last form, or by a failure that nothing trapped.
enum class ProgramEnd : std::uint8_t { Quit, Closed, Failure };

class Screen {
public:
  virtual ~Screen() = default;

  // Before the form's Form_Load.
  virtual void FormLoading(Form &form) = 0;
  virtual void FormShown(Form &form) = 0;
  // After the form's Form_Unload.
  virtual void FormUnloaded(Form &form) = 0;
  virtual void CaptionChanged(Form &form) = 0;
  // Also called for forms that aren't shown.
  virtual void PropertyChanged(Control &control, Property property) = 0;
  // Keeps the form above all other windows, as far as the platform allows.
  virtual void KeepOnTop(Form &form) = 0;

  // Returns when the user has answered.
  virtual MsgBoxButton MsgBox(const std::string &text, int flags, const std::string &title) = 0;
  virtual void SetMousePointer(MousePointer pointer) = 0;

  // The run is over. `failure` is what ended it, or null; it has not been shown yet.
  virtual void ProgramEnded(ProgramEnd end, const Failure *failure) = 0;
};

// Waits on behalf of timers, and calls Timer::Tick again and again until told to stop.
class Clock {
public:
  virtual ~Clock() = default;

  // Begins anew for a timer that waits already.
  virtual void StartTimer(Timer &timer, int milliseconds) = 0;
  virtual void StopTimer(Timer &timer) = 0;
};

} // namespace Tessoro
