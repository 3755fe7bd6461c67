#include "face/qt/Accessibility.hpp"

#include "face/qt/ComboBoxView.hpp"
#include "face/qt/DrawnDescriptions.hpp"
#include "face/qt/Ground.hpp"
#include "face/qt/ItemList.hpp"
#include "face/qt/NoteKeyView.hpp"
#include "face/qt/PointerViews.hpp"
#include "face/qt/ScrollBarView.hpp"
#include "face/qt/Text.hpp"

#include <QAccessible>
#include <QAccessibleWidget>

#include <algorithm>
#include <functional>
#include <utility>

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

// Readers learn the chosen item as they learn the text of a box.
class ListFieldDescription : public QAccessibleWidget, public QAccessibleTextInterface {
public:
  explicit ListFieldDescription(ComboBoxView &view)
      : QAccessibleWidget(&view, QAccessible::ComboBox), field(view) {
    addControllingSignal(QStringLiteral("textChanged(QString)"));
  }

  void *interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface *>(this)
                                              : QAccessibleWidget::interface_cast(type);
  }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? field.text() : QAccessibleWidget::text(kind);
  }
  QString text(int begin, int end) const override { return field.text().mid(begin, end - begin); }
  int characterCount() const override { return static_cast<int>(field.text().size()); }
  int cursorPosition() const override { return field.cursorPosition(); }
  void setCursorPosition(int position) override { field.setCursorPosition(position); }
  int selectionCount() const override { return field.hasSelectedText() ? 1 : 0; }
  void selection(int /*index*/, int *begin, int *end) const override {
    *begin = field.hasSelectedText() ? field.selectionStart() : 0;
    *end = field.hasSelectedText() ? field.selectionEnd() : 0;
  }
  void addSelection(int begin, int end) override { field.setSelection(begin, end - begin); }
  void removeSelection(int /*index*/) override { field.deselect(); }
  void setSelection(int /*index*/, int begin, int end) override { addSelection(begin, end); }
  QRect characterRect(int /*offset*/) const override { return rect(); }
  int offsetAtPoint(const QPoint &point) const override {
    return field.cursorPositionAt(field.mapFromGlobal(point));
  }
  void scrollToSubstring(int begin, int /*end*/) override { field.setCursorPosition(begin); }
  QString attributes(int /*offset*/, int *begin, int *end) const override {
    *begin = 0;
    *end = characterCount();
    return {};
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

// What is pressed and is no button of the toolkit.
class PressedDescription : public QAccessibleWidget {
public:
  PressedDescription(QWidget &widget, QAccessible::Role role, std::function<void()> onPress,
                     QString key = {})
      : QAccessibleWidget(&widget, role), press(std::move(onPress)), accessKey(std::move(key)) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Accelerator ? accessKey : QAccessibleWidget::text(kind);
  }
  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (widget()->isEnabled())
      names.prepend(pressAction());
    return names;
  }
  void doAction(const QString &name) override {
    if (name == pressAction())
      press();
    else
      QAccessibleWidget::doAction(name);
  }

private:
  const std::function<void()> press;
  const QString accessKey;
};

// A picture that can be clicked is a button; a knob is dragged, and its box is the way to its
// value.
QAccessibleInterface *DescribeImage(ImageView &image) {
  if (!image.Shown().onClick)
    return new QAccessibleWidget(&image, QAccessible::Graphic);
  return new PressedDescription(
      image, QAccessible::Button, [&image] { image.Clicked(); },
      FromModel(image.Shown().AccessKey()));
}

QAccessibleInterface *Describe(const QString & /*className*/, QObject *object) {
  if (auto *bar = dynamic_cast<ScrollBarView *>(object))
    return new BarDescription(*bar);
  if (auto *field = dynamic_cast<ComboBoxView *>(object))
    return new ListFieldDescription(*field);
  if (auto *image = dynamic_cast<ImageView *>(object))
    return DescribeImage(*image);
  if (auto *key = dynamic_cast<NoteKeyView *>(object))
    return new PressedDescription(*key, QAccessible::Button, [key] { key->Strike(); });
  if (auto *ground = dynamic_cast<Ground *>(object))
    return DescribeGround(*ground);
  return nullptr;
}

} // namespace

void DescribeViewsToScreenReaders() { QAccessible::installFactory(Describe); }

} // namespace Tessoro
