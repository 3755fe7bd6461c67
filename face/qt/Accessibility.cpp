#include "face/qt/Accessibility.hpp"

#include "face/qt/ComboBoxView.hpp"
#include "face/qt/ItemList.hpp"
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

class ListFieldDescription : public QAccessibleWidget {
public:
  explicit ListFieldDescription(ComboBoxView &view)
      : QAccessibleWidget(&view, QAccessible::ComboBox), field(view) {
    addControllingSignal(QStringLiteral("textChanged(QString)"));
  }

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? field.text() : QAccessibleWidget::text(kind);
  }
  void setText(QAccessible::Text kind, const QString &text) override {
    if (kind != QAccessible::Value)
      return;
    field.setText(text);
    emit field.textEdited(text);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.editable = true;
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = field.OpenedList() != nullptr;
    return state;
  }
  QStringList actionNames() const override {
    return QAccessibleWidget::actionNames() << showMenuAction();
  }
  void doAction(const QString &name) override {
    if (name == showMenuAction())
      field.OpenList();
    else
      QAccessibleWidget::doAction(name);
  }

private:
  ComboBoxView &field;
};

QAccessibleInterface *Describe(const QString & /*className*/, QObject *object) {
  if (auto *bar = dynamic_cast<ScrollBarView *>(object))
    return new BarDescription(*bar);
  if (auto *field = dynamic_cast<ComboBoxView *>(object))
    return new ListFieldDescription(*field);
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
