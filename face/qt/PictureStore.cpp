#include "face/qt/PictureStore.hpp"

#include "face/qt/Drawings.hpp"

#include <QPainter>

namespace Tessoro {

namespace {

constexpr std::size_t MostKept = 24;

// A picture of some forty lines is painted in strips: the toolkit shares out what has more spans
// than those have to threads of its own, and to start and to wake them takes longer than to paint.
// In a large one they are worth it.
constexpr int LinesOfStrip = 16;
constexpr int MostLinesInStrips = 100;

} // namespace

QPixmap PictureStore::Draw(std::string_view name, QSize size, double devicePixelRatio) {
  // A window that is zoomed asks for many sizes on its way.
  if (drawn.size() >= MostKept)
    drawn.clear();
  const QSize pixels = (QSizeF(size) * devicePixelRatio).toSize();
  const std::string key = std::string(name) + ' ' + std::to_string(pixels.width()) + ' ' +
                          std::to_string(pixels.height()) + ' ' + std::to_string(devicePixelRatio);
  const auto found = drawn.find(key);
  if (found != drawn.end())
    return found->second;

  const Drawing *drawing = FindDrawing(name);
  if (drawing == nullptr || pixels.isEmpty())
    return {};
  QPixmap pixmap(pixels);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  const int lines = pixels.height() <= MostLinesInStrips ? LinesOfStrip : pixels.height();
  for (int top = 0; top < pixels.height(); top += lines) {
    painter.setClipRect(0, top, pixels.width(), lines);
    Paint(*drawing, painter, QRectF(QPointF(0, 0), pixels));
  }
  painter.end();
  pixmap.setDevicePixelRatio(devicePixelRatio);
  return drawn[key] = pixmap;
}

} // namespace Tessoro
