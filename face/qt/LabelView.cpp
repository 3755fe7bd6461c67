#include "face/qt/LabelView.hpp"

#include "face/qt/Look.hpp"
#include "face/qt/RoundedBox.hpp"
#include "face/qt/Text.hpp"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace Tessoro {

namespace {

// Narrower than this, letters don't read well.
constexpr double NarrowestStretch = 0.75;
// Keeps the texts of labels that touch apart.
constexpr double MarginInTwips = 30;

int AlignmentOf(LabelAlign align) {
  switch (align) {
  case LabelAlign::Center:
    return Qt::AlignHCenter | Qt::AlignVCenter;
  case LabelAlign::Right:
    return Qt::AlignRight | Qt::AlignVCenter;
  default:
    return Qt::AlignLeft | Qt::AlignVCenter;
  }
}

bool IsHeading(LabelStyle style) {
  return style == LabelStyle::Heading || style == LabelStyle::Title;
}

} // namespace

LabelView::LabelView(Label &shown, const Surroundings &around, QWidget *parent)
    : QWidget(parent), ControlView(shown, around), label(shown) {
  if (IsHeading(label.Style())) {
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, Look::Ink());
    setPalette(colors);
  } else if (label.Style() == LabelStyle::Faded) {
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, Look::FadedInk());
    setPalette(colors);
  }
}

void LabelView::SetScale(const Tessoro::Scale &newScale) {
  ControlView::SetScale(newScale);
  if (IsHeading(label.Style()))
    setFont(Look::Font(label.Style() == LabelStyle::Title ? TextSize::Title : TextSize::Heading,
                       newScale, QFont::Bold));
}

Place LabelView::CurrentPlace() const {
  Place place = label.DesignPlace();
  place.width = label.Width();
  return place;
}

// A line break at the end would push the text up.
void LabelView::ShowContent() {
  QString caption = WithLineBreaks(FromModel(label.Caption()));
  while (caption.endsWith(u'\n'))
    caption.chop(1);
  if (caption == text)
    return;
  text = caption;
  update();
  if (!accessibleName().isEmpty())
    return; // it is called otherwise
  QAccessibleEvent renamed(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&renamed);
}

// Accepted, so that the ground below isn't clicked too.
void LabelView::mousePressEvent(QMouseEvent *event) { event->accept(); }

void LabelView::mouseReleaseEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
    Enter([this] { label.UserClick(); });
}

void LabelView::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  QRect area = rect();
  if (label.Style() == LabelStyle::Readout) {
    DrawRoundedBox(painter, area, Look::CornerRadius * Scale().zoom,
                   palette().color(QPalette::ToolTipBase), Look::FrameColor());
    const int margin = Scale().RoundedPixels(75);
    area.adjust(margin, 0, -margin, 0);
  }
  painter.setPen(palette().color(QPalette::WindowText));
  const bool hasRoomForLines = area.height() >= 2 * fontMetrics().height();
  if (hasRoomForLines)
    painter.drawText(area, AlignmentOf(label.Align()) | Qt::TextWordWrap, text);
  else
    DrawLine(painter, area);
}

// A text that is too long in the font of this machine is set narrower, and loses its middle only
// where that doesn't help, as a long path does.
void LabelView::DrawLine(QPainter &painter, const QRect &area) const {
  const int room = area.width() - Scale().RoundedPixels(2 * MarginInTwips);
  const QFontMetrics letters = fontMetrics();
  QString line = text;
  double width = std::max(1, letters.horizontalAdvance(line));
  if (width > room / NarrowestStretch) {
    line = letters.elidedText(text, Qt::ElideMiddle, qRound(room / NarrowestStretch));
    width = std::max(1, letters.horizontalAdvance(line));
  }
  const double stretch = std::clamp(room / width, NarrowestStretch, 1.0);
  painter.scale(stretch, 1);
  const QRectF stretched(area.left() / stretch, area.top(), area.width() / stretch, area.height());
  painter.drawText(stretched, AlignmentOf(label.Align()) | Qt::TextDontClip, line);
}

FrameView::FrameView(Frame &shown, const Surroundings &around, QWidget *parent)
    : QWidget(parent), ControlView(shown, around), frame(shown) {}

void FrameView::mousePressEvent(QMouseEvent *event) { event->accept(); }

void FrameView::mouseReleaseEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
    Enter([this] { frame.UserClick(); });
}

void FrameView::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  DrawRoundedBox(painter, rect(), 2 * Look::CornerRadius * Scale().zoom,
                 palette().color(QPalette::Midlight), Look::FrameColor());
}

} // namespace Tessoro
