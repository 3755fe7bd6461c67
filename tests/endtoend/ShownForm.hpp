// A form of the editor as it stands on a display, under the test's mouse and keys.
#pragma once

#include "surface/Form.hpp"
#include "tests/endtoend/VirtualDisplay.hpp"

#include <string>

namespace Tessoro {
class ComboBox;
} // namespace Tessoro

namespace Tessoro::Tests {

// Where in a control, each way from 0 to 1; beyond that it is outside.
struct Share {
  double x = 0.5;
  double y = 0.5;
};

// Controls are found where their declaration says, in a form of the test's own that is never shown,
// at the zoom that the window has.
class ShownForm {
public:
  // Waits until there is a window under such a title, of one process or of whichever.
  ShownForm(const VirtualDisplay &shownOn, const std::string &titlePattern, const Form &itsDesign,
            pid_t itsOwner = 0);

  // Gives it the keyboard again, as after a message box.
  void Focus() const { display.Focus(window); }
  void Move(Point leftTop) const { display.Move(window, leftTop); }
  void WaitUntilGone() const { display.WaitUntilGone(title, owner); }

  Area WindowArea() const { return display.AreaOf(window); }
  // In the window.
  Area AreaOf(const Control &control) const;
  Spot SpotOn(const Control &control, Share place = {}) const;
  void PointAt(const Control &control, Share place = {}) const;
  void Press(const Control &control, Share place = {}) const;
  void Release() const { display.ReleaseButton(); }
  void Click(const Control &control, Share place = {}) const;
  void DoubleClick(const Control &control, Share place = {}) const;

  // Takes the place of what stood in a box.
  void Type(const Control &box, const std::string &keys) const;
  // Opens the list with the mouse and clicks the item there.
  void Pick(const ComboBox &list, int index) const;
  // From item to item with the arrow keys, down or up.
  void Step(const ComboBox &list, int steps) const;
  void PressKeys(const std::string &keys) const;

private:
  int Pixels(int twips) const;

  const VirtualDisplay &display;
  const std::string title;
  const Form &design;
  const pid_t owner;
  std::string window;
  double zoom = 1;
  int heightOfMenu = 0;
};

} // namespace Tessoro::Tests
