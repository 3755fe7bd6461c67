#include "face/qt/ControlView.hpp"

#include "face/qt/Text.hpp"

#include <QWidget>

namespace Tessoro {

ControlView::ControlView(Control &shown, const Surroundings &around)
    : control(shown), surroundings(around) {}

void ControlView::ShowAll() {
  QWidget &widget = Widget();
  if (!control.ToolTipText().empty())
    widget.setToolTip(FromModel(control.ToolTipText()));
  if (!control.Says().empty())
    widget.setAccessibleName(FromModel(control.Says()));
  widget.setEnabled(control.Enabled());
  if (!control.Visible())
    widget.hide(); // the others come with their form
  ShowContent();
}

void ControlView::Show(Property property) {
  switch (property) {
  case Property::Enabled:
    Widget().setEnabled(control.Enabled());
    break;
  case Property::Visible:
    Widget().setVisible(control.Visible());
    break;
  case Property::Width:
    ShowPlace();
    break;
  default:
    ShowContent();
  }
}

void ControlView::SetScale(const Tessoro::Scale &newScale) {
  scale = newScale;
  ShowPlace();
}

Place ControlView::CurrentPlace() const { return control.DesignPlace(); }

void ControlView::ShowPlace() { Widget().setGeometry(scale.Rect(CurrentPlace())); }

} // namespace Tessoro
