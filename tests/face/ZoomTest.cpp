#include "tests/face/FaceTest.hpp"

#include <QApplication>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
#include <QTest>
#include <QTimer>

namespace Tessoro::Tests {
namespace {

class ResizeCounter : public QObject {
public:
  explicit ResizeCounter(QWidget &watched) { watched.installEventFilter(this); }

  int counted = 0;

protected:
  bool eventFilter(QObject *watched, QEvent *event) override {
    counted += event->type() == QEvent::Resize ? 1 : 0;
    return QObject::eventFilter(watched, event);
  }
};

// Tiles the screen, say: whatever the window asks for, it gets this.
class InsistingFrame : public QObject {
public:
  InsistingFrame(QWidget &framed, QSize given) : size(given), window(framed) {
    window.installEventFilter(this);
    window.resize(size);
  }

  const QSize size;
  int refused = 0;

protected:
  bool eventFilter(QObject *watched, QEvent *event) override {
    if (event->type() == QEvent::Resize && window.size() != size)
      QTimer::singleShot(0, this, [this] {
        ++refused;
        window.resize(size);
      });
    return QObject::eventFilter(watched, event);
  }

private:
  QWidget &window;
};

bool IsQuietFor(const int &count, int milliseconds) {
  const int before = count;
  QTest::qWait(milliseconds);
  return count == before;
}

class ZoomTest : public FaceTest {
protected:
  void SetUp() override {
    FaceTest::SetUp();
    window = &WindowOf(bench);
    window->SetZoom(1);
    sizeAtOne = window->size();
  }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
    QTest::keyClick(window->windowHandle(), key, modifiers);
  }
  double ProportionError() const {
    return std::abs(static_cast<double>(window->width()) * sizeAtOne.height() -
                    static_cast<double>(window->height()) * sizeAtOne.width()) /
           sizeAtOne.height();
  }
  QWidget *Ground() const { return WidgetOf(bench.Box).parentWidget(); }

  FormWindow *window = nullptr;
  QSize sizeAtOne;
};

TEST_F(ZoomTest, CtrlWithPlusMinusAndZero) {
  Focus(bench.Box);
  Press(Qt::Key_Plus);
  EXPECT_EQ(window->Zoom(), 1.25);
  Press(Qt::Key_Equal);
  EXPECT_EQ(window->Zoom(), 1.5);
  EXPECT_NEAR(window->width(), sizeAtOne.width() * 1.5, 1);
  EXPECT_NEAR(window->height(), sizeAtOne.height() * 1.5, 4)
      << "letters of the menu come in whole pixels";
  Press(Qt::Key_Minus);
  EXPECT_EQ(window->Zoom(), 1.25);
  Press(Qt::Key_0);
  EXPECT_EQ(window->Zoom(), 0.75) << "as it opened on this small screen";
  EXPECT_EQ(WidgetOf<QLineEdit>(bench.Box).text(), QStringLiteral("?"));
}

TEST_F(ZoomTest, ItGoesNoFartherThanTheScreenAndTheEyes) {
  for (int i = 0; i < 30; ++i)
    Press(Qt::Key_Plus);
  EXPECT_TRUE(window->screen()->availableGeometry().contains(window->geometry()));
  for (int i = 0; i < 30; ++i)
    Press(Qt::Key_Minus);
  EXPECT_EQ(window->Zoom(), 0.5);
}

TEST_F(ZoomTest, ItsFarCornerStaysOnTheScreen) {
  const QRect area = window->screen()->availableGeometry();
  window->move(area.bottomRight() - QPoint(sizeAtOne.width(), sizeAtOne.height()));
  Press(Qt::Key_Plus);
  EXPECT_TRUE(area.contains(window->geometry()));
}

TEST_F(ZoomTest, TheCornerZoomsWithTheProportionKept) {
  const QSize dragged(sizeAtOne.width() * 7 / 5, sizeAtOne.height() * 8 / 5);
  window->resize(dragged);
  EXPECT_NEAR(window->Zoom(), 1.4, 0.01);
  EXPECT_EQ(window->size(), dragged) << "not while the corner is held";
  EXPECT_TRUE(QTest::qWaitFor([this] { return ProportionError() < 3; }));
  EXPECT_EQ(window->width(), Ground()->width());
  EXPECT_EQ(Ground()->x(), 0);
}

// A window manager goes by the pointer for as long as the corner is held, and the user may pause.
TEST_F(ZoomTest, TheProportionIsTakenHoweverOftenTheCornerPutsItsSizeBack) {
  const QSize dragged(sizeAtOne.width() * 7 / 5, sizeAtOne.height() * 8 / 5);
  for (int pause = 0; pause < 3; ++pause) {
    window->resize(dragged);
    EXPECT_TRUE(QTest::qWaitFor([this] { return ProportionError() < 3; })) << pause;
  }
}

TEST_F(ZoomTest, AWindowSystemThatInsistsOnItsSizeIsLeftInPeace) {
  const InsistingFrame frame(*window, {sizeAtOne.width() * 6 / 5, sizeAtOne.height() * 8 / 5});
  EXPECT_TRUE(QTest::qWaitFor([&] { return frame.refused >= 4; }, 10'000));
  EXPECT_TRUE(QTest::qWaitFor([&] { return IsQuietFor(frame.refused, 3000); }, 30'000));
  EXPECT_EQ(window->size(), frame.size);
}

// Some window managers leave a request unanswered while the corner is held.
TEST_F(ZoomTest, AfterADragTheSizeIsAskedForOnceMoreWhenThePointerComesBack) {
  const auto sizesAsked = [this] {
    ResizeCounter counter(*window);
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QCoreApplication::sendEvent(window, &enter);
    return counter.counted;
  };
  EXPECT_EQ(sizesAsked(), 0);
  window->resize(sizeAtOne.width() * 7 / 5, sizeAtOne.height() * 8 / 5);
  EXPECT_TRUE(QTest::qWaitFor([this] { return ProportionError() < 3; }));
  const QSize settled = window->size();
  const double zoom = window->Zoom();
  EXPECT_EQ(sizesAsked(), 2) << "another one, and this one again";
  EXPECT_EQ(window->size(), settled);
  EXPECT_EQ(window->Zoom(), zoom);
  EXPECT_EQ(sizesAsked(), 0);
}

TEST_F(ZoomTest, OneEdgeZoomsToo) {
  window->resize(sizeAtOne.width() * 6 / 5, sizeAtOne.height());
  EXPECT_TRUE(QTest::qWaitFor([this] { return ProportionError() < 3; }));
  EXPECT_NEAR(window->Zoom(), 1.2, 0.01);
  window->resize(window->width(), sizeAtOne.height() * 3 / 4);
  EXPECT_TRUE(QTest::qWaitFor([this] { return ProportionError() < 3; }));
  EXPECT_NEAR(window->Zoom(), 0.75, 0.02);
}

TEST_F(ZoomTest, AWindowThatFillsTheScreenShowsTheFormInItsMiddle) {
  window->showMaximized();
  ASSERT_TRUE(QTest::qWaitFor([this] { return window->width() > sizeAtOne.width() * 1.2; }));
  LetPass(250);
  EXPECT_TRUE(window->isMaximized());
  EXPECT_LE(Ground()->width(), window->width());
  EXPECT_NEAR(Ground()->x(), (window->width() - Ground()->width()) / 2.0, 1);
  EXPECT_GT(window->Zoom(), 1.2);
}

TEST_F(ZoomTest, AFormOpensAsLargeAsTheOneItIsOpenedFrom) {
  window->SetZoom(1.25);
  app.F_Preferences.Show();
  EXPECT_EQ(WindowOf(app.F_Preferences).Zoom(), 1.25);
  EXPECT_NEAR(WindowOf(app.F_Preferences).width(), 4560 / 15.0 * 1.25, 1);
}

TEST_F(ZoomTest, ABoxHasTheLettersOfTheWindowBelowIt) {
  window->SetZoom(1.5);
  WithNextBox([this](QMessageBox &box) {
    EXPECT_EQ(box.font().pixelSize(), WindowOf(bench).findChild<QMenuBar *>()->font().pixelSize());
    box.accept();
  });
  app.MsgBox("text", MsgBoxFlags::OkOnly, "title");
}

TEST_F(ZoomTest, AFormOpensBesideTheOthers) {
  WindowOf(app.F_Tessoro).hide(); // this screen has no room for both
  window->move(0, 0);
  app.F_Preferences.Show();
  app.F_InfoPopUp.Show();
  const QRect first = WindowOf(app.F_Preferences).frameGeometry();
  const QRect second = WindowOf(app.F_InfoPopUp).frameGeometry();
  EXPECT_FALSE(first.intersects(window->frameGeometry()));
  EXPECT_FALSE(second.intersects(window->frameGeometry()));
  EXPECT_FALSE(first.intersects(second));
}

TEST_F(ZoomTest, AFormWithoutRoomBesideTheOthersOpensSmaller) {
  WindowOf(app.F_Tessoro).hide();
  window->move(0, 0);
  const QSize room = window->screen()->availableGeometry().size();
  const QSize preferences(304, 180);
  double zoom = 1;
  while ((room - sizeAtOne * zoom).width() > preferences.width() * zoom ||
         (room - sizeAtOne * zoom).height() > preferences.height() * zoom)
    zoom += 0.25;
  window->SetZoom(zoom);
  app.F_Preferences.Show();
  FormWindow &form = WindowOf(app.F_Preferences);
  EXPECT_FALSE(form.frameGeometry().intersects(window->frameGeometry()));
  EXPECT_LT(form.Zoom(), zoom);
  EXPECT_GE(form.Zoom(), 1);
}

TEST_F(ZoomTest, PicturesAndLettersAreDrawnAnewAtEachZoom) {
  window->SetZoom(2);
  const QImage large = WidgetOf(bench.Logo).grab().toImage();
  window->SetZoom(1);
  const QImage small = WidgetOf(bench.Logo).grab().toImage();
  ASSERT_EQ(large.size(), small.size() * 2);
  EXPECT_NE(large, small.scaled(large.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

} // namespace
} // namespace Tessoro::Tests
