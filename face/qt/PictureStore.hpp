// The drawings that images show.
#pragma once

#include <QPixmap>
#include <QSize>
#include <QString>

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

class QSvgRenderer;

namespace Tessoro {

// A picture is read when it is first shown, and drawn once for each size: all knobs are one pixmap.
class PictureStore {
public:
  PictureStore();
  ~PictureStore();

  // Sizes are logical pixels. An empty pixmap for a name without a picture.
  QPixmap Draw(std::string_view name, QSize size, double devicePixelRatio);

private:
  QSvgRenderer &RendererOf(const std::string &name);

  std::unordered_map<std::string, std::unique_ptr<QSvgRenderer>> renderers;
  std::unordered_map<std::string, QPixmap> drawn;
};

} // namespace Tessoro
