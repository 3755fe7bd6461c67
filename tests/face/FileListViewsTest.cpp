#include "face/qt/FileListViews.hpp"
#include "tests/face/FaceTest.hpp"

#include <QScrollBar>
#include <QTest>

namespace Tessoro::Tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FileListViewsTest : public FaceTest {
protected:
  std::vector<std::string> HeardOfLists() {
    std::vector<std::string> heard = Heard();
    std::erase_if(heard, [](const std::string &event) { return event.starts_with("Key"); });
    return heard;
  }

  static QPoint PlaceOf(QListWidget &list, int row) {
    return list.visualItemRect(list.item(row)).center();
  }
  static void Click(QListWidget &list, int row) {
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, PlaceOf(list, row));
  }
  static void DoubleClick(QListWidget &list, int row) {
    Click(list, row);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, PlaceOf(list, row));
  }
};

TEST_F(FileListViewsTest, FoldersAreTheAncestorsAndTheSubfolders) {
  auto &list = WidgetOf<QListWidget>(bench.Dir);
  ASSERT_EQ(list.count(), 4);
  EXPECT_EQ(list.item(0)->text(), QStringLiteral("/"));
  EXPECT_EQ(list.item(1)->text(), QStringLiteral("home"));
  EXPECT_EQ(list.item(3)->text(), QStringLiteral("work"));
  EXPECT_EQ(list.currentRow(), 1);
}

// How far to the right the first letter of an item begins.
int StartOf(QListWidget &list, int row) {
  const QImage drawn = list.viewport()->grab(list.visualItemRect(list.item(row))).toImage();
  const QRgb ground = drawn.pixel(drawn.width() - 2, drawn.height() / 2);
  for (int x = 3; x < drawn.width(); ++x)
    for (int y = 2; y < drawn.height() - 2; ++y)
      if (drawn.pixel(x, y) != ground)
        return x;
  return -1;
}

TEST_F(FileListViewsTest, EachFolderStepsInFromTheOneThatHoldsItAtAnyZoom) {
  auto &list = WidgetOf<QListWidget>(bench.Dir);
  for (const double zoom : {1.0, 2.0}) {
    WindowOf(bench).SetZoom(zoom);
    const int root = StartOf(list, 0);
    EXPECT_GT(root, 0);
    EXPECT_NEAR(StartOf(list, 1) - root, 10 * zoom, 5 * zoom);
    EXPECT_NEAR(StartOf(list, 2) - StartOf(list, 1), 10 * zoom, 5 * zoom);
    EXPECT_NEAR(StartOf(list, 3) - StartOf(list, 2), 0, 2 * zoom);
  }
}

TEST_F(FileListViewsTest, FoldersStandAsCloseAsSounds) {
  auto &folders = WidgetOf<QListWidget>(bench.Dir);
  const QListWidget &sounds = WidgetOf<QListWidget>(bench.File);
  for (int row = 0; row < folders.count(); ++row)
    EXPECT_EQ(folders.sizeHintForRow(row), sounds.sizeHintForRow(0)) << row;
}

TEST_F(FileListViewsTest, AFolderAndASoundAreFoundByTypingHowTheyBegin) {
  auto &folders = WidgetOf<QListWidget>(bench.Dir);
  Focus(bench.Dir);
  QTest::keyClicks(&folders, QStringLiteral("wo"));
  EXPECT_EQ(folders.currentRow(), 3);
  EXPECT_THAT(HeardOfLists(), IsEmpty());
  auto &sounds = WidgetOf<QListWidget>(bench.File);
  Focus(bench.File);
  QTest::keyClicks(&sounds, QStringLiteral("le"));
  EXPECT_EQ(sounds.currentRow(), 1);
  EXPECT_THAT(HeardOfLists(), testing::Contains("File Click lead.tss"));
}

TEST_F(FileListViewsTest, ADoubleClickOrEnterOpensAFolderAndAClickDoesNot) {
  auto &list = WidgetOf<QListWidget>(bench.Dir);
  Click(list, 2);
  EXPECT_THAT(HeardOfLists(), IsEmpty());
  DoubleClick(list, 2);
  EXPECT_THAT(HeardOfLists(), ElementsAre("Dir Change /home/sounds"));
  EXPECT_EQ(list.count(), 3);
  list.setCurrentRow(0);
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_THAT(HeardOfLists(), ElementsAre("Dir Change /"));
}

TEST_F(FileListViewsTest, AFileIsChosenByClickAndByArrowKey) {
  auto &list = WidgetOf<QListWidget>(bench.File);
  ASSERT_EQ(list.count(), 2);
  Click(list, 0);
  Click(list, 0);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_THAT(HeardOfLists(),
              ElementsAre("File Click bass.tss", "File Click bass.tss", "File Click lead.tss"));
}

TEST_F(FileListViewsTest, ADoubleClickOnAFileIsAClickAndADoubleClick) {
  DoubleClick(WidgetOf<QListWidget>(bench.File), 1);
  EXPECT_THAT(HeardOfLists(), testing::IsSupersetOf({"File Click lead.tss", "File DblClick"}));
}

TEST_F(FileListViewsTest, APressBesideTheItemsLeavesTheMarkWhereItIs) {
  auto &dirs = WidgetOf<QListWidget>(bench.Dir);
  auto &sounds = WidgetOf<QListWidget>(bench.File);
  Click(sounds, 1);
  Heard();
  for (const QListWidget *list : {&dirs, &sounds})
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                      list->viewport()->rect().bottomLeft() + QPoint(20, -2));
  EXPECT_THAT(HeardOfLists(), IsEmpty());
  EXPECT_TRUE(dirs.item(1)->isSelected());
  EXPECT_TRUE(sounds.item(1)->isSelected());
}

TEST_F(FileListViewsTest, FilesFollowTheirPath) {
  bench.File.SetPath("/home/sounds");
  EXPECT_EQ(WidgetOf<QListWidget>(bench.File).count(), 0);
}

TEST_F(FileListViewsTest, AListThatIsTooLongHasABarOfItsOwn) {
  for (int i = 0; i < 50; ++i)
    files.contents["/home/sounds/" + std::to_string(i) + ".tss"] = "";
  bench.File.SetPath("/home/sounds");
  LetPass(1);
  const QScrollBar *bar = WidgetOf<QListWidget>(bench.File).verticalScrollBar();
  EXPECT_TRUE(bar->isVisible());
  EXPECT_GE(bar->width(), 8);
}

TEST_F(FileListViewsTest, TheDriveOfTheWorkingDirectoryIsShown) {
  const auto &list = WidgetOf<QComboBox>(bench.Drive);
  EXPECT_EQ(list.count(), 1);
  EXPECT_FALSE(list.isEditable());
}

} // namespace
} // namespace Tessoro::Tests
