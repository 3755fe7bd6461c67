// How large windows open, and where on the screen.
#pragma once

#include <QMargins>
#include <QRect>
#include <QSize>

#include <vector>

class QWidget;

namespace Tessoro::Desk {

// What the window system draws around a window, as long as it hasn't said so.
inline constexpr QMargins UsualFrame(4, 30, 4, 4);

// Of the keys that zoom.
inline constexpr double ZoomStep = 0.25;
// Below this, letters can't be read.
inline constexpr double SmallestZoom = 0.5;

// For a window on its screen, without its frame.
QSize RoomFor(const QWidget &window);
// At which a window of that size at a zoom of 1 just fits.
double LargestZoom(const QSize &sizeAtOne, const QSize &room);
// The largest whole number that fits; where not even 1 does, a step of the keys.
double OpeningZoom(const QSize &sizeAtOne, const QSize &room);
// The next step of the keys, up or down.
double NextZoom(double zoom, int direction);

// The top left corner of a window beside the others, or where it covers least of them. The first of
// the others comes first. Without others it stands at the right, for those that are yet to come.
QPoint PlaceBeside(const std::vector<QRect> &others, const QSize &size, const QRect &room);
// The wished size, or where a window of it would cover others, as much less in one direction as
// lets it stand beside the first of them; the wished one again where that is less than the least.
QSize SizeBeside(const std::vector<QRect> &others, const QSize &wished, const QSize &least,
                 const QRect &room);
// Moves a window that is still to come out of the way of all that the program shows, and of one
// that has its place but is still to come too. The one that is worked in is the first to keep off.
// The window may be made smaller for that. False where it covers some of them all the same.
bool StandBesideOthers(QWidget &window, const QSize &least, const QWidget *toCome = nullptr);
// Moves a window that has grown so that its far corner doesn't leave the screen.
void PullOntoScreen(QWidget &window);

} // namespace Tessoro::Desk
