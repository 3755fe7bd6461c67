#include "face/microq/MicroQList.hpp"

#include "face/qt/Look.hpp"

#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>

namespace Tessoro {

namespace {

// The bars of the editor are as large as their forms say; those of a list have to say it
// themselves.
class ListBar : public QScrollBar {
public:
  using QScrollBar::QScrollBar;
  QSize sizeHint() const override { return {thickness, thickness}; }
  void SetThickness(int pixels) {
    thickness = pixels;
    updateGeometry();
  }

private:
  int thickness = 0;
};

// A text that its column cuts is told whole where the pointer rests on it.
class CutTextDelegate : public QStyledItemDelegate {
public:
  using QStyledItemDelegate::QStyledItemDelegate;

  bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                 const QModelIndex &index) override {
    if (event->type() != QEvent::ToolTip)
      return QStyledItemDelegate::helpEvent(event, view, option, index);
    const bool isCut = index.isValid() && sizeHint(option, index).width() > option.rect.width();
    QToolTip::showText(event->globalPos(), isCut ? index.data().toString() : QString(), view);
    return true;
  }
};

} // namespace

MicroQList::MicroQList(QAbstractItemModel &model, const QString &accessibleName) {
  setModel(&model);
  setItemDelegate(new CutTextDelegate(this));
  setAccessibleName(accessibleName);
  setPalette(Look::Field(Colors::Navy));
  header()->setPalette(Look::Windows());
  header()->setSectionsMovable(false);
  setRootIsDecorated(false);
  setUniformRowHeights(true); // else 10,000 rows would be measured one by one
  setItemsExpandable(false);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  auto *bar = new ListBar;
  bar->setPalette(Look::Windows());
  setVerticalScrollBar(bar);
}

void MicroQList::SetScale(const Scale &newScale) {
  constexpr double barThickness = 14;
  scale = newScale;
  setFont(Look::Font(TextSize::Menu, scale));
  static_cast<ListBar *>(verticalScrollBar())->SetThickness(qRound(barThickness * scale.zoom));
}

void MicroQList::MakeColumnFit(int column, const QString &text) {
  MakeColumnFit(column, text, font());
}

void MicroQList::MakeColumnFit(int column, const QString &text, const QFont &fontOfColumn) {
  constexpr double roomAround = 16; // the toolkit's own margins, which don't shrink, are in it
  header()->resizeSection(column, QFontMetrics(fontOfColumn).horizontalAdvance(text) +
                                      qRound(roomAround * std::max(scale.zoom, 1.0)));
}

} // namespace Tessoro
