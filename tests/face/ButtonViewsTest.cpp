#include "face/qt/ButtonViews.hpp"
#include "tests/face/FaceTest.hpp"

#include <QTest>

namespace Tessoro::Tests {
namespace {

using testing::Contains;
using testing::ElementsAre;

class ButtonViewsTest : public FaceTest {
protected:
  std::vector<std::string> HeardClicks() {
    std::vector<std::string> heard = Heard();
    std::erase_if(
        heard, [](const std::string &event) { return event.find("Click") == std::string::npos; });
    return heard;
  }
};

TEST_F(ButtonViewsTest, AButtonIsClickedByMouseSpaceAndEnter) {
  auto &push = WidgetOf<QPushButton>(bench.Push);
  QTest::mouseClick(&push, Qt::LeftButton);
  QTest::keyClick(&push, Qt::Key_Space);
  QTest::keyClick(&push, Qt::Key_Return);
  EXPECT_THAT(HeardClicks(), ElementsAre("Push Click", "Push Click", "Push Click"));
}

// As by someone who holds it until a row of boxes is through.
TEST_F(ButtonViewsTest, AKeyThatIsHeldClicksItOnce) {
  auto &push = WidgetOf<QPushButton>(bench.Push);
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
    QTest::keyPress(&push, key);
    for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
      QKeyEvent repeated(type, key, Qt::NoModifier, {}, true);
      QCoreApplication::sendEvent(&push, &repeated);
    }
    QTest::keyRelease(&push, key);
    EXPECT_THAT(HeardClicks(), ElementsAre("Push Click")) << key;
  }
}

TEST_F(ButtonViewsTest, ItsAccessKeyClicksIt) {
  QTest::keyClick(WindowOf(bench).windowHandle(), Qt::Key_P, Qt::AltModifier);
  LetPass(200); // the press is shown for a moment
  EXPECT_THAT(HeardClicks(), Contains("Push Click"));
}

TEST_F(ButtonViewsTest, ADisabledButtonIsDead) {
  QTest::mouseClick(&WidgetOf(bench.Dead), Qt::LeftButton);
  EXPECT_THAT(HeardClicks(), testing::Not(Contains("Dead Click")));
}

TEST_F(ButtonViewsTest, ACaptionFollowsTheModel) {
  bench.Push.SetCaption("&Load file");
  EXPECT_EQ(WidgetOf<QPushButton>(bench.Push).text(), QStringLiteral("&Load file"));
}

TEST_F(ButtonViewsTest, ACheckBoxTogglesByMouseOnItsWholeTileAndBySpace) {
  auto &check = WidgetOf<QCheckBox>(bench.Check);
  QTest::mouseClick(&check, Qt::LeftButton, Qt::NoModifier,
                    QPoint(check.width() - 2, check.height() - 2));
  EXPECT_TRUE(check.isChecked());
  QTest::keyClick(&check, Qt::Key_Space);
  EXPECT_FALSE(check.isChecked());
  EXPECT_THAT(HeardClicks(), ElementsAre("Check Click 1", "Check Click 0"));
}

TEST_F(ButtonViewsTest, ACheckBoxShowsWhatTheHandlerMakesOfIt) {
  auto &check = WidgetOf<QCheckBox>(bench.Check);
  bench.Check.onClick = [this] { bench.Check.SetValue(0); };
  QTest::mouseClick(&check, Qt::LeftButton);
  EXPECT_FALSE(check.isChecked());
}

TEST_F(ButtonViewsTest, ACheckBoxIsPaintedInItsTwoColours) {
  auto &check = WidgetOf<QCheckBox>(bench.Check);
  bench.Check.SetBackColor(Colors::LitGreen);
  bench.Check.SetForeColor(Colors::Black);
  const QImage picture = check.grab().toImage();
  EXPECT_EQ(picture.pixelColor(picture.width() - 4, picture.height() / 2), QColor(0, 192, 0));
  bench.Check.SetBackColor(Colors::DimGreen);
  EXPECT_EQ(check.grab().toImage().pixelColor(picture.width() - 4, picture.height() / 2),
            QColor(0, 64, 0));
}

} // namespace
} // namespace Tessoro::Tests
