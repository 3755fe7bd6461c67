#include "tests/face/FaceTest.hpp"

#include <QAccessible>

namespace Tessoro::Tests {
namespace {

class AccessibilityTest : public FaceTest {
protected:
  QAccessibleInterface &Description(const Control &control) {
    return *QAccessible::queryAccessibleInterface(&WidgetOf(control));
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
      const bool isNameless =
          control->Type() == ControlType::Frame || (label != nullptr && label->Caption().empty());
      if (WindowOf(*form).WidgetOf(*control) != nullptr && !isNameless) {
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

TEST_F(AccessibilityTest, RolesTellWhatAControlIs) {
  EXPECT_EQ(Description(bench.Tag).role(), QAccessible::StaticText);
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
