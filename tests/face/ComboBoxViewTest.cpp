#include "face/qt/ComboBoxView.hpp"
#include "face/qt/ItemList.hpp"
#include "tests/face/FaceTest.hpp"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>

namespace Tessoro::Tests {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ComboBoxViewTest : public FaceTest {
protected:
  void SetUp() override {
    FaceTest::SetUp();
    field = &WidgetOf<ComboBoxView>(bench.Combo);
    Focus(bench.Combo);
  }

  std::vector<std::string> HeardOfCombo() {
    std::vector<std::string> heard = Heard();
    std::erase_if(heard, [](const std::string &event) { return !event.starts_with("Combo"); });
    return heard;
  }

  void TurnWheelDown() const {
    QWheelEvent turn(QPointF(5, 5), field->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(field, &turn);
  }

  QPoint Arrow() const { return {field->width() - 5, field->height() / 2}; }

  ItemList &OpenList() const {
    QTest::mouseClick(field, Qt::LeftButton, Qt::NoModifier, Arrow());
    return *field->OpenedList();
  }

  static QPoint PlaceOf(ItemList &list, int row) {
    return list.visualItemRect(list.item(row)).center();
  }

  ComboBoxView *field = nullptr;
};

TEST_F(ComboBoxViewTest, BeginsWithItsText) { EXPECT_EQ(field->text(), QStringLiteral("?")); }

TEST_F(ComboBoxViewTest, AnArrowKeySelectsAtEachStep) {
  QTest::keyClick(field, Qt::Key_Down);
  QTest::keyClick(field, Qt::Key_Down);
  QTest::keyClick(field, Qt::Key_Up);
  EXPECT_THAT(HeardOfCombo(), ElementsAre("Combo Click 0", "Combo Click 1", "Combo Click 0"));
  EXPECT_EQ(field->text(), QStringLiteral("Pulse"));
}

TEST_F(ComboBoxViewTest, AnArrowKeyAtTheEndOfTheListIsNothing) {
  QTest::keyClick(field, Qt::Key_Up);
  bench.Combo.SetListIndex(3);
  HeardOfCombo();
  QTest::keyClick(field, Qt::Key_Down);
  EXPECT_THAT(HeardOfCombo(), IsEmpty());
}

TEST_F(ComboBoxViewTest, AnItemThatIsPickedClicksAlsoWhenItWasSelected) {
  for (int time = 0; time < 2; ++time) {
    ItemList &list = OpenList();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, PlaceOf(list, 1));
    EXPECT_EQ(field->OpenedList(), nullptr);
  }
  EXPECT_THAT(HeardOfCombo(), ElementsAre("Combo Click 1", "Combo Click 1"));
  EXPECT_EQ(field->text(), QStringLiteral("Saw"));
}

TEST_F(ComboBoxViewTest, APressOnTheArrowMayBeDraggedToAnItem) {
  QTest::mousePress(field, Qt::LeftButton, Qt::NoModifier, Arrow());
  ItemList &list = *field->OpenedList();
  QTest::mouseMove(list.viewport(), PlaceOf(list, 2));
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, Qt::NoModifier, PlaceOf(list, 2));
  EXPECT_THAT(HeardOfCombo(), ElementsAre("Combo Click 2"));
}

TEST_F(ComboBoxViewTest, AnOpenListIsWorkedByKeys) {
  QTest::keyClick(field, Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(field->OpenedList()->currentRow(), 0);
  QTest::keyClick(field->OpenedList(), Qt::Key_Down);
  EXPECT_THAT(HeardOfCombo(), IsEmpty());
  QTest::keyClick(field->OpenedList(), Qt::Key_Return);
  EXPECT_THAT(HeardOfCombo(), ElementsAre("Combo Click 1"));
  QTest::keyClick(field, Qt::Key_F4);
  QTest::keyClick(field->OpenedList(), Qt::Key_Escape);
  EXPECT_EQ(field->OpenedList(), nullptr);
  EXPECT_THAT(HeardOfCombo(), IsEmpty());
}

TEST_F(ComboBoxViewTest, AnOpenListStandsBelowItsFieldWithAllItsItems) {
  const ItemList &list = OpenList();
  EXPECT_EQ(list.pos(), field->mapToGlobal(QPoint(0, field->height())));
  EXPECT_GE(list.width(), field->width());
  EXPECT_EQ(list.count(), 4);
  EXPECT_GE(list.viewport()->height(), 4 * list.sizeHintForRow(0));
}

TEST_F(ComboBoxViewTest, TypingChangesAtEachKeyAndCompletesNothing) {
  field->selectAll();
  QTest::keyClicks(field, QStringLiteral("Sa"));
  EXPECT_THAT(HeardOfCombo(), ElementsAre("Combo Change S", "Combo Change Sa"));
  EXPECT_EQ(field->text(), QStringLiteral("Sa"));
}

TEST_F(ComboBoxViewTest, ATypedItemIsSelectedWithoutAClickEvenWhenTheFocusLeaves) {
  field->selectAll();
  QTest::keyClicks(field, QStringLiteral("Saw"));
  Focus(bench.Box);
  EXPECT_THAT(HeardOfCombo(), ElementsAre("Combo Change S", "Combo Change Sa", "Combo Change Saw"));
  EXPECT_EQ(bench.Combo.ListIndex(), 1);
}

TEST_F(ComboBoxViewTest, CapitalsMatter) {
  field->selectAll();
  QTest::keyClicks(field, QStringLiteral("saw"));
  QTest::keyClick(field, Qt::Key_Return);
  Focus(bench.Box);
  EXPECT_EQ(bench.Combo.ListIndex(), -1);
  EXPECT_EQ(field->text(), QStringLiteral("saw"));
}

TEST_F(ComboBoxViewTest, TypingThatLeavesTheListKeepsTheCursor) {
  bench.Combo.SetListIndex(1);
  field->setCursorPosition(1);
  QTest::keyClick(field, Qt::Key_X);
  EXPECT_EQ(field->text(), QStringLiteral("Sxaw"));
  EXPECT_EQ(field->cursorPosition(), 2);
}

TEST_F(ComboBoxViewTest, TheWheelTurnsOnlyAListThatHasTheFocus) {
  Focus(bench.Box);
  TurnWheelDown();
  EXPECT_THAT(HeardOfCombo(), IsEmpty());
  Focus(bench.Combo);
  TurnWheelDown();
  EXPECT_THAT(HeardOfCombo(), ElementsAre("Combo Click 0"));
}

TEST_F(ComboBoxViewTest, ShowsWhatCodeWrites) {
  bench.Combo.SetListIndex(2);
  EXPECT_EQ(field->text(), QStringLiteral("Sine"));
  bench.Combo.SetText("none of them");
  EXPECT_EQ(field->text(), QStringLiteral("none of them"));
  bench.Combo.SetListIndex(-1);
  EXPECT_EQ(field->text(), QString());
  bench.Combo.AddItem("Noise");
  EXPECT_EQ(field->text(), QString());
  EXPECT_EQ(OpenList().count(), 5);
}

TEST_F(ComboBoxViewTest, OfATextThatIsTooLongTheBeginningIsSeenUntilItIsTyped) {
  const auto firstSeen = [this] {
    field->grab(); // it scrolls as it is painted
    return field->cursorPositionAt(QPoint(8, 8));
  };
  const std::string longName = "USB MIDI Interface of many words, port 1";
  bench.Combo.AddItem(longName);
  bench.Combo.SetText(longName);
  EXPECT_EQ(firstSeen(), 0) << "written by code";
  bench.Combo.SetListIndex(3);
  QTest::keyClick(field, Qt::Key_Down);
  EXPECT_EQ(field->text().toStdString(), longName);
  EXPECT_EQ(firstSeen(), 0) << "picked with a key";
  QTest::keyClick(field, Qt::Key_End);
  QTest::keyClicks(field, QStringLiteral("2"));
  EXPECT_GT(firstSeen(), 0) << "its end is worked at";
  Focus(bench.Box);
  EXPECT_EQ(firstSeen(), 0) << "left";
  QTest::keyClick(&WidgetOf(bench.Box), Qt::Key_Backtab);
  for (int i = 0; i < 60 && !field->hasFocus(); ++i)
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  ASSERT_TRUE(field->hasFocus());
  EXPECT_TRUE(field->hasSelectedText());
  EXPECT_EQ(firstSeen(), 0) << "entered by Tab";
}

TEST_F(ComboBoxViewTest, AHandlerMayPutBackWhatWasPicked) {
  bench.Combo.onClick = [this] { bench.Combo.SetText("Pulse"); };
  QTest::keyClick(field, Qt::Key_Down);
  QTest::keyClick(field, Qt::Key_Down);
  EXPECT_EQ(field->text(), QStringLiteral("Pulse"));
}

TEST_F(ComboBoxViewTest, AMessageBoxClosesTheList) {
  bench.Clockwork.onTimer = [this] {
    bench.Clockwork.SetEnabled(false);
    app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
  };
  WithNextBox([this](QMessageBox &box) {
    EXPECT_EQ(field->OpenedList(), nullptr);
    box.accept();
  });
  OpenList();
  bench.Clockwork.SetEnabled(true);
  LetPass(60);
  EXPECT_EQ(field->OpenedList(), nullptr);
}

TEST_F(ComboBoxViewTest, AListMadeForNoUseBlendsIntoTheGround) {
  const auto &faded = WidgetOf<QLineEdit>(bench.Faded);
  EXPECT_FALSE(faded.isEnabled());
  EXPECT_EQ(faded.palette().color(QPalette::Disabled, QPalette::Base), QColor(255, 217, 54));
  EXPECT_EQ(faded.palette().color(QPalette::Disabled, QPalette::Text), QColor(255, 217, 54));
}

} // namespace
} // namespace Tessoro::Tests
