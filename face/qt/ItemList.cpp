#include "face/qt/ItemList.hpp"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace Tessoro {

namespace {

constexpr int MostVisibleItems = 32;

} // namespace

ItemList::ItemList(QWidget &forField) : QListWidget(&forField), field(forField) {
  setWindowFlags(Qt::Popup);
  setAttribute(Qt::WA_DeleteOnClose);
  setAttribute(Qt::WA_NoMouseReplay); // a click on the field's arrow closes it for good
  setFont(field.font());
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setMouseTracking(true);
  installEventFilter(field.window()); // a form that previews keys sees those of its lists too
}

void ItemList::Open() {
  const int frame = 2 * frameWidth();
  const int rows = std::min(count(), MostVisibleItems);
  const bool needsBar = rows < count();
  const int barWidth = needsBar ? verticalScrollBar()->sizeHint().width() : 0;
  const QSize wanted(std::max(field.width(), sizeHintForColumn(0) + frame + barWidth),
                     rows * sizeHintForRow(0) + frame);

  const QRect screenArea = field.screen()->availableGeometry();
  const QPoint below = field.mapToGlobal(QPoint(0, field.height()));
  const int above = below.y() - field.height() - screenArea.top();
  const int roomBelow = screenArea.bottom() + 1 - below.y();
  const bool opensBelow = wanted.height() <= roomBelow || roomBelow >= above;
  const int height = std::min(wanted.height(), opensBelow ? roomBelow : above);
  const int left = std::clamp(below.x(), screenArea.left(),
                              std::max(screenArea.left(), screenArea.right() + 1 - wanted.width()));
  setGeometry(left, opensBelow ? below.y() : below.y() - field.height() - height, wanted.width(),
              height);
  show();
  setFocus();
  scrollToItem(currentItem());
}

void ItemList::PickCurrent() {
  const int row = currentRow();
  close();
  if (row >= 0)
    emit Picked(row);
}

void ItemList::keyPressEvent(QKeyEvent *event) {
  switch (event->key()) {
  case Qt::Key_Return:
  case Qt::Key_Enter:
    PickCurrent();
    break;
  case Qt::Key_Escape:
  case Qt::Key_F4:
  case Qt::Key_Tab:
    close();
    break;
  default:
    QListWidget::keyPressEvent(event);
  }
}

// The item below the pointer is the one that a click would pick.
void ItemList::mouseMoveEvent(QMouseEvent *event) {
  if (QListWidgetItem *item = itemAt(event->pos()))
    setCurrentItem(item);
}

// Also at the end of a press that began on the field's arrow.
void ItemList::mouseReleaseEvent(QMouseEvent *event) {
  if (event->button() != Qt::LeftButton || !viewport()->rect().contains(event->pos()))
    return;
  if (QListWidgetItem *item = itemAt(event->pos())) {
    setCurrentItem(item);
    PickCurrent();
  }
}

} // namespace Tessoro
