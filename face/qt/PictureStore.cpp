#include "face/qt/PictureStore.hpp"

#include <QPainter>
#include <QSvgRenderer>

// A library has to ask for its resources by hand, and not from within a namespace.
static void RegisterPictures() { Q_INIT_RESOURCE(pictures); }

namespace Tessoro {

namespace {

constexpr std::size_t MostKept = 24;

} // namespace

PictureStore::PictureStore() { RegisterPictures(); }

PictureStore::~PictureStore() = default;

QSvgRenderer &PictureStore::RendererOf(const std::string &name) {
  std::unique_ptr<QSvgRenderer> &renderer = renderers[name];
  if (!renderer)
    renderer = std::make_unique<QSvgRenderer>(
        QStringLiteral(":/pictures/%1.svg").arg(QString::fromStdString(name)));
  return *renderer;
}

QPixmap PictureStore::Draw(std::string_view name, QSize size, double devicePixelRatio) {
  // A window that is zoomed asks for many sizes on its way.
  if (drawn.size() >= MostKept)
    drawn.clear();
  const QSize pixels = (QSizeF(size) * devicePixelRatio).toSize();
  const std::string plainName(name);
  const std::string key = plainName + ' ' + std::to_string(pixels.width()) + ' ' +
                          std::to_string(pixels.height()) + ' ' + std::to_string(devicePixelRatio);
  const auto found = drawn.find(key);
  if (found != drawn.end())
    return found->second;

  QSvgRenderer &renderer = RendererOf(plainName);
  if (!renderer.isValid() || pixels.isEmpty())
    return {};
  QPixmap pixmap(pixels);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  renderer.render(&painter);
  painter.end();
  pixmap.setDevicePixelRatio(devicePixelRatio);
  return drawn[key] = pixmap;
}

} // namespace Tessoro
