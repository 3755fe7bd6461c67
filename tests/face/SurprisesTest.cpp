// What users and desktops do that nobody planned: none of it may crash the program or hang it.
#include "face/qt/ItemList.hpp"
#include "tests/face/FaceTest.hpp"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QTest>

namespace Tessoro::Tests {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr qsizetype TenMillion = 10'000'000;
constexpr int PatienceMilliseconds = 5000;

class SurprisesTest : public FaceTest {
protected:
  QWidget *Focused(const Control &control) const {
    Focus(control);
    return &WidgetOf(control);
  }

  static void PasteOver(QWidget *field, const QString &text) {
    QApplication::clipboard()->setText(text);
    static_cast<QLineEdit *>(field)->selectAll();
    QTest::keyClick(field, Qt::Key_V, Qt::ControlModifier);
  }

  static void Compose(QWidget *field, const QString &unfinished, const QString &finished = {}) {
    QInputMethodEvent event(unfinished, {});
    event.setCommitString(finished);
    QCoreApplication::sendEvent(field, &event);
  }

  static void Drop(QWidget *field, const QString &text) {
    QMimeData data;
    data.setText(text);
    const QPoint place(4, 4);
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(field, &enter);
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(field, &drop);
  }

  static QMenu *RightClick(QWidget *widget) {
    const QPoint middle = widget->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, widget->mapToGlobal(middle));
    QCoreApplication::sendEvent(widget, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
  }

  void AnswerBoxes() {
    WithNextBox([this](QMessageBox &box) {
      ++answered;
      box.accept();
    });
  }

  int answered = 0;
};

TEST_F(SurprisesTest, TenMegabytesArePastedIntoABox) {
  QElapsedTimer time;
  time.start();
  PasteOver(Focused(app.F_Tessoro.TextF1_cutoff), QString(TenMillion, u'7'));
  EXPECT_EQ(app.F_Tessoro.TextF1_cutoff.Text(), "127");
  PasteOver(Focused(app.F_Tessoro.TextF1_cutoff), QString(TenMillion, u'x'));
  EXPECT_EQ(app.F_Tessoro.TextF1_cutoff.Text(), "0");
  app.F_FileIO.Show();
  PasteOver(Focused(app.F_FileIO.TextFilename), QString(TenMillion, u'x'));
  LetPass(1); // it is painted
  EXPECT_LT(time.elapsed(), PatienceMilliseconds);
}

TEST_F(SurprisesTest, TenMegabytesArePastedIntoAList) {
  QElapsedTimer time;
  time.start();
  AnswerBoxes();
  PasteOver(Focused(app.F_Tessoro.ComboFilter1), QString(TenMillion, u'x'));
  EXPECT_EQ(answered, 1) << "no such filter";
  EXPECT_LT(time.elapsed(), PatienceMilliseconds);
}

TEST_F(SurprisesTest, ADeadKeyIsHeardOfWhenItsLetterIsThere) {
  QWidget *field = Focused(bench.Name);
  Compose(field, QString::fromUtf8("´"));
  EXPECT_THAT(Heard(), IsEmpty());
  Compose(field, {}, QString::fromUtf8("é"));
  EXPECT_THAT(Heard(), ElementsAre("Name Change \xE9"));
}

TEST_F(SurprisesTest, AnInputMethodWritesWhatTheModelCanHold) {
  QWidget *field = Focused(bench.Name);
  Compose(field, QString::fromUtf8("にほ"));
  Compose(field, {}, QString::fromUtf8("日本"));
  EXPECT_THAT(Heard(), ElementsAre("Name Change ??"));
  EXPECT_EQ(WidgetOf<QLineEdit>(bench.Name).text(), QStringLiteral("??"));
}

// The toolkit hands over what stands there as it takes the focus away.
TEST_F(SurprisesTest, WhatIsHalfComposedIsForgottenWithTheFocus) {
  QWidget *field = Focused(bench.Name);
  Compose(field, QString::fromUtf8("´"));
  Compose(field, {}, QString::fromUtf8("´"));
  Focus(bench.Box);
  LetPass(1);
  EXPECT_THAT(Heard(), IsEmpty());
  EXPECT_EQ(WidgetOf<QLineEdit>(bench.Name).text(), QString());
}

TEST_F(SurprisesTest, WhatAMethodHandsOverAsItStandsCountsWhenTheFocusStays) {
  QWidget *field = Focused(bench.Name);
  Compose(field, QString::fromUtf8("é"));
  Compose(field, {}, QString::fromUtf8("é"));
  LetPass(1);
  EXPECT_THAT(Heard(), ElementsAre("Name Change \xE9"));
}

TEST_F(SurprisesTest, WhatAMethodHandsOverComesBeforeTheNextKey) {
  QWidget *field = Focused(bench.Name);
  Compose(field, QString::fromUtf8("é"));
  Compose(field, {}, QString::fromUtf8("é"));
  QTest::keyClick(field, Qt::Key_A);
  EXPECT_EQ(bench.Name.Text(), "\xE9"
                               "a");
}

TEST_F(SurprisesTest, WhatIsHalfComposedIsForgottenWhenTheCursorMoves) {
  bench.Name.SetText("ab");
  QWidget *field = Focused(bench.Name);
  static_cast<QLineEdit *>(field)->setCursorPosition(2);
  Heard();
  Compose(field, QString::fromUtf8("´"));
  Compose(field, {}, QString::fromUtf8("´"));
  static_cast<QLineEdit *>(field)->setCursorPosition(0);
  LetPass(1);
  EXPECT_THAT(Heard(), IsEmpty());
  EXPECT_EQ(WidgetOf<QLineEdit>(bench.Name).text(), QStringLiteral("ab"));
}

TEST_F(SurprisesTest, AMethodThatHandsOverLateDoesNotTypeIntoTheNextField) {
  bench.Box.SetText("");
  Heard();
  Compose(Focused(bench.Name), QString::fromUtf8("한"));
  QWidget *next = Focused(bench.Box);
  Compose(next, {}, QString::fromUtf8("한"));
  EXPECT_THAT(Heard(), IsEmpty());
  Compose(next, QString::fromUtf8("한"));
  Compose(next, {}, QString::fromUtf8("한"));
  LetPass(1);
  EXPECT_THAT(Heard(), ElementsAre("Box Change ?"));
}

TEST_F(SurprisesTest, WhatIsHalfComposedIsForgottenWhenCodeWritesThere) {
  for (Control *control : std::initializer_list<Control *>{&bench.Name, &bench.Combo}) {
    QWidget *field = Focused(*control);
    Compose(field, QString::fromUtf8("한"));
    if (control == &bench.Name)
      bench.Name.SetText("by code");
    else
      bench.Combo.SetListIndex(1);
    Heard();
    Compose(field, {}, QString::fromUtf8("한")); // late
    LetPass(1);
    EXPECT_THAT(Heard(), IsEmpty()) << control->Name();
  }
  EXPECT_EQ(bench.Name.Text(), "by code");
  EXPECT_EQ(bench.Combo.Text(), "Saw");
}

// As through a bus, where a key that the method lets pass may be faster.
TEST_F(SurprisesTest, AMethodThatHandsOverBehindAKeyDoesNotTypeIntoTheNextFieldEither) {
  Compose(Focused(bench.Name), QString::fromUtf8("한"));
  QWidget *next = Focused(bench.Box);
  QTest::keyClick(next, Qt::Key_End);
  Heard();
  Compose(next, QString::fromUtf8("한"));
  Compose(next, {}, QString::fromUtf8("한"));
  LetPass(1);
  EXPECT_THAT(Heard(), IsEmpty());
  EXPECT_EQ(WidgetOf<QLineEdit>(bench.Box).displayText().toStdString(), bench.Box.Text());
}

TEST_F(SurprisesTest, WhatAMethodNeverHandsOverIsNotAwaitedForLong) {
  Compose(Focused(bench.Box), QString::fromUtf8("´"));
  QWidget *field = Focused(bench.Name);
  LetPass(600);
  Heard();
  Compose(field, {}, QString::fromUtf8("´"));
  EXPECT_THAT(Heard(), ElementsAre("Name Change \xB4"));
}

// As an undo, a screen reader or a key that the method lets pass.
TEST_F(SurprisesTest, WhatIsTypedBesideAHalfComposedTextIsTold) {
  QWidget *field = Focused(bench.Name);
  Compose(field, QString::fromUtf8("´"));
  QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
  QCoreApplication::sendEvent(field, &key);
  EXPECT_THAT(Heard(), ElementsAre("KeyDown 65 0", "KeyPress 97", "Name Change a"));
}

TEST_F(SurprisesTest, ATextComposedOverAnotherTakesItsPlaceAtOnceOrNotAtAll) {
  for (Control *control : std::initializer_list<Control *>{&bench.Name, &bench.Combo}) {
    auto &field = WidgetOf<QLineEdit>(*control);
    Focus(*control);
    QTest::keyClicks(&field, QStringLiteral("old"));
    Heard();
    field.selectAll();
    Compose(&field, QString::fromUtf8("´"));
    EXPECT_THAT(Heard(), IsEmpty()) << control->Name();
    Compose(&field, {});
    EXPECT_EQ(field.text(), QStringLiteral("old")) << control->Name();
    EXPECT_EQ(field.selectedText(), QStringLiteral("old")) << control->Name();
    Compose(&field, QString::fromUtf8("´"));
    Compose(&field, {}, QString::fromUtf8("é"));
    EXPECT_THAT(Heard(), ElementsAre(control->Name() + " Change \xE9"));
  }
}

TEST_F(SurprisesTest, ACompositionIsCutOffByABox) {
  QWidget *field = Focused(bench.Name);
  Compose(field, QString::fromUtf8("´"));
  AnswerBoxes();
  app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
  Compose(field, {}, QStringLiteral("a"));
  EXPECT_EQ(answered, 1);
  EXPECT_EQ(bench.Name.Text(), "a");
}

TEST_F(SurprisesTest, TextIsDroppedIntoABoxAsIfItWereTyped) {
  bench.Box.SetText("");
  Heard();
  Drop(&WidgetOf(bench.Box), QStringLiteral("64"));
  EXPECT_THAT(Heard(), ElementsAre("Box Change 64"));
  Drop(&WidgetOf(bench.Name), QString(TenMillion, u'y'));
  EXPECT_EQ(bench.Name.Text(), std::string(16, 'y'));
}

TEST_F(SurprisesTest, TextThatIsNoItemIsDroppedIntoAList) {
  AnswerBoxes();
  Drop(&WidgetOf(app.F_Tessoro.ComboFilter1), QStringLiteral("no filter"));
  EXPECT_EQ(answered, 1);
}

TEST_F(SurprisesTest, ADropBehindABoxChangesNothing) {
  WithNextBox([this](QMessageBox &box) {
    Drop(&WidgetOf(bench.Name), QStringLiteral("dropped"));
    box.accept();
  });
  app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
  EXPECT_EQ(bench.Name.Text(), "");
  EXPECT_EQ(WidgetOf<QLineEdit>(bench.Name).text(), QString());
}

TEST_F(SurprisesTest, BoxesAndListsHaveTheirMenuAtTheRightButton) {
  for (const Control *control : std::initializer_list<Control *>{&bench.Box, &bench.Combo}) {
    const QMenu *menu = RightClick(&WidgetOf(*control));
    ASSERT_NE(menu, nullptr) << control->Name();
    EXPECT_FALSE(menu->actions().isEmpty());
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  }
  EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(SurprisesTest, ABoxTakesDownTheMenuOfTheRightButton) {
  ASSERT_NE(RightClick(&WidgetOf(bench.Box)), nullptr);
  AnswerBoxes();
  app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
  EXPECT_EQ(answered, 1);
}

TEST_F(SurprisesTest, AFormGoesWithItsMenuOrItsListOpen) {
  ASSERT_NE(RightClick(&WidgetOf(bench.Box)), nullptr);
  bench.Unload();
  LetPass(1);
  bench.Show();
  QTest::keyClick(Focused(bench.Combo), Qt::Key_F4);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  bench.Unload();
  LetPass(1);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

// Each control's own handler takes its form away.
TEST_F(SurprisesTest, AFormGoesInAnyHandlerOfItsControls) {
  const std::function<void()> leave = [this] { bench.Unload(); };
  const auto tryOut = [&](const char *what, const std::function<void()> &act) {
    bench.Show();
    WindowOf(bench).activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&WindowOf(bench)));
    act();
    EXPECT_FALSE(bench.IsLoaded()) << what;
    LetPass(1);
  };
  bench.Name.onChange = leave;
  tryOut("typing", [this] { QTest::keyClicks(Focused(bench.Name), QStringLiteral("a")); });
  tryOut("pasting", [this] { PasteOver(Focused(bench.Name), QStringLiteral("b")); });
  tryOut("dropping", [this] { Drop(&WidgetOf(bench.Name), QStringLiteral("c")); });
  tryOut("composing", [this] { Compose(Focused(bench.Name), {}, QStringLiteral("d")); });
  tryOut("the menu of the right button", [this] {
    QApplication::clipboard()->setText(QStringLiteral("e"));
    for (QAction *action : RightClick(Focused(bench.Name))->actions())
      if (action->text().contains(QStringLiteral("Paste")))
        action->trigger();
  });
  bench.Name.onDblClick = leave;
  tryOut("a double click", [this] { QTest::mouseDClick(&WidgetOf(bench.Name), Qt::LeftButton); });
  bench.Name.onKeyPress = [&](int /*key*/) { leave(); };
  tryOut("Enter", [this] { QTest::keyClick(Focused(bench.Name), Qt::Key_Return); });
  bench.Combo.onClick = leave;
  tryOut("an arrow key", [this] { QTest::keyClick(Focused(bench.Combo), Qt::Key_Down); });
  tryOut("an item", [this] {
    QTest::keyClick(Focused(bench.Combo), Qt::Key_F4);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
  });
  bench.Check.onClick = leave;
  tryOut("a check", [this] { QTest::mouseClick(&WidgetOf(bench.Check), Qt::LeftButton); });
  bench.HBar.onChange = leave;
  tryOut("a bar", [this] { QTest::keyClick(Focused(bench.HBar), Qt::Key_End); });
  tryOut("the arrow of a bar", [this] {
    QTest::mouseClick(&WidgetOf(bench.HBar), Qt::LeftButton, Qt::NoModifier, QPoint(3, 10));
  });
  bench.Knob.onMouseDown = [&](const MouseEvent & /*event*/) { leave(); };
  tryOut("a knob", [this] { QTest::mouseClick(&WidgetOf(bench.Knob), Qt::LeftButton); });
  bench.Tag.onClick = leave;
  tryOut("a label", [this] {
    QTest::mouseClick(&GroundOf(bench), Qt::LeftButton, Qt::NoModifier,
                      DrawnFor(bench.Tag)->Area().center());
  });
  bench.Menu_Order.onClick = leave;
  tryOut("a shortcut",
         [this] { QTest::keyClick(Focused(bench.Box), Qt::Key_O, Qt::ControlModifier); });
  bench.Dir.onChange = leave;
  tryOut("a folder", [this] {
    QTest::keyClick(Focused(bench.Dir), Qt::Key_End);
    QTest::keyClick(Focused(bench.Dir), Qt::Key_Return);
  });
  bench.File.onClick = leave;
  tryOut("a file", [this] { QTest::keyClick(Focused(bench.File), Qt::Key_Down); });
}

TEST_F(SurprisesTest, AWindowIsZoomedWhileAKnobIsHeld) {
  QWidget &knob = WidgetOf(bench.Knob);
  QTest::mousePress(&knob, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
  WindowOf(bench).SetZoom(1.5);
  QTest::mouseRelease(&knob, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
  EXPECT_THAT(Heard(), Contains(testing::StartsWith("Knob MouseUp")));
}

TEST_F(SurprisesTest, AWindowIsZoomedBehindABox) {
  WithNextBox([this](QMessageBox &box) {
    WindowOf(bench).resize(WindowOf(bench).size() * 1.4);
    LetPass(250);
    box.accept();
  });
  app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
  EXPECT_NEAR(WindowOf(bench).Zoom(), 1.4, 0.02);
  EXPECT_THAT(Heard(), IsEmpty());
}

} // namespace
} // namespace Tessoro::Tests
