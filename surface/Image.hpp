// What the mouse presses without giving it the focus: pictures and note keys.
#pragma once

#include "surface/Control.hpp"

namespace Tessoro {

// A press, a move or a release. X and Y are twips relative to the control, Y growing downward.
struct MouseEvent {
  int button = 1;
  int shift = 0;
  float x = 0;
  float y = 0;
};

// From press to release the pressed control keeps receiving moves, wherever the pointer is.
class MouseControl : public Control {
public:
  Reach UserMouseDown(const MouseEvent &event);
  Reach UserMouseMove(const MouseEvent &event);
  Reach UserMouseUp(const MouseEvent &event);

  std::function<void(const MouseEvent &)> onMouseDown;
  std::function<void(const MouseEvent &)> onMouseMove;
  std::function<void(const MouseEvent &)> onMouseUp;

protected:
  using Control::Control;
};

struct ImageDesign {
  // Names the picture; the face knows how it looks.
  std::string_view picture = {};
  std::string_view toolTip = {};
  std::string_view says = {};
  bool enabled = true;
  bool visible = true;
  // As "Alt+R": clicks the image, which can't take the focus.
  std::string_view accessKey = {};
};

class Image : public MouseControl {
public:
  Image(Form &form, std::string_view name, Place place, const ImageDesign &design);

  ControlType Type() const override { return ControlType::Image; }
  PropertyEntries Properties() override;
  std::string_view Picture() const { return picture; }
  std::string_view AccessKey() const { return accessKey; }

  // The events alone, behind the presses and releases that go with them.
  Reach UserClick();
  Reach UserDblClick();

  std::function<void()> onClick;
  std::function<void()> onDblClick;

private:
  const std::string_view picture;
  const std::string_view accessKey;
};

struct NoteKeyDesign {
  std::string_view caption = {};
  std::string_view says = {};
};

class NoteKey : public MouseControl {
public:
  NoteKey(Form &form, std::string_view name, Place place, const NoteKeyDesign &design);

  ControlType Type() const override { return ControlType::NoteKey; }
  std::string_view Caption() const { return caption; }

private:
  const std::string_view caption;
};

} // namespace Tessoro
