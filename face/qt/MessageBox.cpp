#include "face/qt/MessageBox.hpp"

#include "face/qt/Look.hpp"
#include "face/qt/Text.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

#include <algorithm>

namespace Tessoro {

namespace {

struct ButtonSet {
  QMessageBox::StandardButtons shown;
  QMessageBox::StandardButton first;
  QMessageBox::StandardButton escape;
};

ButtonSet ButtonsOf(int flags) {
  switch (flags & MsgBoxFlags::ButtonMask) {
  case MsgBoxFlags::OkCancel:
    return {QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::Cancel};
  case MsgBoxFlags::YesNo:
    return {QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No};
  default:
    return {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
  }
}

QMessageBox::Icon IconOf(int flags) {
  switch (flags & MsgBoxFlags::IconMask) {
  case MsgBoxFlags::Critical:
    return QMessageBox::Critical;
  case MsgBoxFlags::Question:
    return QMessageBox::Question;
  case MsgBoxFlags::Exclamation:
    return QMessageBox::Warning;
  case MsgBoxFlags::Information:
    return QMessageBox::Information;
  default:
    return QMessageBox::NoIcon;
  }
}

MsgBoxButton FromQt(int button) {
  switch (button) {
  case QMessageBox::Cancel:
    return MsgBoxButton::Cancel;
  case QMessageBox::Yes:
    return MsgBoxButton::Yes;
  case QMessageBox::No:
    return MsgBoxButton::No;
  default:
    return MsgBoxButton::Ok;
  }
}

bool AnyWindowStaysOnTop() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::any_of(windows.begin(), windows.end(), [](const QWidget *window) {
    return window->isVisible() && window->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
  });
}

} // namespace

MsgBoxButton ShowMessageBox(QWidget *parent, double zoom, const QString &text, int flags,
                            const QString &title) {
  const ButtonSet buttons = ButtonsOf(flags);
  QMessageBox box(parent);
  box.setWindowTitle(title);
  box.setFont(Look::ForAnyText(Look::Font(TextSize::Menu, {.zoom = zoom})));
  box.setTextFormat(Qt::PlainText);
  box.setText(WithLineBreaks(text));
  box.setIcon(IconOf(flags));
  box.setStandardButtons(buttons.shown);
  box.setDefaultButton(buttons.first);
  box.setEscapeButton(buttons.escape);
  box.setWindowModality(Qt::ApplicationModal); // resets the flags of the window
  // A box behind a window that stays on top could not be answered.
  if (AnyWindowStaysOnTop())
    box.setWindowFlag(Qt::WindowStaysOnTopHint);
  box.exec();
  const QAbstractButton *clicked = box.clickedButton();
  return FromQt(clicked == nullptr ? int(buttons.escape)
                                   : int(box.standardButton(box.clickedButton())));
}

} // namespace Tessoro
