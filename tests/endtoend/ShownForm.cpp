#include "tests/endtoend/ShownForm.hpp"

#include "surface/ComboBox.hpp"
#include "tests/endtoend/Waiting.hpp"

#include <cmath>
#include <cstdlib>

namespace Tessoro::Tests {
namespace {

constexpr Share OnText{.x = 0.3};
constexpr Share OnArrow{.x = 0.95};

constexpr double TwipsPerPixel = 15;

} // namespace

ShownForm::ShownForm(const VirtualDisplay &shownOn, const std::string &titlePattern,
                     const Form &itsDesign, pid_t itsOwner)
    : display(shownOn), title(titlePattern), design(itsDesign), owner(itsOwner),
      window(display.WaitForWindow(title, owner)) {
  Focus();
  const Area area = display.AreaOf(window);
  zoom = area.width * TwipsPerPixel / design.Design().width;
  heightOfMenu = area.height - Pixels(design.Design().height);
}

int ShownForm::Pixels(int twips) const {
  return static_cast<int>(std::lround(twips * zoom / TwipsPerPixel));
}

// Edges are rounded and not sizes.
Area ShownForm::AreaOf(const Control &control) const {
  const Place &place = control.DesignPlace();
  const int left = Pixels(place.left);
  const int top = Pixels(place.top);
  return {left, heightOfMenu + top, Pixels(place.left + place.width) - left,
          Pixels(place.top + place.height) - top};
}

Spot ShownForm::SpotOn(const Control &control, Share place) const {
  const Area area = AreaOf(control);
  return {{.x = area.left + static_cast<int>(std::lround(place.x * (area.width - 1))),
           .y = area.top + static_cast<int>(std::lround(place.y * (area.height - 1)))},
          window};
}

void ShownForm::PointAt(const Control &control, Share place) const {
  display.PointAt(SpotOn(control, place));
}

void ShownForm::Press(const Control &control, Share place) const {
  display.Press(SpotOn(control, place));
}

void ShownForm::Click(const Control &control, Share place) const {
  display.Click(SpotOn(control, place));
}

void ShownForm::DoubleClick(const Control &control, Share place) const {
  display.DoubleClick(SpotOn(control, place));
}

void ShownForm::Type(const Control &box, const std::string &keys) const {
  Click(box, OnText);
  PressKeys("End shift+Home " + keys);
}

// The list is a window of its own, below the field.
void ShownForm::Pick(const ComboBox &list, int index) const {
  Click(list, OnArrow);
  constexpr Share below{.y = 1.5};
  std::string opened;
  WaitFor("the list of " + list.Name(), [&] {
    PointAt(list, below);
    opened = display.WindowUnderPointer();
    return opened != window;
  });
  const Area area = display.AreaOf(opened);
  const int items = static_cast<int>(list.List().size());
  display.Click({{.x = area.width / 2, .y = (2 * index + 1) * area.height / (2 * items)}, opened});
  WaitFor("the end of the list of " + list.Name(),
          [&] { return display.WindowUnderPointer() != opened; });
}

void ShownForm::Step(const ComboBox &list, int steps) const {
  Click(list, OnText);
  for (int i = 0; i < std::abs(steps); ++i)
    PressKeys(steps < 0 ? "Up" : "Down");
}

void ShownForm::PressKeys(const std::string &keys) const { display.PressKeys(keys); }

} // namespace Tessoro::Tests
