// The hint that comes up at start.
#pragma once

#include "surface/Controls.hpp"
#include "surface/Form.hpp"

namespace Tessoro {

// A click anywhere closes it; the check box also keeps it away for good.
class F_InfoPopUp : public Form {
public:
  explicit F_InfoPopUp(Application &app);

  // clang-format off
  Shape ShapeHint{*this, "ShapeHint", {150, 150, 5700, 2550}, ShapeKind::Panel};
  Label InfoText {*this, "InfoText", {300, 300, 5400, 1800}, {.align = LabelAlign::Center}};
  CheckBox Check1{*this, "Check1",   {1500, 2220, 255, 255}, {.caption = "Check1", .says = "Don't show this window again"}};
  Label Label1   {*this, "Label1",   {1815, 2220, 2700, 255}, {.caption = "Don't show this window again"}};
  // clang-format on

protected:
  void Form_Click() override { Unload(); }

private:
  void Check1_Click();
};

} // namespace Tessoro
