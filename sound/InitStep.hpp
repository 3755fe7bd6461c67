// The rows of an init: a direct send, and behind it an assignment.
#pragma once

#include "sound/SoundState.hpp"
#include "surface/Controls.hpp"

#include <span>
#include <string_view>
#include <variant>

namespace Tessoro {

class Module1;

// The direct send is what makes an init hold where the control already stood at its value; the
// assignment sends again, through the control's own handler, where it did not.
class InitStep {
public:
  struct NoSend {};

  InitStep(int parameter, int wireValue) : number(parameter), wire(wireValue) {}
  InitStep(int parameter, int wireValue, TextBox &box, std::string_view boxText)
      : number(parameter), wire(wireValue), target(&box), text(boxText) {}
  InitStep(int parameter, int wireValue, ComboBox &combo, int index)
      : number(parameter), wire(wireValue), target(&combo), value(index) {}
  InitStep(int parameter, int wireValue, ScrollBar &bar, int barValue)
      : number(parameter), wire(wireValue), target(&bar), value(barValue) {}
  InitStep(int parameter, int wireValue, Shadow &shadow, int shadowValue)
      : number(parameter), wire(wireValue), target(&shadow), value(shadowValue) {}
  InitStep(int parameter, int wireValue, std::int16_t &shadow, int shadowValue)
      : number(parameter), wire(wireValue), target(&shadow), value(shadowValue) {}
  InitStep(NoSend, TextBox &box, std::string_view boxText) : target(&box), text(boxText) {}
  InitStep(NoSend, ScrollBar &bar, int barValue) : target(&bar), value(barValue) {}
  InitStep(NoSend, CheckBox &box, int checkValue) : target(&box), value(checkValue) {}
  InitStep(NoSend, Shadow &shadow, int shadowValue) : target(&shadow), value(shadowValue) {}

  void Run(Module1 &globals) const;

private:
  using Target = std::variant<std::monostate, TextBox *, ComboBox *, ScrollBar *, CheckBox *,
                              Shadow *, std::int16_t *>;

  void Assign() const;

  // 0 for no send.
  int number = 0;
  int wire = 0;
  Target target;
  std::string_view text;
  int value = 0;
};

void RunInitSteps(std::span<const InitStep> steps, Module1 &globals);

} // namespace Tessoro
