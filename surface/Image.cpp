#include "surface/Image.hpp"

#include "surface/UserAct.hpp"

namespace Tessoro {

Reach MouseControl::UserMouseDown(const MouseEvent &event) {
  return Perform([this, &event] {
    if (onMouseDown)
      onMouseDown(event);
  });
}

Reach MouseControl::UserMouseMove(const MouseEvent &event) {
  return Perform([this, &event] {
    if (onMouseMove)
      onMouseMove(event);
  });
}

Reach MouseControl::UserMouseUp(const MouseEvent &event) {
  return Perform([this, &event] {
    if (onMouseUp)
      onMouseUp(event);
  });
}

Image::Image(Form &form, std::string_view name, Place place, const ImageDesign &design)
    : MouseControl(form, name, place,
                   {.toolTip = design.toolTip,
                    .says = design.says,
                    .enabled = design.enabled,
                    .visible = design.visible}),
      picture(design.picture), accessKey(design.accessKey) {}

PropertyEntries Image::Properties() {
  PropertyEntries entries = Control::Properties();
  for (PropertyEntry &entry : entries)
    entry.listed = entry.listed || entry.name == "Visible";
  return entries;
}

Reach Image::UserClick() {
  return Perform([this] {
    if (onClick)
      onClick();
  });
}

Reach Image::UserDblClick() {
  return Perform([this] {
    if (onDblClick)
      onDblClick();
  });
}

NoteKey::NoteKey(Form &form, std::string_view name, Place place, const NoteKeyDesign &design)
    : MouseControl(form, name, place, {.says = design.says}), caption(design.caption) {}

} // namespace Tessoro
