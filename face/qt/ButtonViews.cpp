#include "face/qt/ButtonViews.hpp"

#include "face/qt/Look.hpp"
#include "face/qt/Text.hpp"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace Tessoro {

CommandButtonView::CommandButtonView(CommandButton &shown, const Surroundings &around,
                                     QWidget *parent)
    : QPushButton(parent), ControlView(shown, around), button(shown) {
  setAutoDefault(false);
  connect(this, &QPushButton::clicked, this, [this] { Enter([this] { button.UserClick(); }); });
}

void CommandButtonView::ShowContent() {
  const QString caption = FromModel(button.Caption());
  setText(hasAccessKey ? caption : WithoutAccessKey(caption).replace(u'&', QLatin1String("&&")));
}

void CommandButtonView::GiveUpAccessKey() {
  hasAccessKey = false;
  ShowContent();
}

void CommandButtonView::keyPressEvent(QKeyEvent *event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
    QPushButton::keyPressEvent(event);
  else if (!event->isAutoRepeat())
    click();
}

CheckBoxView::CheckBoxView(CheckBox &shown, const Surroundings &around, QWidget *parent)
    : QCheckBox(parent), ControlView(shown, around), box(shown) {}

void CheckBoxView::ShowContent() {
  setText(FromModel(box.Caption()));
  setChecked(box.Value() == 1);
  update(); // the colours
}

// The toolkit would toggle the mark here; whether it changes is the model's to say.
void CheckBoxView::nextCheckState() {
  Enter([this] { box.UserClick(); });
  ShowContent();
}

void CheckBoxView::paintEvent(QPaintEvent * /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor back = Look::FromModel(box.BackColor());
  const QColor fore = isEnabled() ? Look::FromModel(box.ForeColor()) : Look::FadedInk();
  const QRectF tile(rect());
  painter.setPen(Qt::NoPen);
  painter.setBrush(isDown() ? back.darker(112) : underMouse() ? back.lighter(106) : back);
  const double zoom = Scale().zoom;
  const double radius = Look::CornerRadius * zoom;
  painter.drawRoundedRect(tile, radius, radius);

  const double side = std::min({tile.width(), tile.height(), 17 * zoom}) - 4 * zoom;
  const QString caption = WithoutAccessKey(text());
  const double gap = 5 * zoom;
  const double room = tile.width() - side - 2 * gap;
  const bool showsCaption = painter.fontMetrics().horizontalAdvance(caption) <= room;
  const double left = showsCaption ? gap : (tile.width() - side) / 2;
  const QRectF square(left, (tile.height() - side) / 2, side, side);
  painter.setPen(QPen(fore, 1.2 * zoom));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(square.adjusted(0.6, 0.6, -0.6, -0.6), radius - 1, radius - 1);
  if (isChecked())
    DrawMark(painter, square);
  if (showsCaption)
    painter.drawText(tile.adjusted(square.right() + gap, 0, 0, 0),
                     Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, text());
  if (hasFocus())
    Look::DrawFocusRing(painter, tile.adjusted(-1, -1, 1, 1), radius, fore);
}

void CheckBoxView::DrawMark(QPainter &painter, const QRectF &square) const {
  const auto at = [&](double x, double y) {
    return QPointF(square.left() + x * square.width(), square.top() + y * square.height());
  };
  QPainterPath mark(at(0.22, 0.52));
  mark.lineTo(at(0.43, 0.74));
  mark.lineTo(at(0.80, 0.26));
  QPen pen = painter.pen();
  const QPen thin = pen;
  pen.setWidthF(square.width() / 6);
  pen.setCapStyle(Qt::RoundCap);
  pen.setJoinStyle(Qt::RoundJoin);
  painter.setPen(pen);
  painter.drawPath(mark);
  painter.setPen(thin);
}

} // namespace Tessoro
