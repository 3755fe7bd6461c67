#include "surface/LitCheckBox.hpp"

#include "shell/Application.hpp"

namespace Tessoro {

void ShowLit(CheckBox &box, bool lit) {
  box.SetBackColor(lit ? Colors::LitGreen : Colors::DimGreen);
  box.SetForeColor(lit ? Colors::Black : Colors::Grey);
}

void AttachLitCheckBoxes(std::span<const LitCheckBoxRow> rows) {
  for (const LitCheckBoxRow &row : rows)
    row.box.onClick = [row] {
      const bool checked = row.box.Value() == 1;
      ShowLit(row.box, checked);
      row.box.App().Module1.SendSoundParam(row.parameter, checked ? 1 : 0);
      row.store(row.box.Value());
    };
}

} // namespace Tessoro
