#include "tests/random/HandlerWatch.hpp"

#include "surface/Timer.hpp"

namespace Tessoro::Random {

HandlerWatch::HandlerWatch(const Application &app) {
  for (const Form *form : app.Forms())
    for (Control *control : form->Controls())
      WatchControl(*control);
}

void HandlerWatch::WatchControl(Control &control) {
  const auto watchAs = [&control]<typename Type>(Type *, const auto &watch) {
    if (auto *typed = dynamic_cast<Type *>(&control))
      watch(*typed);
  };
  watchAs(static_cast<TextBox *>(nullptr), [this](TextBox &box) {
    Watch(box.onChange, [this, &box] {
      if (onTextChange)
        onTextChange(box);
    });
    Watch(box.onClick);
    Watch(box.onDblClick);
    Watch(box.onKeyPress);
  });
  watchAs(static_cast<ComboBox *>(nullptr), [this](ComboBox &list) {
    Watch(list.onChange);
    Watch(list.onClick);
  });
  watchAs(static_cast<ScrollBar *>(nullptr), [this](ScrollBar &bar) { Watch(bar.onChange); });
  watchAs(static_cast<CheckBox *>(nullptr), [this](CheckBox &box) { Watch(box.onClick); });
  watchAs(static_cast<CommandButton *>(nullptr),
          [this](CommandButton &button) { Watch(button.onClick); });
  watchAs(static_cast<MouseControl *>(nullptr), [this](MouseControl &target) {
    Watch(target.onMouseDown);
    Watch(target.onMouseMove);
    Watch(target.onMouseUp);
  });
  watchAs(static_cast<Image *>(nullptr), [this](Image &image) {
    Watch(image.onClick);
    Watch(image.onDblClick);
  });
  watchAs(static_cast<Label *>(nullptr), [this](Label &label) {
    Watch(label.onChange);
    Watch(label.onClick);
  });
  watchAs(static_cast<Menu *>(nullptr), [this](Menu &entry) { Watch(entry.onClick); });
  watchAs(static_cast<Frame *>(nullptr), [this](Frame &frame) { Watch(frame.onClick); });
  watchAs(static_cast<Timer *>(nullptr), [this](Timer &timer) { Watch(timer.onTimer); });
  watchAs(static_cast<DriveListBox *>(nullptr),
          [this](DriveListBox &list) { Watch(list.onChange); });
  watchAs(static_cast<DirListBox *>(nullptr), [this](DirListBox &list) { Watch(list.onChange); });
  watchAs(static_cast<FileListBox *>(nullptr), [this](FileListBox &list) {
    Watch(list.onClick);
    Watch(list.onDblClick);
  });
}

} // namespace Tessoro::Random
