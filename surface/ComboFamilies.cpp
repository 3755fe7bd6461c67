#include "surface/ComboFamilies.hpp"

#include "shell/Application.hpp"

#include <algorithm>

namespace Tessoro {

namespace {

void SendByText(const ComboByTextRow &row) {
  Application &app = row.combo.App();
  const auto found = std::find_if(row.values.begin(), row.values.end(), [&](const auto &value) {
    return value.text == row.combo.Text();
  });
  if (found == row.values.end()) {
    app.MsgBox(std::string(row.message), MsgBoxFlags::Critical, "Internal error");
    return;
  }
  if (row.road == Road::Controller)
    app.Module1.SendController(row.number, found->wire);
  else
    app.Module1.SendSoundParam(row.number, static_cast<std::int16_t>(found->wire));
  if (row.afterwards)
    row.afterwards(found->wire);
}

} // namespace

void AttachCombos(std::span<const ComboByIndexRow> rows) {
  for (const ComboByIndexRow &row : rows) {
    row.combo.onChange = [row] {
      row.combo.App().Module1.SendSoundParam(row.parameter,
                                             static_cast<std::int16_t>(row.combo.ListIndex()));
      if (row.store)
        row.store(row.combo.ListIndex());
    };
    row.combo.onClick = row.combo.onChange;
  }
}

void AttachCombos(std::span<const ComboByTextRow> rows) {
  for (const ComboByTextRow &row : rows) {
    row.combo.onChange = [row] { SendByText(row); };
    row.combo.onClick = row.combo.onChange;
  }
}

} // namespace Tessoro
