#include "face/qt/ComboBoxView.hpp"
#include "tests/face/FaceTest.hpp"

#include <QAbstractItemView>
#include <QLineEdit>
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
    combo = &WidgetOf<QComboBox>(bench.Combo);
    Focus(bench.Combo);
  }

  std::vector<std::string> HeardOfCombo() {
    std::vector<std::string> heard = Heard();
    std::erase_if(heard, [](const std::string &event) { return !event.starts_with("Combo"); });
    return heard;
  }

  void TurnWheelDown() {
    QWheelEvent turn(QPointF(5, 5), combo->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(combo, &turn);
  }

  void PickInList(int row) {
    combo->showPopup();
    QAbstractItemView *view = combo->view();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view->window()));
    // The list takes a release only after the pointer has been over it for a while.
    const QPoint place = view->visualRect(view->model()->index(row, 0)).center();
    QTest::mouseMove(view->viewport(), place);
    LetPass(500);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, place);
  }

  QComboBox *combo = nullptr;
};

TEST_F(ComboBoxViewTest, BeginsWithItsTextAndNoItem) {
  EXPECT_EQ(combo->currentText(), QStringLiteral("?"));
  EXPECT_EQ(combo->currentIndex(), -1);
  EXPECT_EQ(combo->count(), 4);
}

TEST_F(ComboBoxViewTest, AnArrowKeySelectsAtEachStep) {
  QTest::keyClick(combo, Qt::Key_Down);
  QTest::keyClick(combo, Qt::Key_Down);
  QTest::keyClick(combo, Qt::Key_Up);
  EXPECT_THAT(HeardOfCombo(), ElementsAre("Combo Click 0", "Combo Click 1", "Combo Click 0"));
  EXPECT_EQ(combo->currentText(), QStringLiteral("Pulse"));
}

TEST_F(ComboBoxViewTest, AnItemThatIsPickedClicksAlsoWhenItWasSelected) {
  PickInList(1);
  PickInList(1);
  EXPECT_THAT(HeardOfCombo(), ElementsAre("Combo Click 1", "Combo Click 1"));
}

TEST_F(ComboBoxViewTest, TypingChangesAtEachKeyAndCompletesNothing) {
  combo->lineEdit()->selectAll();
  QTest::keyClicks(combo, QStringLiteral("Sa"));
  EXPECT_THAT(HeardOfCombo(), ElementsAre("Combo Change S", "Combo Change Sa"));
  EXPECT_EQ(combo->currentText(), QStringLiteral("Sa"));
  EXPECT_EQ(combo->currentIndex(), -1);
}

TEST_F(ComboBoxViewTest, ATypedItemIsSelectedWithoutAClickEvenWhenTheFocusLeaves) {
  combo->lineEdit()->selectAll();
  QTest::keyClicks(combo, QStringLiteral("Saw"));
  Focus(bench.Box);
  EXPECT_THAT(HeardOfCombo(), ElementsAre("Combo Change S", "Combo Change Sa", "Combo Change Saw"));
  EXPECT_EQ(bench.Combo.ListIndex(), 1);
  EXPECT_EQ(combo->currentIndex(), 1);
}

TEST_F(ComboBoxViewTest, CapitalsMatter) {
  combo->lineEdit()->selectAll();
  QTest::keyClicks(combo, QStringLiteral("saw"));
  QTest::keyClick(combo, Qt::Key_Return);
  Focus(bench.Box);
  EXPECT_EQ(bench.Combo.ListIndex(), -1);
  EXPECT_EQ(combo->currentText(), QStringLiteral("saw"));
}

TEST_F(ComboBoxViewTest, TypingThatLeavesTheListKeepsTheCursor) {
  bench.Combo.SetListIndex(1);
  combo->lineEdit()->setCursorPosition(1);
  QTest::keyClick(combo, Qt::Key_X);
  EXPECT_EQ(combo->currentText(), QStringLiteral("Sxaw"));
  EXPECT_EQ(combo->lineEdit()->cursorPosition(), 2);
}

TEST_F(ComboBoxViewTest, EnterAddsNoItem) {
  combo->lineEdit()->selectAll();
  QTest::keyClicks(combo, QStringLiteral("Noise"));
  QTest::keyClick(combo, Qt::Key_Return);
  EXPECT_EQ(combo->count(), 4);
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
  EXPECT_EQ(combo->currentText(), QStringLiteral("Sine"));
  bench.Combo.SetText("none of them");
  EXPECT_EQ(combo->currentText(), QStringLiteral("none of them"));
  EXPECT_EQ(combo->currentIndex(), -1);
  bench.Combo.SetListIndex(-1);
  EXPECT_EQ(combo->currentText(), QString());
  bench.Combo.AddItem("Noise");
  EXPECT_EQ(combo->count(), 5);
  EXPECT_EQ(combo->currentText(), QString());
}

TEST_F(ComboBoxViewTest, AHandlerMayPutBackWhatWasPicked) {
  bench.Combo.onClick = [this] { bench.Combo.SetText("Pulse"); };
  QTest::keyClick(combo, Qt::Key_Down);
  QTest::keyClick(combo, Qt::Key_Down);
  EXPECT_EQ(combo->currentIndex(), 0);
  EXPECT_EQ(combo->currentText(), QStringLiteral("Pulse"));
}

TEST_F(ComboBoxViewTest, AListMadeForNoUseBlendsIntoTheGround) {
  const auto &faded = WidgetOf<QComboBox>(bench.Faded);
  EXPECT_FALSE(faded.isEnabled());
  EXPECT_EQ(faded.palette().color(QPalette::Disabled, QPalette::Base), QColor(255, 217, 54));
  EXPECT_EQ(faded.palette().color(QPalette::Disabled, QPalette::Text), QColor(255, 217, 54));
}

} // namespace
} // namespace Tessoro::Tests
