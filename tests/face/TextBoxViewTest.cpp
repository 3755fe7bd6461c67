#include "face/qt/TextBoxView.hpp"
#include "surface/Conversions.hpp"
#include "tests/face/FaceTest.hpp"

#include <QApplication>
#include <QClipboard>
#include <QTest>

namespace Tessoro::Tests {
namespace {

using testing::ElementsAre;

class TextBoxViewTest : public FaceTest {
protected:
  void SetUp() override {
    FaceTest::SetUp();
    box = &WidgetOf<QLineEdit>(bench.Box);
    Focus(bench.Box);
    bench.Box.SetText("");
    Heard();
  }

  // Notes of the form's keys are another test's.
  std::vector<std::string> HeardOfBox() {
    std::vector<std::string> heard = Heard();
    std::erase_if(heard, [](const std::string &event) { return !event.starts_with("Box"); });
    return heard;
  }

  void Paste(const QString &text) {
    QApplication::clipboard()->setText(text);
    box->paste();
  }

  QLineEdit *box = nullptr;
};

TEST_F(TextBoxViewTest, EachKeyIsAChangeOfItsOwn) {
  QTest::keyClicks(box, QStringLiteral("127"));
  EXPECT_THAT(HeardOfBox(), ElementsAre("Box Change 1", "Box Change 12", "Box Change 127"));
}

TEST_F(TextBoxViewTest, ShowsWhatCodeWrites) {
  bench.Box.SetText("-\xC4");
  EXPECT_EQ(box->text(), QString::fromUtf8("-Ä"));
}

TEST_F(TextBoxViewTest, AHandlerThatRewritesTheTextWhileItIsTypedLeavesTheCursorAtTheEnd) {
  bench.Box.onChange = [this] {
    if (NumericPrefix(bench.Box.Text()) > 127)
      bench.Box.SetText("127");
  };
  QTest::keyClicks(box, QStringLiteral("20"));
  box->setCursorPosition(1);
  QTest::keyClick(box, Qt::Key_9);
  EXPECT_EQ(box->text(), QStringLiteral("127"));
  EXPECT_EQ(box->cursorPosition(), 3);
  EXPECT_EQ(bench.Box.Text(), "127");
}

TEST_F(TextBoxViewTest, TypingInTheMiddleLeavesTheCursorThereAndCanBeUndone) {
  QTest::keyClicks(box, QStringLiteral("14"));
  box->setCursorPosition(1);
  QTest::keyClick(box, Qt::Key_2);
  EXPECT_EQ(box->cursorPosition(), 2);
  box->undo();
  EXPECT_EQ(bench.Box.Text(), "14");
}

TEST_F(TextBoxViewTest, CharactersThatTheModelDoesNotHaveBecomeQuestionMarks) {
  Paste(QString::fromUtf8("a𝄞ß日"));
  EXPECT_EQ(bench.Box.Text(), "a?\xDF?");
  EXPECT_EQ(box->text(), QString::fromUtf8("a?ß?"));
  EXPECT_EQ(box->cursorPosition(), 4);
}

TEST_F(TextBoxViewTest, TheCursorStaysBehindACharacterThatWasReplaced) {
  bench.Box.SetText("12");
  box->setCursorPosition(1);
  Paste(QString::fromUtf8("𝄞"));
  EXPECT_EQ(box->text(), QStringLiteral("1?2"));
  EXPECT_EQ(box->cursorPosition(), 2);
}

TEST_F(TextBoxViewTest, APasteIsOneChangeAndEndsAtItsFirstLineBreak) {
  bench.Box.SetText("<>");
  Heard();
  box->setCursorPosition(1);
  Paste(QStringLiteral("64\nnext line"));
  EXPECT_THAT(HeardOfBox(), ElementsAre("Box Change <64>"));
  EXPECT_EQ(box->text(), QStringLiteral("<64>"));
}

TEST_F(TextBoxViewTest, APasteOfTenMegabytesIsTaken) {
  constexpr int length = 10'000'000;
  Paste(QString(length, u'7'));
  EXPECT_FALSE(box->text().isEmpty());
  EXPECT_EQ(box->text().toStdString(), bench.Box.Text());
}

TEST_F(TextBoxViewTest, ALimitOfLengthHoldsForTypingAndPasting) {
  auto &name = WidgetOf<QLineEdit>(bench.Name);
  QApplication::clipboard()->setText(QStringLiteral("0123456789ABCDEFGHIJ"));
  name.paste();
  QTest::keyClick(&name, Qt::Key_X);
  EXPECT_EQ(bench.Name.Text(), "0123456789ABCDEF");
}

TEST_F(TextBoxViewTest, EnterIsAKeyPressAndLeavesTheText) {
  QTest::keyClick(box, Qt::Key_Return);
  QTest::keyClick(box, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_THAT(HeardOfBox(), ElementsAre("Box KeyPress 13", "Box KeyPress 13"));
}

TEST_F(TextBoxViewTest, EnterThatIsHeldGivesItsOrderOnce) {
  QTest::keyPress(box, Qt::Key_Return);
  for (int i = 0; i < 3; ++i) {
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"),
                       true);
    QCoreApplication::sendEvent(box, &repeated);
  }
  EXPECT_THAT(HeardOfBox(), ElementsAre("Box KeyPress 13"));
}

TEST_F(TextBoxViewTest, ADoubleClickIsAClickThenADoubleClick) {
  QTest::mouseClick(box, Qt::LeftButton);
  QTest::mouseDClick(box, Qt::LeftButton);
  EXPECT_THAT(HeardOfBox(), ElementsAre("Box Click", "Box DblClick"));
}

TEST_F(TextBoxViewTest, ADoubleClickMayWriteTheText) {
  bench.Box.SetText("12");
  bench.Box.onDblClick = [this] { bench.Box.SetText("0"); };
  QTest::mouseDClick(box, Qt::LeftButton);
  EXPECT_EQ(box->text(), QStringLiteral("0"));
}

TEST_F(TextBoxViewTest, ABoxMadeForNoUseBlendsIntoTheGroundAndTakesNothing) {
  const auto &blended = WidgetOf<QLineEdit>(bench.Blended);
  const QColor amber(255, 217, 54);
  EXPECT_FALSE(blended.isEnabled());
  EXPECT_EQ(blended.palette().color(QPalette::Disabled, QPalette::Base), amber);
  EXPECT_EQ(blended.palette().color(QPalette::Disabled, QPalette::Text), amber);
  bench.Blended.SetText("7");
  EXPECT_EQ(blended.text(), QStringLiteral("7"));
}

TEST_F(TextBoxViewTest, ABoxInUseIsNavyWithAmberText) {
  EXPECT_EQ(box->palette().color(QPalette::Base), QColor(0, 0, 128));
  EXPECT_EQ(box->palette().color(QPalette::Text), QColor(255, 217, 54));
}

TEST_F(TextBoxViewTest, WhatTheModelRefusesIsNotShown) {
  bench.Box.SetText("5");
  bench.Box.SetEnabled(false);
  emit box->textEdited(QStringLiteral("56"));
  EXPECT_EQ(bench.Box.Text(), "5");
  EXPECT_EQ(box->text(), QStringLiteral("5"));
}

TEST_F(TextBoxViewTest, ABoxWithoutWidthIsNoWidget) {
  EXPECT_EQ(WindowOf(bench).WidgetOf(bench.Nowhere), nullptr);
}

TEST_F(TextBoxViewTest, TwoHundredInTheCutoffBoxGoesOutAsTheLimitTwice) {
  auto &cutoff = WidgetOf<QLineEdit>(app.F_Tessoro.TextF1_cutoff);
  cutoff.selectAll();
  QTest::keyClicks(&cutoff, QStringLiteral("200"));
  EXPECT_EQ(cutoff.text(), QStringLiteral("127"));
  EXPECT_THAT(midi.messages,
              ElementsAre("F0 3E 10 00 20 00 00 4E 02 F7", "F0 3E 10 00 20 00 00 4E 14 F7",
                          "F0 3E 10 00 20 00 00 4E 7F F7", "F0 3E 10 00 20 00 00 4E 7F F7"));
}

} // namespace
} // namespace Tessoro::Tests
