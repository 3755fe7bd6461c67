// The widget that shows one control of a form.
#pragma once

#include "face/qt/Gate.hpp"
#include "face/qt/Scale.hpp"
#include "surface/Control.hpp"
#include "surface/Property.hpp"

class QWidget;

namespace Tessoro {

class PictureStore;

// What all widgets of a run share.
struct Surroundings {
  const Gate &gate;
  PictureStore &pictures;
};

// A view holds no value of its own: it shows what the control says, and after each act of the user
// it shows it again, whatever the toolkit has made of the act.
class ControlView {
public:
  ControlView(Control &shown, const Surroundings &around);
  virtual ~ControlView() = default;
  ControlView(const ControlView &) = delete;
  ControlView &operator=(const ControlView &) = delete;

  virtual QWidget &Widget() = 0;
  // The property has changed.
  virtual void Show(Property property);
  // Shows the whole control for the first time, in its place. Call behind SetScale.
  void ShowAll();
  // Follows a new zoom.
  virtual void SetScale(const Scale &newScale);

  // A message box takes the pointer and the keys away: lets go of what the user holds.
  virtual void LetGo() {}
  // The ports may shut now: ends a note that is held.
  virtual void EndNote() {}
  // What the mouse holds can't be let go of any more: tells its release now.
  virtual void ReleaseButtons() {}
  // The box has gone, and so has the handler that raised it.
  virtual void BoxHasGone() {}

  const Tessoro::Scale &Scale() const { return scale; }

protected:
  // The place of the control as it stands now.
  virtual Place CurrentPlace() const;
  virtual void ShowContent() {}
  void ShowPlace();

  template <typename Act> void Enter(Act &&act) { surroundings.gate.Pass(act); }
  bool CanEnter() const { return surroundings.gate.IsOpen(); }
  PictureStore &Pictures() const { return surroundings.pictures; }

private:
  Control &control;
  const Surroundings surroundings;
  Tessoro::Scale scale;
};

} // namespace Tessoro
