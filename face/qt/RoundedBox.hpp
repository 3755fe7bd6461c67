// Boxes with round corners: fields, bars, panels.
#pragma once

#include <QColor>
#include <QRect>

class QPainter;

namespace Tessoro {

// Fills the area, with an edge of one pixel inside of it. A colour that isn't valid draws nothing.
// Looks as the painter's own rounded rectangle does, at a small part of its cost: where the
// painter's pixels are those of the display, only corners are smoothed, and kept.
void DrawRoundedBox(QPainter &painter, const QRect &area, double radius, const QColor &fill,
                    const QColor &edge = {});

} // namespace Tessoro
