#include "face/qt/ComboBoxView.hpp"

#include "face/qt/Look.hpp"
#include "face/qt/Text.hpp"
#include "face/qt/TextBoxView.hpp"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace Tessoro {

namespace {

constexpr int MostVisibleItems = 32;

} // namespace

ComboBoxView::ComboBoxView(ComboBox &shown, const Surroundings &around, QWidget *parent)
    : QComboBox(parent), ControlView(shown, around), combo(shown) {
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  setMaxVisibleItems(MostVisibleItems);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setFocusPolicy(Qt::StrongFocus); // not by the wheel
  setPalette(Look::Field(combo.BackColor()));
  ShowItems();
  connect(lineEdit(), &QLineEdit::textEdited, this,
          [this](const QString &edited) { Edited(edited); });
  connect(this, &QComboBox::activated, this, [this](int index) { Picked(index); });
}

void ComboBoxView::Show(Property property) {
  if (property == Property::Items)
    ShowItems();
  ControlView::Show(property);
}

void ComboBoxView::SetScale(const Tessoro::Scale &newScale) {
  ControlView::SetScale(newScale);
  setFont(Look::Font(TextSize::Control, newScale));
}

void ComboBoxView::ShowItems() {
  const QSignalBlocker silence(this);
  const auto &items = combo.List();
  for (int i = count(); i < static_cast<int>(items.size()); ++i)
    addItem(FromModel(items[static_cast<std::size_t>(i)]));
}

// The index is written first: it takes its item's text along.
void ComboBoxView::ShowContent() {
  const QSignalBlocker silence(this);
  const QString shown = FromModel(combo.Text());
  const int cursor = lineEdit()->cursorPosition();
  const bool staysAsTyped = lineEdit()->text() == shown;
  if (currentIndex() != combo.ListIndex())
    setCurrentIndex(combo.ListIndex());
  if (lineEdit()->text() != shown)
    setEditText(shown);
  if (staysAsTyped && lineEdit()->cursorPosition() != cursor)
    lineEdit()->setCursorPosition(cursor);
}

void ComboBoxView::Edited(const QString &edited) {
  const std::string told = TakeEdit(*lineEdit(), FromModel(combo.Text()), edited);
  Enter([&] { combo.UserEdit(told); });
  ShowContent();
}

void ComboBoxView::Picked(int index) {
  Enter([&] { combo.UserSelect(index); });
  ShowContent();
}

void ComboBoxView::showPopup() {
  view()->setPalette(Look::Field(Colors::Navy));
  view()->setFont(font());
  const int frame = 2 * view()->frameWidth();
  view()->setMinimumWidth(view()->sizeHintForColumn(0) + frame);
  QComboBox::showPopup();
}

// Without the focus the wheel passes by: scrolling over a list must not send a value.
void ComboBoxView::wheelEvent(QWheelEvent *event) {
  if (hasFocus())
    QComboBox::wheelEvent(event);
  else
    event->ignore();
}

} // namespace Tessoro
