#include "face/qt/Accessibility.hpp"

#include "face/qt/LabelView.hpp"
#include "face/qt/PointerViews.hpp"
#include "face/qt/ScrollBarView.hpp"

#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>

namespace Tessoro {

namespace {

class BarDescription : public QAccessibleWidget, public QAccessibleValueInterface {
public:
  explicit BarDescription(ScrollBarView &view)
      : QAccessibleWidget(&view, QAccessible::ScrollBar), bar(view) {}

  void *interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                               : QAccessibleWidget::interface_cast(type);
  }
  QVariant currentValue() const override { return bar.Shown().Value(); }
  void setCurrentValue(const QVariant &value) override { bar.ScrollTo(value.toInt()); }
  QVariant minimumValue() const override { return std::min(bar.Shown().Min(), bar.Shown().Max()); }
  QVariant maximumValue() const override { return std::max(bar.Shown().Min(), bar.Shown().Max()); }
  QVariant minimumStepSize() const override { return 1; }

private:
  ScrollBarView &bar;
};

QAccessibleInterface *Describe(const QString & /*className*/, QObject *object) {
  if (auto *bar = dynamic_cast<ScrollBarView *>(object))
    return new BarDescription(*bar);
  if (auto *image = dynamic_cast<ImageView *>(object))
    return new QAccessibleWidget(image, QAccessible::Graphic);
  if (auto *key = dynamic_cast<NoteKeyView *>(object))
    return new QAccessibleWidget(key, QAccessible::Button, key->accessibleName());
  if (auto *frame = dynamic_cast<FrameView *>(object))
    return new QAccessibleWidget(frame, QAccessible::Grouping);
  return nullptr;
}

} // namespace

void DescribeViewsToScreenReaders() { QAccessible::installFactory(Describe); }

} // namespace Tessoro
