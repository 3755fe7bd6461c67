#include "face/qt/FileListViews.hpp"

#include "face/qt/Look.hpp"
#include "face/qt/Text.hpp"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QWheelEvent>

#include <algorithm>
#include <cstddef>

namespace Tessoro {

namespace {

constexpr double IndentInTwips = 150;
constexpr int DepthRole = Qt::UserRole;

// The name alone is the text of an item, so that it is found by typing how it begins.
class SteppedIn : public QStyledItemDelegate {
public:
  explicit SteppedIn(DirListView &itsList) : QStyledItemDelegate(&itsList), list(itsList) {}

protected:
  // The toolkit leaves room for a picture and its margins, and there is none.
  void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    const int depth = index.data(DepthRole).toInt();
    if (depth == 0)
      return;
    const int margin = list.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &list) + 1;
    const int indent = list.Scale().RoundedPixels(depth * IndentInTwips);
    option->features |= QStyleOptionViewItem::HasDecoration;
    option->decorationSize = {std::max(0, indent - 2 * margin), 1};
  }
  // As high as the root, which has no picture.
  QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override {
    const int height = QStyledItemDelegate::sizeHint(option, index.siblingAtRow(0)).height();
    return {QStyledItemDelegate::sizeHint(option, index).width(), height};
  }

private:
  const DirListView &list;
};

// What a folder is called within the one that holds it; a root is called as a whole.
QString OwnName(const std::string &path) {
  const std::size_t last = path.find_last_of("/\\");
  const bool isRoot = last == std::string::npos || last + 1 == path.size();
  return FromModel(isRoot ? path : path.substr(last + 1));
}

int IndexIn(const std::vector<std::string> &list, const std::string &item) {
  const auto found = std::find(list.begin(), list.end(), item);
  return found == list.end() ? -1 : static_cast<int>(found - list.begin());
}

} // namespace

DriveListView::DriveListView(DriveListBox &shown, const Surroundings &around, QWidget *parent)
    : QComboBox(parent), ControlView(shown, around), drives(shown) {
  setFont(Look::ForAnyText({})); // all else is that of the form
  setFocusPolicy(Qt::StrongFocus);
  setPalette(Look::Field(Colors::Navy));
  view()->setAccessibleName(FromModel(drives.Says()));
  connect(this, &QComboBox::activated, this, [this](int index) {
    const std::string chosen = drives.List()[static_cast<std::size_t>(index)];
    Enter([&] { drives.UserChoose(chosen); });
    ShowContent();
  });
}

void DriveListView::ShowContent() {
  const QSignalBlocker silence(this);
  clear();
  for (const std::string &drive : drives.List())
    addItem(FromModel(drive));
  setCurrentIndex(IndexIn(drives.List(), drives.Drive()));
}

void DriveListView::wheelEvent(QWheelEvent *event) {
  if (hasFocus())
    QComboBox::wheelEvent(event);
  else
    event->ignore();
}

DirListView::DirListView(DirListBox &shown, const Surroundings &around, QWidget *parent)
    : QListWidget(parent), ControlView(shown, around), folders(shown) {
  setFont(Look::ForAnyText({}));
  setItemDelegate(new SteppedIn(*this));
}

// Ancestors step in from the root; the subfolders stand one step behind the open folder.
void DirListView::ShowContent() {
  const QSignalBlocker silence(this);
  clear();
  const std::size_t ancestors = folders.AncestorCount();
  for (std::size_t i = 0; i < folders.List().size(); ++i) {
    auto *item = new QListWidgetItem(OwnName(folders.List()[i]), this);
    const int depth = static_cast<int>(std::min(i, ancestors));
    item->setData(DepthRole, depth);
  }
  if (ancestors > 0)
    setCurrentRow(static_cast<int>(ancestors) - 1);
}

void DirListView::OpenCurrent() {
  const auto row = static_cast<std::size_t>(currentRow());
  if (row >= folders.List().size())
    return;
  const std::string chosen = folders.List()[row];
  Enter([&] { folders.UserChoose(chosen); });
}

void DirListView::keyPressEvent(QKeyEvent *event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    OpenCurrent();
  else
    QListWidget::keyPressEvent(event);
}

// A press beside the items would take the mark off the open folder.
void DirListView::mousePressEvent(QMouseEvent *event) {
  if (itemAt(event->pos()) != nullptr)
    QListWidget::mousePressEvent(event);
}

void DirListView::mouseDoubleClickEvent(QMouseEvent *event) {
  QListWidget::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton && itemAt(event->pos()) != nullptr)
    OpenCurrent();
}

FileListView::FileListView(FileListBox &shown, const Surroundings &around, QWidget *parent)
    : QListWidget(parent), ControlView(shown, around), files(shown) {
  setFont(Look::ForAnyText({}));
}

void FileListView::Show(Property property) {
  if (property == Property::FileName)
    ShowChosen();
  else
    ControlView::Show(property);
}

void FileListView::ShowContent() {
  const QSignalBlocker silence(this);
  clear();
  for (const std::string &file : files.List())
    addItem(FromModel(file));
  ShowChosen();
}

void FileListView::ShowChosen() { setCurrentRow(IndexIn(files.List(), files.FileName())); }

void FileListView::ChooseCurrent() {
  const auto row = static_cast<std::size_t>(currentRow());
  if (row >= files.List().size())
    return;
  const std::string chosen = files.List()[row];
  Enter([&] { files.UserChoose(chosen); });
}

void FileListView::keyPressEvent(QKeyEvent *event) {
  const int before = currentRow();
  QListWidget::keyPressEvent(event);
  if (currentRow() != before)
    ChooseCurrent();
}

void FileListView::mousePressEvent(QMouseEvent *event) {
  if (itemAt(event->pos()) == nullptr)
    return;
  QListWidget::mousePressEvent(event);
  if (event->button() == Qt::LeftButton)
    ChooseCurrent();
}

void FileListView::mouseDoubleClickEvent(QMouseEvent *event) {
  QListWidget::mouseDoubleClickEvent(event);
  if (event->button() == Qt::LeftButton && itemAt(event->pos()) != nullptr)
    Enter([this] { files.UserDblClick(); });
}

} // namespace Tessoro
