#include "face/qt/FormStyle.hpp"

#include "face/qt/Drawings.hpp"
#include "face/qt/DrawnIcon.hpp"
#include "face/qt/Look.hpp"
#include "face/qt/RoundedBox.hpp"
#include "face/qt/ScrollBarView.hpp"

#include <QComboBox>
#include <QIcon>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QStyleOption>
#include <QTreeView>

#include <algorithm>

namespace Tessoro {

namespace {

bool Has(const QStyleOption &option, QStyle::StateFlag state) {
  return option.state.testFlag(state);
}

constexpr double LineHeightAtOne = 13;

// Pixels on both sides of a text in a list of several columns.
constexpr int MarginInColumns = 4;

// How much larger than at a zoom of 1 a widget is, by its letters.
double ZoomOf(const QStyleOption &option) { return option.fontMetrics.height() / LineHeightAtOne; }

// Between a rounded edge and the text.
int TextMargin(const QStyleOption &option) { return qRound(2 * ZoomOf(option)); }

// And not one that a field brings up.
bool IsListOnForm(const QWidget *widget) {
  return qobject_cast<const QListWidget *>(widget) != nullptr && !widget->isWindow();
}

} // namespace

FormStyle::FormStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void FormStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                              QPainter *painter, const QWidget *widget) const {
  switch (element) {
  case PE_PanelLineEdit:
    DrawField(*option, *painter);
    return;
  case PE_PanelButtonCommand:
    DrawButton(*option, *painter);
    return;
  case PE_Frame:
    if (IsListOnForm(widget)) {
      DrawField(*option, *painter);
      return;
    }
    break;
  case PE_FrameFocusRect:
    if (qobject_cast<const QPushButton *>(widget) != nullptr)
      return; // the button's own drawing has the ring
    break;
  default:
    break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void FormStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const {
  if (element == CE_MenuBarEmptyArea || element == CE_MenuBarItem) {
    // A line below the bar parts it from the ground.
    const QRect area = option->rect;
    painter->fillRect(area, option->palette.color(QPalette::Midlight));
    painter->fillRect(area.left(), area.bottom(), area.width(), 1, Look::FrameColor());
    if (element == CE_MenuBarEmptyArea)
      return;
    const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
    const bool isActive = Has(*option, State_Selected) && Has(*option, State_Enabled);
    if (isActive)
      painter->fillRect(option->rect, Look::Ink());
    drawItemText(painter, option->rect, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine,
                 option->palette, Has(*option, State_Enabled), item->text,
                 isActive ? QPalette::Window : QPalette::WindowText);
    return;
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

void FormStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                   QPainter *painter, const QWidget *widget) const {
  if (control == CC_ComboBox)
    DrawCombo(*option, *painter, widget);
  else if (const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
           control == CC_ScrollBar && slider != nullptr)
    DrawBar(*slider, *painter, widget);
  else
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void FormStyle::DrawField(const QStyleOption &option, QPainter &painter) const {
  const QColor back = option.palette.color(QPalette::Base);
  const double radius = Look::CornerRadius * ZoomOf(option);
  const bool blends =
      back == option.palette.color(QPalette::Window); // its edge is all that is seen
  DrawRoundedBox(painter, option.rect, radius, back, blends ? Look::FrameColor() : QColor());
  if (Has(option, State_HasFocus))
    Look::DrawFocusRing(painter, option.rect, radius, option.palette.color(QPalette::Text));
}

void FormStyle::DrawButton(const QStyleOption &option, QPainter &painter) const {
  const bool isDown = Has(option, State_Sunken);
  const bool isEnabled = Has(option, State_Enabled);
  const QColor face = option.palette.color(QPalette::Button);
  const QRectF area = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  QLinearGradient shine(area.topLeft(), area.bottomLeft());
  shine.setColorAt(0, isDown ? face.darker(114) : face.lighter(106));
  shine.setColorAt(1, isDown ? face.darker(104) : face.darker(106));
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(isEnabled ? option.palette.color(QPalette::Dark) : Look::FrameColor());
  if (!isEnabled)
    painter.setBrush(Qt::NoBrush);
  else if (Has(option, State_MouseOver) && !isDown)
    painter.setBrush(option.palette.color(QPalette::Light));
  else
    painter.setBrush(shine);
  const double radius = (Look::CornerRadius + 1) * ZoomOf(option);
  painter.drawRoundedRect(area, radius, radius);
  painter.restore();
  if (Has(option, State_HasFocus))
    Look::DrawFocusRing(painter, option.rect, radius, Look::Ink());
}

void FormStyle::DrawCombo(const QStyleOptionComplex &option, QPainter &painter,
                          const QWidget *widget) const {
  DrawField(option, painter);
  Look::DrawArrow(painter, subControlRect(CC_ComboBox, &option, SC_ComboBoxArrow, widget),
                  Look::Direction::Down, option.palette.color(QPalette::Text));
}

void FormStyle::DrawBar(const QStyleOptionSlider &option, QPainter &painter,
                        const QWidget *widget) const {
  const bool lies = option.orientation == Qt::Horizontal;
  const bool isEnabled = Has(option, State_Enabled);
  const QColor ink = isEnabled ? Look::Ink() : Look::FadedInk();
  const auto rectOf = [&](SubControl part) {
    return subControlRect(CC_ScrollBar, &option, part, widget);
  };
  const auto isPressed = [&](SubControl part) {
    return option.activeSubControls.testFlag(part) && Has(option, State_Sunken);
  };

  const double radius = (lies ? option.rect.height() : option.rect.width()) / 6.0;
  DrawRoundedBox(painter, option.rect, radius, option.palette.color(QPalette::Midlight),
                 Look::FrameColor());
  Look::DrawArrow(painter, rectOf(SC_ScrollBarSubLine),
                  lies ? Look::Direction::Left : Look::Direction::Up,
                  isPressed(SC_ScrollBarSubLine) ? Look::FrameColor() : ink);
  Look::DrawArrow(painter, rectOf(SC_ScrollBarAddLine),
                  lies ? Look::Direction::Right : Look::Direction::Down,
                  isPressed(SC_ScrollBarAddLine) ? Look::FrameColor() : ink);
  if (option.maximum > option.minimum) {
    const bool isHeld = isPressed(SC_ScrollBarSlider);
    DrawRoundedBox(painter, rectOf(SC_ScrollBarSlider).adjusted(2, 2, -2, -2), radius - 1,
                   isHeld ? ink.lighter(150) : ink);
  }
  if (Has(option, State_HasFocus))
    Look::DrawFocusRing(painter, QRectF(option.rect).adjusted(-1, -1, 1, 1), radius, Look::Ink());
}

QRect FormStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                SubControl subControl, const QWidget *widget) const {
  if (control != CC_ComboBox)
    return QProxyStyle::subControlRect(control, option, subControl, widget);
  const QRect area = option->rect;
  const int arrow = std::min(area.height() * 9 / 10, area.width() / 3);
  switch (subControl) {
  case SC_ComboBoxArrow:
    return {area.right() - arrow + 1, area.top(), arrow, area.height()};
  case SC_ComboBoxEditField: {
    const int margin = TextMargin(*option) + 2; // the field itself adds two to other texts
    return area.adjusted(margin, 1, -arrow, -1);
  }
  default:
    return area;
  }
}

// A box without a frame of the toolkit's own keeps its text off the rounded edge.
QRect FormStyle::subElementRect(SubElement element, const QStyleOption *option,
                                const QWidget *widget) const {
  if (element == SE_LineEditContents)
    return option->rect.adjusted(TextMargin(*option), 0, -TextMargin(*option), 0);
  return QProxyStyle::subElementRect(element, option, widget);
}

int FormStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                           const QWidget *widget) const {
  if (metric == PM_DefaultFrameWidth && IsListOnForm(widget))
    return qRound(Look::CornerRadius * widget->fontMetrics().height() / LineHeightAtOne);
  if (metric == PM_FocusFrameHMargin && qobject_cast<const QTreeView *>(widget) != nullptr)
    return MarginInColumns;
  const auto *bar = dynamic_cast<const ScrollBarView *>(widget); // others ask to learn their size
  if (bar == nullptr)
    return QProxyStyle::pixelMetric(metric, option, widget);
  const bool lies = bar->orientation() == Qt::Horizontal;
  const int thickness = lies ? bar->height() : bar->width();
  const int length = lies ? bar->width() : bar->height();
  switch (metric) {
  case PM_ScrollBarExtent: // also the length of an arrow
    return std::min(thickness * 4 / 5, length / 5);
  case PM_ScrollBarSliderMin:
    return std::min(thickness * 3 / 4, length / 4);
  default:
    return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

QIcon FormStyle::standardIcon(StandardPixmap picture, const QStyleOption *option,
                              const QWidget *widget) const {
  switch (picture) {
  case SP_MessageBoxCritical:
    return DrawnIcon(*FindDrawing("critical"));
  case SP_MessageBoxQuestion:
    return DrawnIcon(*FindDrawing("question"));
  case SP_MessageBoxWarning:
    return DrawnIcon(*FindDrawing("warning"));
  case SP_MessageBoxInformation:
    return DrawnIcon(*FindDrawing("information"));
  case SP_ToolBarHorizontalExtensionButton:
    return {}; // no menu bar here is too long for its window
  default:
    return QProxyStyle::standardIcon(picture, option, widget);
  }
}

int FormStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                         QStyleHintReturn *returnData) const {
  switch (hint) {
  case SH_ComboBox_Popup: // a list below the field, not over it
  case SH_ScrollBar_LeftClickAbsolutePosition:
  case SH_ScrollBar_MiddleClickAbsolutePosition:
  case SH_EtchDisabledText:
  case SH_DialogButtonBox_ButtonsHaveIcons: // which come from the desktop and look it
    return 0;
  default:
    return QProxyStyle::styleHint(hint, option, widget, returnData);
  }
}

} // namespace Tessoro
