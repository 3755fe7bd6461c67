// A scroll bar, lying or standing.
#pragma once

#include "surface/Control.hpp"

namespace Tessoro {

struct ScrollBarDesign {
  // Min is the value at the left or the top, and may be above Max.
  int min = 0;
  int max = 32767;
  int largeChange = 1;
  // Not given: 0, or Min where 0 is outside the limits.
  int value = 0;
  std::string_view toolTip = {};
  std::string_view says = {};
  bool enabled = true;
};

// Raises Change for a number that differs.
class ScrollBar : public Control {
public:
  PropertyEntries Properties() override;
  void ResetToDesign() override;

  int Min() const { return limits.min; }
  int Max() const { return limits.max; }
  int LargeChange() const { return limits.largeChange; }
  int Value() const { return value; }
  // Fails with 380 outside the limits.
  void SetValue(int number);

  bool HasValue(int number) const;
  // The user has moved the bar there and let go.
  Reach UserScroll(int number);

  std::function<void()> onChange;

protected:
  ScrollBar(Form &form, std::string_view name, Place place, const ScrollBarDesign &design);

private:
  int DesignValue() const;

  const ScrollBarDesign limits;
  int value;
};

class HScrollBar : public ScrollBar {
public:
  HScrollBar(Form &form, std::string_view name, Place place, const ScrollBarDesign &design)
      : ScrollBar(form, name, place, design) {}
  ControlType Type() const override { return ControlType::HScrollBar; }
};

class VScrollBar : public ScrollBar {
public:
  VScrollBar(Form &form, std::string_view name, Place place, const ScrollBarDesign &design)
      : ScrollBar(form, name, place, design) {}
  ControlType Type() const override { return ControlType::VScrollBar; }
};

} // namespace Tessoro
