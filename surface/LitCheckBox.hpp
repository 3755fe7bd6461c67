// Check boxes that light up green, and send whether they are checked.
#pragma once

#include "surface/Controls.hpp"

#include <functional>
#include <span>

namespace Tessoro {

// The colours of such a box.
void ShowLit(CheckBox &box, bool lit);

struct LitCheckBoxRow {
  CheckBox &box;
  int parameter;
  // Runs behind the send, with the value of the box.
  std::function<void(int value)> store;
};

void AttachLitCheckBoxes(std::span<const LitCheckBoxRow> rows);

} // namespace Tessoro
