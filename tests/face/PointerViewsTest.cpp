#include "face/qt/PointerViews.hpp"
#include "tests/face/FaceTest.hpp"

#include <QMouseEvent>
#include <QTest>

namespace Tessoro::Tests {
namespace {

using testing::ElementsAre;

class PointerViewsTest : public FaceTest {
protected:
  void SetUp() override {
    FaceTest::SetUp();
    knob = &WidgetOf(bench.Knob);
  }

  static void Send(QWidget &widget, QEvent::Type type, QPointF place, Qt::MouseButton button,
                   Qt::MouseButtons held) {
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
  }
  static void Press(QWidget &widget, QPointF place, Qt::MouseButton button = Qt::LeftButton) {
    Send(widget, QEvent::MouseButtonPress, place, button, button);
  }
  static void Move(QWidget &widget, QPointF place, Qt::MouseButtons held = Qt::LeftButton) {
    Send(widget, QEvent::MouseMove, place, Qt::NoButton, held);
  }
  static void Release(QWidget &widget, QPointF place, Qt::MouseButton button = Qt::LeftButton) {
    Send(widget, QEvent::MouseButtonRelease, place, button, Qt::NoButton);
  }
  static void PressAgain(QWidget &widget, QPointF place) {
    Send(widget, QEvent::MouseButtonDblClick, place, Qt::LeftButton, Qt::LeftButton);
  }

  // With the moves.
  std::vector<std::string> HeardAll() { return std::exchange(bench.heard, {}); }

  QWidget *knob = nullptr;
};

TEST_F(PointerViewsTest, PlacesAreTwipsFromTheCornerOfTheControlWithTheirFractions) {
  Press(*knob, {2, 3.5});
  EXPECT_THAT(HeardAll(), ElementsAre("Knob MouseDown 1 30 52.5"));
}

TEST_F(PointerViewsTest, PlacesAreTheSameTwipsAtAnyZoom) {
  WindowOf(bench).SetZoom(2);
  Press(*knob, {4, 7});
  EXPECT_THAT(HeardAll(), ElementsAre("Knob MouseDown 1 30 52.5"));
}

TEST_F(PointerViewsTest, ADragGoesOnOutsideAndEndsWithoutAClickThere) {
  Press(*knob, {20, 20});
  Move(*knob, {20, -100});
  Release(*knob, {20, -200});
  EXPECT_THAT(HeardAll(), ElementsAre("Knob MouseDown 1 300 300", "Knob MouseMove 1 300 -1500",
                                      "Knob MouseUp 1 300 -3000"));
}

TEST_F(PointerViewsTest, TheWindowSystemSendsADragToTheKnobThatBeganIt) {
  QWindow *window = WindowOf(bench).windowHandle();
  const QPoint middle = knob->mapTo(&WindowOf(bench), QPoint(20, 20));
  QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, middle);
  QTest::mouseMove(window, middle - QPoint(0, 150));
  QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, middle - QPoint(0, 150));
  const std::vector<std::string> heard = Heard();
  EXPECT_THAT(heard, ElementsAre("Knob MouseDown 1 300 300", "Knob MouseUp 1 300 -1950"));
}

TEST_F(PointerViewsTest, AReleaseInsideIsAClick) {
  Press(*knob, {20, 20});
  Release(*knob, {21, 20});
  EXPECT_THAT(HeardAll(),
              ElementsAre("Knob MouseDown 1 300 300", "Knob MouseUp 1 315 300", "Knob Click"));
}

TEST_F(PointerViewsTest, ADoubleClickIsPressReleaseClickDoubleClickRelease) {
  Press(*knob, {0, 0});
  Release(*knob, {0, 0});
  PressAgain(*knob, {0, 0});
  Release(*knob, {0, 0});
  EXPECT_THAT(HeardAll(), ElementsAre("Knob MouseDown 1 0 0", "Knob MouseUp 1 0 0", "Knob Click",
                                      "Knob DblClick", "Knob MouseUp 1 0 0"));
}

TEST_F(PointerViewsTest, AFastClickOnWhatAppearedUnderThePointerIsAClick) {
  bench.Serial.SetVisible(false);
  bench.Routing.onClick = [this] {
    bench.Routing.SetVisible(false);
    bench.Serial.SetVisible(true);
  };
  QWidget &routing = WidgetOf(bench.Routing);
  QWidget &serial = WidgetOf(bench.Serial);
  Press(routing, {5, 5});
  Release(routing, {5, 5});
  EXPECT_TRUE(serial.isVisible());
  PressAgain(serial, {5, 5});
  Release(serial, {5, 5});
  EXPECT_THAT(Heard(),
              ElementsAre("Routing MouseDown 1 75 75", "Routing MouseUp 1 75 75",
                          "Serial MouseDown 1 75 75", "Serial MouseUp 1 75 75", "Serial Click"));
}

TEST_F(PointerViewsTest, MovesWithoutAButtonAreHeard) {
  Move(*knob, {1, 1}, Qt::NoButton);
  EXPECT_THAT(HeardAll(), ElementsAre("Knob MouseMove 0 15 15"));
}

TEST_F(PointerViewsTest, EachButtonPressesAndReleases) {
  Press(*knob, {0, 0}, Qt::RightButton);
  Release(*knob, {0, 0}, Qt::RightButton);
  EXPECT_THAT(HeardAll(), ElementsAre("Knob MouseDown 2 0 0", "Knob MouseUp 2 0 0"));
}

TEST_F(PointerViewsTest, APictureLeavesTheFocusWhereItIs) {
  Focus(bench.Box);
  QTest::mouseClick(knob, Qt::LeftButton);
  EXPECT_TRUE(WidgetOf(bench.Box).hasFocus());
}

TEST_F(PointerViewsTest, ADisabledPictureIsDead) {
  QTest::mouseClick(&WidgetOf(bench.OtherKnob), Qt::LeftButton);
  for (const std::string &event : Heard())
    EXPECT_FALSE(event.starts_with("OtherKnob")) << event;
}

TEST_F(PointerViewsTest, HiddenInADragAPictureIsFreeForTheNextOne) {
  Press(*knob, {20, 20});
  bench.Knob.SetVisible(false);
  bench.Knob.SetVisible(true);
  HeardAll();
  Move(*knob, {20, 10}, Qt::NoButton);
  EXPECT_THAT(HeardAll(), ElementsAre("Knob MouseMove 0 300 150"));
  Press(*knob, {0, 0});
  Release(*knob, {0, 0});
  EXPECT_THAT(HeardAll(), ElementsAre("Knob MouseDown 1 0 0", "Knob MouseUp 1 0 0", "Knob Click"));
}

TEST_F(PointerViewsTest, AWindowThatIsHiddenInADragReleasesThePicture) {
  Press(*knob, {20, 20});
  HeardAll();
  WindowOf(bench).hide();
  EXPECT_THAT(HeardAll(), ElementsAre("Knob MouseUp 1 300 300"));
}

TEST_F(PointerViewsTest, AReleaseThatABoxSwallowedIsMadeUpForWhenItHasGone) {
  bench.Knob.onMouseMove = [this](const MouseEvent &) {
    app.MsgBox("no port", MsgBoxFlags::Critical, "MIDI");
  };
  WithNextBox([](QMessageBox &box) { box.accept(); });
  Press(*knob, {20, 20});
  Move(*knob, {20, 10});
  LetPass(10);
  EXPECT_THAT(HeardAll(), ElementsAre("Knob MouseDown 1 300 300", "Knob MouseUp 1 300 150"));
}

TEST_F(PointerViewsTest, ANoteKeyIsPressedAnewByTheSecondHalfOfADoubleClick) {
  QWidget &key = WidgetOf(bench.Key);
  Press(key, {0, 0});
  Release(key, {0, 0});
  PressAgain(key, {0, 0});
  Release(key, {0, 0});
  EXPECT_THAT(HeardAll(), ElementsAre("Key MouseDown 1 0 0", "Key MouseUp 1 0 0",
                                      "Key MouseDown 1 0 0", "Key MouseUp 1 0 0"));
}

TEST_F(PointerViewsTest, APictureFillsItsPlaceAtEachZoomAndOnEachScreen) {
  for (const auto &[zoom, screenScale] : {std::pair(1.0, 2.0), {2.0, 1.0}, {1.0, 1.0}}) {
    WindowOf(bench).SetZoom(zoom);
    QWidget &logo = WidgetOf(bench.Logo);
    QPixmap picture((QSizeF(logo.size()) * screenScale).toSize());
    picture.setDevicePixelRatio(screenScale);
    logo.render(&picture);
    const QImage image = picture.toImage();
    const int side = image.width();
    EXPECT_LT(image.pixelColor(side / 2, side - side / 24).red(), 64) << zoom << " " << screenScale;
    EXPECT_LT(image.pixelColor(side - side / 24, side / 2).red(), 64) << zoom << " " << screenScale;
  }
}

} // namespace
} // namespace Tessoro::Tests
