#include "face/qt/Desk.hpp"

#include <QApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <array>
#include <cmath>

namespace Tessoro::Desk {

namespace {

constexpr int Gap = 6; // pixels between neighbours
// A step that was computed may lie a little beside its place.
constexpr double Slack = 1e-6;

QPoint Within(const QRect &room, const QSize &size, const QPoint &corner) {
  const int left = std::min(corner.x(), room.left() + room.width() - size.width());
  const int top = std::min(corner.y(), room.top() + room.height() - size.height());
  return {std::max(left, room.left()), std::max(top, room.top())};
}

bool IsLargerOrInFront(const QWidget *one, const QWidget *other) {
  if (one->isActiveWindow() != other->isActiveWindow())
    return one->isActiveWindow();
  return one->width() * one->height() > other->width() * other->height();
}

std::vector<const QWidget *> WindowsBut(const QWidget &window, const QWidget *toCome) {
  std::vector<const QWidget *> others;
  for (const QWidget *each : QApplication::topLevelWidgets())
    if (each != &window && (each == toCome || each->isVisible()) && !each->isMinimized() &&
        each->windowType() == Qt::Window)
      others.push_back(each);
  std::sort(others.begin(), others.end(), IsLargerOrInFront);
  return others;
}

// The window manager puts the frame around a window as it shows it.
QRect FrameOf(const QWidget &window) {
  const QWindow *handle = window.windowHandle();
  const bool isYetToCome = handle == nullptr || !handle->isExposed();
  const QRect frame = window.frameGeometry();
  return isYetToCome && frame.size() == window.size()
             ? QRect(frame.topLeft(), frame.marginsAdded(UsualFrame).size())
             : frame;
}

qint64 CoveredOf(const std::vector<QRect> &others, const QRect &window) {
  qint64 covered = 0;
  for (const QRect &other : others) {
    const QRect common = other.intersected(window);
    covered += static_cast<qint64>(common.width()) * common.height();
  }
  return covered;
}

} // namespace

QSize RoomFor(const QWidget &window) {
  return window.screen()->availableGeometry().marginsRemoved(UsualFrame).size();
}

double LargestZoom(const QSize &sizeAtOne, const QSize &room) {
  const double zoom = std::min(static_cast<double>(room.width()) / sizeAtOne.width(),
                               static_cast<double>(room.height()) / sizeAtOne.height());
  return std::max(zoom, SmallestZoom);
}

double OpeningZoom(const QSize &sizeAtOne, const QSize &room) {
  const double largest = LargestZoom(sizeAtOne, room);
  const double step = largest >= 1 ? 1 : ZoomStep;
  return std::max(std::floor(largest / step + Slack) * step, SmallestZoom);
}

double NextZoom(double zoom, int direction) {
  const double steps = zoom / ZoomStep;
  const double next = direction > 0 ? std::floor(steps + Slack) + 1 : std::ceil(steps - Slack) - 1;
  return std::max(next * ZoomStep, SmallestZoom);
}

QPoint PlaceBeside(const std::vector<QRect> &others, const QSize &size, const QRect &room) {
  if (others.empty())
    return Within(room, size, {room.right(), room.top() + (room.height() - size.height()) / 3});
  QPoint best;
  qint64 leastCovered = -1;
  for (const QRect &other : others) {
    const std::array<QPoint, 4> sides{QPoint(other.right() + 1 + Gap, other.top()),
                                      QPoint(other.left() - Gap - size.width(), other.top()),
                                      QPoint(other.left(), other.bottom() + 1 + Gap),
                                      QPoint(other.left(), other.top() - Gap - size.height())};
    for (const QPoint &side : sides) {
      const QPoint corner = Within(room, size, side);
      const qint64 covered = CoveredOf(others, QRect(corner, size));
      if (leastCovered < 0 || covered < leastCovered) {
        best = corner;
        leastCovered = covered;
      }
    }
  }
  return best;
}

QSize SizeBeside(const std::vector<QRect> &others, const QSize &wished, const QSize &least,
                 const QRect &room) {
  if (others.empty())
    return wished;
  const QRect &first = others.front();
  const int widest = std::max(room.right() - first.right(), first.left() - room.left()) - Gap;
  const int highest = std::max(room.bottom() - first.bottom(), first.top() - room.top()) - Gap;
  for (const QSize &size : {wished, QSize(std::min(wished.width(), widest), wished.height()),
                            QSize(wished.width(), std::min(wished.height(), highest))}) {
    const bool isEnough = size.width() >= least.width() && size.height() >= least.height();
    if (isEnough && CoveredOf(others, QRect(PlaceBeside(others, size, room), size)) == 0)
      return size;
  }
  return wished;
}

bool StandBesideOthers(QWidget &window, const QSize &least, const QWidget *toCome) {
  const std::vector<const QWidget *> others = WindowsBut(window, toCome);
  std::vector<QRect> frames;
  frames.reserve(others.size());
  for (const QWidget *other : others)
    frames.push_back(FrameOf(*other));
  const QSize frame = others.empty() ? QRect().marginsAdded(UsualFrame).size()
                                     : frames.front().size() - others.front()->size();
  const QWidget &neighbour = others.empty() ? window : *others.front();
  const QRect room = neighbour.screen()->availableGeometry();
  const QSize size = SizeBeside(frames, window.size() + frame, least + frame, room);
  window.resize(size - frame);
  const QPoint corner = PlaceBeside(frames, size, room);
  window.move(corner);
  return CoveredOf(frames, QRect(corner, size)) == 0;
}

void PullOntoScreen(QWidget &window) {
  const QRect area = window.screen()->availableGeometry();
  const QRect frame = window.frameGeometry();
  window.move(std::max(area.left(), frame.left() - std::max(0, frame.right() - area.right())),
              std::max(area.top(), frame.top() - std::max(0, frame.bottom() - area.bottom())));
}

} // namespace Tessoro::Desk
