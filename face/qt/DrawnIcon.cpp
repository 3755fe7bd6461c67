#include "face/qt/DrawnIcon.hpp"

#include "face/qt/Drawings.hpp"

#include <QIconEngine>
#include <QPainter>

namespace Tessoro {

namespace {

class Engine : public QIconEngine {
public:
  explicit Engine(const Drawing &shown) : drawing(shown) {}

  void paint(QPainter *painter, const QRect &area, QIcon::Mode /*mode*/,
             QIcon::State /*state*/) override {
    Paint(drawing, *painter, area);
  }
  QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    return pixmap;
  }
  QIconEngine *clone() const override { return new Engine(drawing); }

  // What a window gives to its manager.
  QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
    return {QSize(32, 32), QSize(64, 64)};
  }

private:
  const Drawing &drawing;
};

} // namespace

QIcon DrawnIcon(const Drawing &drawing) { return QIcon(new Engine(drawing)); }

} // namespace Tessoro
