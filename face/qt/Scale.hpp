// From twips, the unit of the forms, to pixels and back.
#pragma once

#include "surface/Control.hpp"

#include <QRect>

namespace Tessoro {

inline constexpr double TwipsPerPixel = 15;

// Pixels are the logical ones of the window system; all sizes of a form follow its zoom.
struct Scale {
  double zoom = 1;

  double Pixels(double twips) const { return twips * zoom / TwipsPerPixel; }
  double Twips(double pixels) const { return pixels * TwipsPerPixel / zoom; }
  int RoundedPixels(double twips) const { return qRound(Pixels(twips)); }

  // Edges are rounded and not sizes, so that what touches in twips touches in pixels.
  QRect Rect(const Place &place) const {
    return {QPoint(RoundedPixels(place.left), RoundedPixels(place.top)),
            QPoint(RoundedPixels(place.left + place.width) - 1,
                   RoundedPixels(place.top + place.height) - 1)};
  }
};

} // namespace Tessoro
