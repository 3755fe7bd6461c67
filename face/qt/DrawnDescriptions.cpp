#include "face/qt/DrawnDescriptions.hpp"

#include "face/qt/DrawnLabel.hpp"
#include "face/qt/FormWindow.hpp"
#include "face/qt/Ground.hpp"
#include "face/qt/Text.hpp"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>

#include <unordered_map>

namespace Tessoro {

namespace {

class DrawnDescription : public QAccessibleInterface {
public:
  DrawnDescription(Ground &under, const DrawnControl &described)
      : ground(&under), drawn(described) {}

  bool isValid() const override { return ground != nullptr; }
  QObject *object() const override { return nullptr; }
  QWindow *window() const override { return ground->window()->windowHandle(); }

  QAccessibleInterface *parent() const override {
    return QAccessible::queryAccessibleInterface(ground);
  }
  int childCount() const override { return 0; }
  QAccessibleInterface *child(int /*index*/) const override { return nullptr; }
  QAccessibleInterface *childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  int indexOfChild(const QAccessibleInterface * /*child*/) const override { return -1; }

  QAccessible::Role role() const override {
    return Label() == nullptr ? QAccessible::Grouping : QAccessible::StaticText;
  }
  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Description)
      return FromModel(drawn.Shown().ToolTipText());
    return kind == QAccessible::Name ? Name() : QString();
  }
  void setText(QAccessible::Text /*kind*/, const QString & /*text*/) override {}
  QRect rect() const override {
    if (state().invisible)
      return {};
    return {ground->mapToGlobal(drawn.Area().topLeft()), drawn.Area().size()};
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invisible = !ground->isVisible() || !drawn.Shown().Visible();
    state.disabled = !drawn.Shown().Enabled();
    return state;
  }

private:
  const DrawnLabel *Label() const { return dynamic_cast<const DrawnLabel *>(&drawn); }

  // A label is called what it shows, a frame as its window is.
  QString Name() const {
    return Label() == nullptr ? ground->window()->windowTitle() : Label()->Text();
  }

  const QPointer<Ground> ground;
  const DrawnControl &drawn;
};

// Has the drawn controls as children, among the widgets and in the order of declaration.
class GroundDescription : public QAccessibleWidget {
public:
  explicit GroundDescription(Ground &described)
      : QAccessibleWidget(&described), ground(described) {}
  ~GroundDescription() override {
    for (const auto &[drawn, id] : ids)
      QAccessible::deleteAccessibleInterface(id);
  }
  GroundDescription(const GroundDescription &) = delete;
  GroundDescription &operator=(const GroundDescription &) = delete;

  // Made when it is first asked for, which without a reader is never. Null for what doesn't stand
  // for itself.
  QAccessibleInterface *Of(const DrawnControl &drawn) const {
    if (!drawn.StandsForItself())
      return nullptr;
    const auto [place, isNew] = ids.try_emplace(&drawn);
    if (isNew)
      place->second = QAccessible::registerAccessibleInterface(new DrawnDescription(ground, drawn));
    return QAccessible::accessibleInterface(place->second);
  }

  int childCount() const override { return static_cast<int>(Children().size()); }
  QAccessibleInterface *child(int index) const override { return Children().value(index); }
  int indexOfChild(const QAccessibleInterface *child) const override {
    return static_cast<int>(Children().indexOf(child));
  }
  QAccessibleInterface *childAt(int x, int y) const override {
    const QPoint place = ground.mapFromGlobal(QPoint(x, y));
    if (QWidget *widget = ground.childAt(place)) {
      while (widget->parentWidget() != &ground) // a list has its items in a widget of their own
        widget = widget->parentWidget();
      return QAccessible::queryAccessibleInterface(widget);
    }
    const DrawnControl *drawn = ground.DrawnAt(place);
    return drawn == nullptr ? nullptr : Of(*drawn);
  }

private:
  QList<QAccessibleInterface *> Children() const {
    QList<QAccessibleInterface *> children;
    for (const Control *control : ground.Shown().Controls())
      if (QAccessibleInterface *child = ChildFor(*control))
        children.append(child);
    return children;
  }

  QAccessibleInterface *ChildFor(const Control &control) const {
    if (const DrawnControl *drawn = ground.DrawnFor(control))
      return Of(*drawn);
    const auto *window = dynamic_cast<const FormWindow *>(ground.parentWidget());
    QWidget *widget = window == nullptr ? nullptr : window->WidgetOf(control);
    return widget == nullptr ? nullptr : QAccessible::queryAccessibleInterface(widget);
  }

  Ground &ground;
  mutable std::unordered_map<const DrawnControl *, QAccessible::Id> ids;
};

} // namespace

QAccessibleInterface *DescribeGround(Ground &ground) { return new GroundDescription(ground); }

QAccessibleInterface *DescriptionOf(Ground &ground, const DrawnControl &drawn) {
  const auto *description =
      dynamic_cast<GroundDescription *>(QAccessible::queryAccessibleInterface(&ground));
  return description == nullptr ? nullptr : description->Of(drawn);
}

std::unique_ptr<QAccessibleEvent> NewsOf(Ground &ground, const DrawnControl &drawn,
                                         Property property) {
  QAccessibleInterface *description = DescriptionOf(ground, drawn);
  if (description == nullptr)
    return nullptr;
  const auto news = [description](QAccessible::Event kind) {
    return std::make_unique<QAccessibleEvent>(description, kind);
  };
  switch (property) {
  case Property::Caption:
    return news(QAccessible::NameChanged);
  case Property::Visible:
    return news(drawn.Shown().Visible() ? QAccessible::ObjectShow : QAccessible::ObjectHide);
  case Property::Enabled: {
    QAccessible::State changed;
    changed.disabled = true;
    return std::make_unique<QAccessibleStateChangeEvent>(description, changed);
  }
  default:
    return nullptr;
  }
}

void TellScreenReaders(Ground &ground, const DrawnControl &drawn, Property property) {
  if (!QAccessible::isActive())
    return;
  if (const auto news = NewsOf(ground, drawn, property))
    QAccessible::updateAccessibility(news.get());
}

} // namespace Tessoro
