#include "face/qt/DrawnLabel.hpp"

#include "face/qt/Look.hpp"
#include "face/qt/RoundedBox.hpp"
#include "face/qt/Text.hpp"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Tessoro {

namespace {

// Narrower than this, letters don't read well.
constexpr double NarrowestStretch = 0.75;
// Keeps the texts of labels that touch apart.
constexpr double MarginInTwips = 30;
// Between the edge of a readout and its text.
constexpr double MarginOfReadout = 75;

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

// How much of the room beside a line stands before it.
double PartBefore(LabelAlign align) {
  switch (align) {
  case LabelAlign::Center:
    return 0.5;
  case LabelAlign::Right:
    return 1;
  default:
    return 0;
  }
}

} // namespace

QFont FontOfLabel(LabelStyle style, const Scale &scale) {
  switch (style) {
  case LabelStyle::Heading:
    return Look::Font(TextSize::Heading, scale, QFont::Bold);
  case LabelStyle::Title:
    return Look::Font(TextSize::Title, scale, QFont::Bold);
  default:
    return Look::Font(TextSize::Control, scale);
  }
}

// A line break at the end would push the text up, and a tab be as wide as eight letters.
void DrawnLabel::Follow(const Scale &scale) {
  Place now = label.DesignPlace();
  now.width = label.Width();
  SetArea(scale.Rect(now));
  text = WithLineBreaks(FromModel(label.Caption()));
  while (text.endsWith(u'\n'))
    text.chop(1);
  text.replace(u'\t', u' ');
}

void DrawnLabel::Draw(QPainter &painter, const GroundLook &look) const {
  QRect area = Area();
  if (label.Style() == LabelStyle::Readout) {
    DrawRoundedBox(painter, area, Look::CornerRadius * look.scale.zoom,
                   look.palette.color(QPalette::ToolTipBase), Look::FrameColor());
    const int margin = look.scale.RoundedPixels(MarginOfReadout);
    area.adjust(margin, 0, -margin, 0);
  }
  painter.setFont(look.FontOf(label.Style()));
  painter.setPen(Ink(look.palette));
  const bool hasRoomForLines = area.height() >= 2 * painter.fontMetrics().height();
  if (hasRoomForLines)
    painter.drawText(area, AlignmentOf(label.Align()) | Qt::TextWordWrap, text);
  else
    DrawLine(painter, area, look.scale);
}

QColor DrawnLabel::Ink(const QPalette &palette) const {
  switch (label.Style()) {
  case LabelStyle::Heading:
  case LabelStyle::Title:
    return Look::Ink();
  case LabelStyle::Faded:
    return Look::FadedInk();
  default:
    return palette.color(label.Enabled() ? QPalette::Active : QPalette::Disabled,
                         QPalette::WindowText);
  }
}

// A text that is too long in the font of this machine is set narrower, and loses its middle only
// where that doesn't help, as a long path does.
void DrawnLabel::DrawLine(QPainter &painter, const QRect &area, const Scale &scale) const {
  const int room = area.width() - scale.RoundedPixels(2 * MarginInTwips);
  const QFontMetricsF letters(painter.font());
  QString line = text;
  double width = std::max(1.0, letters.horizontalAdvance(line));
  if (width > room / NarrowestStretch) {
    line = letters.elidedText(text, Qt::ElideMiddle, qRound(room / NarrowestStretch));
    width = std::max(1.0, letters.horizontalAdvance(line));
  }
  const double stretch = std::clamp(room / std::round(width), NarrowestStretch, 1.0);
  if (stretch == 1 && letters.height() <= area.height() && !line.contains(u'\n')) {
    const QPointF begin((area.width() - width) * PartBefore(label.Align()),
                        (area.height() - letters.height()) / 2 + letters.ascent());
    painter.drawText(area.topLeft() + begin, line);
    return; // as nearly always, and without what costs time
  }
  painter.save();
  painter.setClipRect(area, Qt::IntersectClip);
  painter.translate(area.topLeft());
  painter.scale(stretch, 1);
  painter.drawText(QRectF(0, 0, area.width() / stretch, area.height()),
                   AlignmentOf(label.Align()) | Qt::TextDontClip, line);
  painter.restore();
}

} // namespace Tessoro
