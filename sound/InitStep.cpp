#include "sound/InitStep.hpp"

#include "sound/Module1.hpp"

namespace Tessoro {

void InitStep::Run(Module1 &globals) const {
  if (number != 0)
    globals.SendSoundParam(number, static_cast<std::int16_t>(wire));
  Assign();
}

void InitStep::Assign() const {
  if (const auto *box = std::get_if<TextBox *>(&target))
    (*box)->SetText(text);
  else if (const auto *combo = std::get_if<ComboBox *>(&target))
    (*combo)->SetListIndex(value);
  else if (const auto *bar = std::get_if<ScrollBar *>(&target))
    (*bar)->SetValue(value);
  else if (const auto *check = std::get_if<CheckBox *>(&target))
    (*check)->SetValue(value);
  else if (const auto *shadow = std::get_if<Shadow *>(&target))
    (*shadow)->SetNumber(value);
  else if (const auto *integer = std::get_if<std::int16_t *>(&target))
    **integer = static_cast<std::int16_t>(value);
}

void RunInitSteps(std::span<const InitStep> steps, Module1 &globals) {
  for (const InitStep &step : steps)
    step.Run(globals);
}

} // namespace Tessoro
