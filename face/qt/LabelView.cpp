#include "face/qt/LabelView.hpp"

#include "face/qt/Look.hpp"
#include "face/qt/Text.hpp"

#include <QMouseEvent>
#include <QPainter>

namespace Tessoro {

namespace {

// Narrower than this, letters don't read well.
constexpr int NarrowestStretch = 75;
constexpr int StretchStep = 5;
// Keeps the texts of labels that touch apart.
constexpr double MarginInTwips = 15;

Qt::Alignment AlignmentOf(LabelAlign align) {
  switch (align) {
  case LabelAlign::Center:
    return Qt::AlignHCenter;
  case LabelAlign::Right:
    return Qt::AlignRight;
  default:
    return Qt::AlignLeft;
  }
}

QFont FontOf(LabelStyle style, const Scale &scale) {
  switch (style) {
  case LabelStyle::Heading:
    return Look::Font(TextSize::Heading, scale, QFont::Bold);
  case LabelStyle::Title:
    return Look::Font(TextSize::Title, scale, QFont::Bold);
  default:
    return Look::Font(TextSize::Control, scale);
  }
}

bool IsInk(LabelStyle style) { return style == LabelStyle::Heading || style == LabelStyle::Title; }

} // namespace

LabelView::LabelView(Label &shown, const Surroundings &around, QWidget *parent)
    : QLabel(parent), ControlView(shown, around), label(shown) {
  setTextFormat(Qt::PlainText);
  setAlignment(AlignmentOf(label.Align()) | Qt::AlignVCenter);
  if (IsInk(label.Style())) {
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, Look::Ink());
    setPalette(colors);
  }
}

void LabelView::SetScale(const Tessoro::Scale &newScale) {
  ControlView::SetScale(newScale);
  setFont(FontOf(label.Style(), newScale));
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
  setText(caption);
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
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Look::FrameColor());
    painter.setBrush(palette().color(QPalette::ToolTipBase));
    const double radius = Look::CornerRadius * Scale().zoom;
    painter.drawRoundedRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    const int margin = Scale().RoundedPixels(75);
    area.adjust(margin, 0, -margin, 0);
  }
  painter.setPen(palette().color(QPalette::WindowText));
  const bool hasRoomForLines = area.height() >= 2 * fontMetrics().height();
  if (hasRoomForLines)
    painter.drawText(area, static_cast<int>(alignment()) | Qt::TextWordWrap, text());
  else
    DrawLine(painter, area);
}

// A text that is too long in the font of this machine is set narrower rather than cut.
void LabelView::DrawLine(QPainter &painter, const QRect &area) const {
  const int room = area.width() - Scale().RoundedPixels(2 * MarginInTwips);
  QFont narrow = font();
  for (int stretch = 100; stretch > NarrowestStretch; stretch -= StretchStep) {
    if (painter.fontMetrics().horizontalAdvance(text()) <= room)
      break;
    narrow.setStretch(stretch - StretchStep);
    painter.setFont(narrow);
  }
  painter.drawText(area, static_cast<int>(alignment()) | Qt::TextDontClip, text());
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
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Look::FrameColor());
  painter.setBrush(palette().color(QPalette::Midlight));
  const double radius = 2 * Look::CornerRadius * Scale().zoom;
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

} // namespace Tessoro
