// The drawings that images show.
#pragma once

#include <QPixmap>
#include <QSize>

#include <string>
#include <string_view>
#include <unordered_map>

namespace Tessoro {

// A picture is drawn once for each size: all knobs are one pixmap.
class PictureStore {
public:
  // Sizes are logical pixels. An empty pixmap for a name without a picture.
  QPixmap Draw(std::string_view name, QSize size, double devicePixelRatio);

private:
  std::unordered_map<std::string, QPixmap> drawn;
};

} // namespace Tessoro
