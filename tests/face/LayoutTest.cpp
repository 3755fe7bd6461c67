// How the forms of the editor look, as far as a program can tell.
#include "face/qt/DrawnLabel.hpp"
#include "tests/face/FaceTest.hpp"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionFrame>

#include <algorithm>

namespace Tessoro::Tests {
namespace {

// A label sets its text narrower by up to this.
constexpr double NarrowestStretch = 0.75;

class LayoutTest : public FaceTest {
protected:
  void SetUp() override {
    FaceTest::SetUp();
    app.F_Tessoro.InitPanelParams(); // some forms need a sound to load
    for (Form *form : Forms())
      form->Show();
  }

  std::vector<Form *> Forms() const {
    std::vector<Form *> forms = app.Forms();
    std::erase(forms, &bench);
    return forms;
  }

  struct Shown {
    const Control *control;
    QWidget *widget; // null where the ground draws it
    QRect area;
  };
  std::vector<Shown> ShownOn(const Form &form) const {
    std::vector<Shown> shown;
    for (const Control *control : form.Controls()) {
      if (!control->Visible())
        continue;
      if (QWidget *widget = WindowOf(form).WidgetOf(*control))
        shown.push_back({control, widget, widget->geometry()});
      else if (const DrawnControl *drawn = DrawnFor(*control))
        shown.push_back({control, nullptr, drawn->Area()});
    }
    return shown;
  }

  template <typename Check> void ForEachForm(Check &&check) {
    for (const double zoom : {1.0, 1.5, 2.0})
      for (const Form *form : Forms()) {
        WindowOf(*form).SetZoom(zoom);
        check(*form);
      }
  }

  static std::string NameOf(const Control &control) {
    return control.Owner().Name() + "." + control.Name();
  }
};

int RoomOfField(const QLineEdit &field) {
  QStyleOptionFrame option;
  option.initFrom(&field);
  constexpr int cursorAndMargin = 5; // of the toolkit
  return field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field).width() -
         field.textMargins().left() - field.textMargins().right() - cursorAndMargin;
}

TEST_F(LayoutTest, EveryControlLiesOnItsForm) {
  ForEachForm([this](const Form &form) {
    for (const Shown &each : ShownOn(form)) {
      EXPECT_TRUE(GroundOf(form).rect().contains(each.area)) << NameOf(*each.control);
    }
  });
}

TEST_F(LayoutTest, NothingLiesOnAnythingElse) {
  ForEachForm([this](const Form &form) {
    const std::vector<Shown> shown = ShownOn(form);
    for (auto one = shown.begin(); one != shown.end(); ++one)
      for (auto other = one + 1; other != shown.end(); ++other) {
        const bool areOnFrame = one->control->Type() == ControlType::Frame;
        EXPECT_TRUE(areOnFrame || !one->area.intersects(other->area))
            << NameOf(*one->control) << " and " << NameOf(*other->control);
      }
  });
}

TEST_F(LayoutTest, PanelsStandApartAndHoldTheirControlsWhole) {
  for (const Form *form : Forms()) {
    std::vector<QRect> panels;
    for (const Control *control : form->Controls())
      if (const auto *shape = dynamic_cast<const Shape *>(control);
          shape != nullptr && shape->Kind() == ShapeKind::Panel) {
        const Place &place = shape->DesignPlace();
        panels.emplace_back(place.left, place.top, place.width, place.height);
      }
    for (auto one = panels.begin(); one != panels.end(); ++one)
      for (auto other = one + 1; other != panels.end(); ++other)
        EXPECT_FALSE(one->intersects(*other)) << form->Name();
    if (panels.empty())
      continue;
    for (const Shown &each : ShownOn(*form)) {
      const Place &place = each.control->DesignPlace();
      const QRect area(place.left, place.top, place.width, place.height);
      const auto holds = [&](const QRect &panel) { return panel.contains(area); };
      const auto cuts = [&](const QRect &panel) { return panel.intersects(area); };
      // The button that closes a form stands below its panels.
      const bool isFree =
          each.control->Type() == ControlType::CommandButton && std::ranges::none_of(panels, cuts);
      EXPECT_TRUE(isFree || std::ranges::any_of(panels, holds))
          << NameOf(*each.control) << " doesn't lie wholly on a panel, a Shape of its section";
    }
  }
}

TEST_F(LayoutTest, NoCaptionIsCut) {
  ForEachForm([this](const Form &form) {
    for (const Shown &each : ShownOn(form)) {
      if (const auto *label = dynamic_cast<const Label *>(each.control)) {
        const QFontMetrics letters(FontOfLabel(label->Style(), {.zoom = WindowOf(form).Zoom()}));
        const auto &drawn = dynamic_cast<const DrawnLabel &>(*DrawnFor(*label));
        if (each.area.height() < 2 * letters.height()) {
          EXPECT_LE(letters.horizontalAdvance(drawn.Text()) * NarrowestStretch, each.area.width())
              << NameOf(*each.control);
          EXPECT_LE(letters.ascent(), each.area.height()) << NameOf(*each.control);
        }
      }
      if (const auto *button = dynamic_cast<const QPushButton *>(each.widget)) {
        EXPECT_LE(button->fontMetrics().size(Qt::TextShowMnemonic, button->text()).width() + 6,
                  button->width())
            << NameOf(*each.control);
      }
    }
  });
}

TEST_F(LayoutTest, NoItemOfAListIsCutInItsField) {
  ForEachForm([this](const Form &form) {
    for (const Shown &each : ShownOn(form)) {
      const auto *combo = dynamic_cast<const ComboBox *>(each.control);
      if (combo == nullptr)
        continue;
      const auto &field = WidgetOf<QLineEdit>(*each.control);
      for (const std::string &item : combo->List())
        EXPECT_LE(field.fontMetrics().horizontalAdvance(QString::fromStdString(item)),
                  RoomOfField(field))
            << NameOf(*each.control) << " " << item;
    }
  });
}

TEST_F(LayoutTest, ANumberOfThreeCharactersFitsEveryBox) {
  ForEachForm([this](const Form &form) {
    for (const Shown &each : ShownOn(form)) {
      if (each.control->Type() != ControlType::TextBox)
        continue;
      const auto &field = WidgetOf<QLineEdit>(*each.control);
      EXPECT_LE(field.fontMetrics().horizontalAdvance(QStringLiteral("-64")), RoomOfField(field))
          << NameOf(*each.control);
    }
  });
}

// Text in points grows with the system's letters while the places stay.
TEST_F(LayoutTest, TheLettersOfTheSystemChangeNothing) {
  const QFont before = QApplication::font();
  const QImage looks = WindowOf(app.F_Tessoro).grab().toImage();
  QFont large = before;
  large.setPointSize(24);
  QApplication::setFont(large);
  LetPass(1);
  EXPECT_EQ(WindowOf(app.F_Tessoro).grab().toImage(), looks);
  QApplication::setFont(before);
}

} // namespace
} // namespace Tessoro::Tests
