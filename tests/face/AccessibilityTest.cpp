#include "face/qt/DrawnDescriptions.hpp"
#include "tests/face/FaceTest.hpp"

#include <QAccessible>

namespace Tessoro::Tests {
namespace {

class AccessibilityTest : public FaceTest {
protected:
  QAccessibleInterface &Description(const Control &control) {
    if (const DrawnControl *drawn = DrawnFor(control))
      return *DescriptionOf(GroundOf(control.Owner()), *drawn);
    return *QAccessible::queryAccessibleInterface(&WidgetOf(control));
  }
  QAccessibleInterface &OfGround() {
    return *QAccessible::queryAccessibleInterface(&GroundOf(bench));
  }
  std::string NameOf(const Control &control) {
    return Description(control).text(QAccessible::Name).toStdString();
  }
};

TEST_F(AccessibilityTest, EveryControlOfEveryFormHasAName) {
  app.F_Tessoro.InitPanelParams(); // some forms need a sound to load
  for (Form *form : app.Forms())
    if (form != &app.F_Midi)
      form->Show();
  app.F_Midi.Show(); // closes the ports that others send to as they load
  for (const Form *form : app.Forms())
    for (const Control *control : form->Controls()) {
      const auto *label = dynamic_cast<const Label *>(control);
      const bool isNameless = label != nullptr && label->Caption().empty();
      const bool isShown =
          WindowOf(*form).WidgetOf(*control) != nullptr || DrawnFor(*control) != nullptr;
      if (isShown && !isNameless) {
        EXPECT_NE(NameOf(*control), "") << form->Name() << "." << control->Name();
      }
    }
}

TEST_F(AccessibilityTest, ANameIsWhatTheControlSaysOrItsCaption) {
  EXPECT_EQ(NameOf(bench.Box), "Number");
  EXPECT_EQ(NameOf(bench.Push), "Push");
  EXPECT_EQ(NameOf(bench.Tag), "label");
  EXPECT_EQ(NameOf(app.F_Tessoro.TextF1_cutoff), "Filter 1 cutoff");
}

TEST_F(AccessibilityTest, ALabelIsCalledWhatItShowsNow) {
  bench.Tag.SetCaption("other words");
  EXPECT_EQ(NameOf(bench.Tag), "other words");
}

TEST_F(AccessibilityTest, WhatChangesOfALabelIsNewsForAReader) {
  const auto news = [this](Property property) {
    return NewsOf(GroundOf(bench), *DrawnFor(bench.Tag), property);
  };
  EXPECT_EQ(news(Property::Caption)->type(), QAccessible::NameChanged);
  EXPECT_EQ(news(Property::Caption)->accessibleInterface(), &Description(bench.Tag));
  EXPECT_EQ(news(Property::Visible)->type(), QAccessible::ObjectShow);
  bench.Tag.SetVisible(false);
  EXPECT_EQ(news(Property::Visible)->type(), QAccessible::ObjectHide);
  EXPECT_EQ(news(Property::Enabled)->type(), QAccessible::StateChanged);
  EXPECT_EQ(news(Property::Width), nullptr);
}

TEST_F(AccessibilityTest, ALabelTellsItsToolTipAndWhetherItIsDisabled) {
  EXPECT_EQ(Description(bench.Readout).text(QAccessible::Description), QStringLiteral("A folder"));
  EXPECT_EQ(Description(bench.Tag).text(QAccessible::Description), QString());
  EXPECT_FALSE(Description(bench.Tag).state().disabled);
  bench.Tag.SetEnabled(false);
  EXPECT_TRUE(Description(bench.Tag).state().disabled);
}

TEST_F(AccessibilityTest, LabelsStandAmongTheOtherControlsInTheOrderOfTheForm) {
  QAccessibleInterface &ground = OfGround();
  const auto placeOf = [&](const Control &control) {
    return ground.indexOfChild(&Description(control));
  };
  EXPECT_GE(placeOf(bench.Title), 0);
  EXPECT_LT(placeOf(bench.Title), placeOf(bench.Tag));
  EXPECT_LT(placeOf(bench.Tag), placeOf(bench.Box));
  EXPECT_LT(placeOf(bench.Box), placeOf(bench.Group));
  EXPECT_LT(placeOf(bench.Group), placeOf(bench.Drive));
  EXPECT_EQ(placeOf(app.F_Tessoro.LabelF1_cutoff), -1) << "it lies on another form";
  for (int i = 0; i < ground.childCount(); ++i) {
    EXPECT_EQ(ground.indexOfChild(ground.child(i)), i);
    EXPECT_EQ(ground.child(i)->parent(), &ground) << i;
  }
  EXPECT_EQ(ground.child(ground.childCount()), nullptr);
}

TEST_F(AccessibilityTest, ALabelIsFoundWhereItIsSeen) {
  QAccessibleInterface &tag = Description(bench.Tag);
  EXPECT_EQ(tag.rect().size(), QSize(60, 16));
  const QPoint middle = tag.rect().center();
  EXPECT_EQ(OfGround().childAt(middle.x(), middle.y()), &tag);
  EXPECT_FALSE(tag.state().invisible);
  bench.Tag.SetVisible(false);
  EXPECT_TRUE(tag.state().invisible);
  EXPECT_EQ(OfGround().childAt(middle.x(), middle.y()), nullptr);
  EXPECT_TRUE(tag.rect().isEmpty());
}

TEST_F(AccessibilityTest, AWidgetIsFoundWhereItIsSeenAlsoOnAFrame) {
  for (const Control *control : std::initializer_list<Control *>{&bench.Drive, &bench.Dir}) {
    const QPoint middle = Description(*control).rect().center();
    EXPECT_EQ(OfGround().childAt(middle.x(), middle.y()), &Description(*control))
        << control->Name();
  }
}

TEST_F(AccessibilityTest, WhatIsDrawnIsDescribedAsLongAsItsWindowIsThere) {
  const QAccessible::Id id = QAccessible::uniqueId(&Description(bench.Tag));
  ASSERT_NE(QAccessible::accessibleInterface(id), nullptr);
  bench.Unload();
  LetPass(10);
  EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(AccessibilityTest, RolesTellWhatAControlIs) {
  EXPECT_EQ(Description(bench.Tag).role(), QAccessible::StaticText);
  EXPECT_EQ(Description(bench.Group).role(), QAccessible::Grouping);
  EXPECT_EQ(Description(bench.Box).role(), QAccessible::EditableText);
  EXPECT_EQ(Description(bench.Combo).role(), QAccessible::ComboBox);
  EXPECT_EQ(Description(bench.Check).role(), QAccessible::CheckBox);
  EXPECT_EQ(Description(bench.HBar).role(), QAccessible::ScrollBar);
  EXPECT_EQ(Description(app.F_Tessoro.knobF1_cutoff).role(), QAccessible::Graphic);
  EXPECT_EQ(Description(app.F_Tessoro.ImageParallel).role(), QAccessible::Button);
  EXPECT_EQ(Description(bench.Key).role(), QAccessible::Button);
}

TEST_F(AccessibilityTest, ABarTellsTheValueOfItsControl) {
  bench.VBar.SetValue(100);
  QAccessibleValueInterface *value = Description(bench.VBar).valueInterface();
  ASSERT_NE(value, nullptr);
  EXPECT_EQ(value->currentValue().toInt(), 100);
  EXPECT_EQ(value->minimumValue().toInt(), 0);
  EXPECT_EQ(value->maximumValue().toInt(), 127);
  value->setCurrentValue(400);
  EXPECT_EQ(bench.VBar.Value(), 127);
}

TEST_F(AccessibilityTest, AListTellsItsItemAsABoxTellsItsText) {
  bench.Combo.SetListIndex(1);
  QAccessibleTextInterface *text = Description(bench.Combo).textInterface();
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->text(0, text->characterCount()), QStringLiteral("Saw"));
  EXPECT_EQ(Description(bench.Combo).text(QAccessible::Value), QStringLiteral("Saw"));
}

TEST_F(AccessibilityTest, WhatIsOnlyForTheMouseCanBePressedByAReader) {
  const auto press = [this](const Control &control) {
    Description(control).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  };
  press(app.F_Tessoro.ImageParallel);
  EXPECT_TRUE(app.F_Tessoro.ImageSeriell.Visible());
  press(app.F_Tessoro.ImageSeriell);
  EXPECT_TRUE(app.F_Tessoro.ImageParallel.Visible());
  press(bench.Key);
  EXPECT_THAT(Heard(), testing::ElementsAre("Key MouseDown 1 135 585", "Key MouseUp 1 135 585"));
}

TEST_F(AccessibilityTest, AReaderGivesANoteKeyTheFocusAndTellsThatItHasIt) {
  QAccessibleInterface &key = Description(bench.Key);
  EXPECT_TRUE(key.state().focusable);
  EXPECT_FALSE(key.state().focused);
  EXPECT_FALSE(Description(bench.Knob).state().focusable);
  key.actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
  EXPECT_TRUE(key.state().focused);
  EXPECT_THAT(Heard(), testing::IsEmpty());
}

TEST_F(AccessibilityTest, ToolTipsAreThoseOfTheControls) {
  EXPECT_EQ(WidgetOf(bench.Box).toolTip(), QStringLiteral("A number"));
  EXPECT_EQ(WidgetOf(bench.Push).toolTip(), QString());
}

} // namespace
} // namespace Tessoro::Tests
