// The drawings of the windows, each in units of its own, so that they are sharp at any size.
#pragma once

#include <QSize>

#include <string_view>

class QPainter;
class QRectF;

namespace Tessoro {

struct Drawing {
  std::string_view name;
  QSize size; // of what it draws, in its own units, from the painter's origin on
  void (*draw)(QPainter &painter);
};

// Null for a name without a drawing.
const Drawing *FindDrawing(std::string_view name);

// Into the whole area, whatever its proportion.
void Paint(const Drawing &drawing, QPainter &painter, const QRectF &area);

} // namespace Tessoro
