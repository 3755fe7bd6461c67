// That everything but what is dragged can be done without a mouse.
#include "face/qt/ReadingOrder.hpp"
#include "tests/face/FaceTest.hpp"

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>
#include <map>

namespace Tessoro::Tests {
namespace {

class KeyboardTest : public FaceTest {
protected:
  // Shows the form where it isn't shown and brings it to the front.
  FormWindow &Work(Form &form) {
    form.Show();
    FormWindow &window = WindowOf(form);
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    return window;
  }

  std::vector<Form *> Forms() const {
    std::vector<Form *> forms = app.Forms();
    std::erase(forms, &bench);
    return forms;
  }

  // What takes keys: boxes, lists, bars, buttons and note keys that a user can reach.
  static bool IsWorkedWithKeys(const Control &control) {
    switch (control.Type()) {
    case ControlType::TextBox:
    case ControlType::ComboBox:
    case ControlType::CheckBox:
    case ControlType::CommandButton:
    case ControlType::NoteKey:
    case ControlType::HScrollBar:
    case ControlType::VScrollBar:
    case ControlType::DriveListBox:
    case ControlType::DirListBox:
    case ControlType::FileListBox:
      return control.ReachOfUser() == Reach::Done;
    default:
      return false;
    }
  }

  bool CanHaveTab(const Control &control) const {
    const QWidget *widget = WindowOf(control.Owner()).WidgetOf(control);
    return widget != nullptr && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0;
  }

  // The boxes that a knob changes.
  static std::vector<const TextBox *> ChangedByDrag(MouseControl &knob) {
    std::map<const TextBox *, std::string> before;
    for (const Control *control : knob.Owner().Controls())
      if (const auto *box = dynamic_cast<const TextBox *>(control))
        before[box] = box->Text();
    std::vector<const TextBox *> changed;
    for (const float direction : {-1.0F, 1.0F}) { // one that stands at its limit goes only one way
      knob.UserMouseDown({});
      for (int step = 1; step <= 20; ++step)
        knob.UserMouseMove({.y = direction * static_cast<float>(step) * 150});
      knob.UserMouseUp({});
      for (const auto &[box, text] : before)
        if (box->Text() != text)
          changed.push_back(box);
    }
    return changed;
  }

  // Whether the control does something when it is clicked or dragged.
  static bool ReactsToMouse(const Control &control) {
    if (const auto *image = dynamic_cast<const Image *>(&control))
      return image->onMouseDown || image->onClick || image->onDblClick;
    if (const auto *label = dynamic_cast<const Label *>(&control))
      return label->onClick != nullptr;
    if (const auto *frame = dynamic_cast<const Frame *>(&control))
      return frame->onClick != nullptr;
    return IsWorkedWithKeys(control);
  }

  // What a click there does.
  static void Click(Control &control) {
    if (auto *image = dynamic_cast<Image *>(&control))
      image->UserClick();
    else if (auto *label = dynamic_cast<Label *>(&control))
      label->UserClick();
    else if (auto *frame = dynamic_cast<Frame *>(&control))
      frame->UserClick();
  }

  static void Turn(QWidget &widget, int steps) {
    const QPointF middle(widget.rect().center());
    QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, 120 * steps}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
  }
};

TEST_F(KeyboardTest, TabReachesWhatAUserCanReachInTheOrderOfReading) {
  app.F_Tessoro.InitPanelParams();
  for (Form *form : Forms()) {
    FormWindow &window = Work(*form);
    std::vector<std::string> expected;
    for (const Control *control : ReadingOrder(*form))
      if (IsWorkedWithKeys(*control))
        expected.push_back(control->Name());
    std::map<const QWidget *, std::string> names;
    for (const Control *control : form->Controls())
      names[window.WidgetOf(*control)] = control->Name();
    if (expected.empty())
      continue;
    window.WidgetOf(*form->FindControl(expected.front()))->setFocus(Qt::TabFocusReason);
    std::vector<std::string> visited;
    for (std::size_t i = 0; i < expected.size(); ++i) {
      visited.push_back(names[QApplication::focusWidget()]);
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited, expected) << form->Name();
    EXPECT_EQ(names[QApplication::focusWidget()], expected.front()) << "and around";
    form->Unload();
  }
}

// Beside the boxes of the knobs there are the access keys; and what merely closes its form needs no
// way of its own, for every window has keys that close it.
TEST_F(KeyboardTest, WhatTheMouseWorksIsInReachOfTheKeyboard) {
  app.F_Tessoro.InitPanelParams();
  for (Form *form : Forms()) {
    Work(*form);
    int found = 0;
    for (Control *control : form->Controls()) {
      if (control->ReachOfUser() != Reach::Done || !ReactsToMouse(*control))
        continue;
      ++found;
      if (CanHaveTab(*control))
        continue;
      auto *image = dynamic_cast<Image *>(control);
      if (image != nullptr && !image->AccessKey().empty())
        continue;
      if (image != nullptr && image->onMouseDown) {
        const std::vector<const TextBox *> boxes = ChangedByDrag(*image);
        EXPECT_TRUE(std::any_of(boxes.begin(), boxes.end(),
                                [&](const TextBox *box) { return CanHaveTab(*box); }))
            << form->Name() << "." << control->Name();
        continue;
      }
      Click(*control);
      EXPECT_FALSE(form->IsLoaded()) << form->Name() << "." << control->Name();
      Work(*form);
    }
    EXPECT_GT(found, 0) << form->Name();
    form->Unload();
  }
}

TEST_F(KeyboardTest, TheOrderOfReadingFollowsTheSoundAndEachStrip) {
  std::vector<std::string> order;
  for (const Control *control : ReadingOrder(app.F_Tessoro))
    if (IsWorkedWithKeys(*control))
      order.push_back(control->Name());
  const auto placeOf = [&](const std::string &name) {
    const auto found = std::find(order.begin(), order.end(), name);
    EXPECT_NE(found, order.end()) << name;
    return found - order.begin();
  };
  const std::vector<std::string> road{"VScrollOSC1vol",   "ComboOSC1shape",  "TextOSC1semi",
                                      "HScrollOSC1semi",  "TextOSC1pw",      "CheckOSC1mute",
                                      "TextOSC1fbalance", "CheckSyncOn",     "VScrollOSC2vol",
                                      "VScrollOSC3vol",   "VScrollNoiseVol", "ComboFilter1",
                                      "TextF1_cutoff",    "TextF1_reso",     "ComboF1Modulation",
                                      "ComboFilter2",     "TextF2_pan",      "C_octaveminus",
                                      "C_octaveplus",     "ComboEnv1",       "TextEnv1T1",
                                      "TextEnv1T3",       "ComboEnvFilter",  "TextEnv2T1",
                                      "VScrollAmpVolume", "TextAmpVelocity", "InitSnd",
                                      "NoteC1",           "NoteC2",          "NoteC3",
                                      "NoteC4",           "NoteC5",          "Panic"};
  for (std::size_t i = 0; i + 1 < road.size(); ++i)
    EXPECT_LT(placeOf(road[i]), placeOf(road[i + 1])) << road[i] << ", " << road[i + 1];
}

TEST_F(KeyboardTest, FocusCanBeSeenOnWhateverHasIt) {
  for (const Control *control : std::initializer_list<Control *>{
           &bench.Box, &bench.Combo, &bench.Check, &bench.Push, &bench.HBar, &bench.VBar,
           &bench.Drive, &bench.Dir, &bench.File, &bench.Key}) {
    QWidget &widget = WidgetOf(*control);
    Focus(bench.Name);
    const QImage without = widget.grab().toImage();
    Focus(*control);
    EXPECT_NE(widget.grab().toImage(), without) << control->Name();
  }
}

TEST_F(KeyboardTest, WhereASoundIsSavedItsNameCanBeTypedAtOnce) {
  app.F_Tessoro.InitSnd.UserClick();
  for (Menu *direction : {&app.F_Tessoro.Menu_OpenSound, &app.F_Tessoro.Menu_SaveSound}) {
    direction->UserClick();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&WindowOf(app.F_FileIO)));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("pad"));
    EXPECT_EQ(app.F_FileIO.TextFilename.Text(), "pad");
    app.F_FileIO.Unload();
  }
}

TEST_F(KeyboardTest, AKnobLeavesTheFocusWhereItIs) {
  Focus(bench.Box);
  QTest::mouseClick(&WidgetOf(bench.Knob), Qt::LeftButton);
  QTest::mouseClick(&WidgetOf(bench.Key), Qt::LeftButton);
  EXPECT_TRUE(WidgetOf(bench.Box).hasFocus());
}

TEST_F(KeyboardTest, AClickIntoABoxWithANumberIsEnoughToTypeAnother) {
  bench.Box.SetText("82");
  Focus(bench.Name);
  Heard();
  QTest::mouseClick(&WidgetOf(bench.Box), Qt::LeftButton);
  QTest::keyClicks(&WidgetOf(bench.Box), QStringLiteral("64"));
  EXPECT_EQ(bench.Box.Text(), "64");
  QTest::mouseClick(&WidgetOf(bench.Box), Qt::LeftButton);
  QTest::keyClick(&WidgetOf(bench.Box), Qt::Key_End);
  QTest::keyClicks(&WidgetOf(bench.Box), QStringLiteral("5"));
  EXPECT_EQ(bench.Box.Text(), "645") << "a second click sets the cursor";
}

TEST_F(KeyboardTest, AnAccessKeyPressesItsButton) {
  Focus(bench.Box);
  QTest::keyClick(WindowOf(bench).windowHandle(), Qt::Key_P, Qt::AltModifier);
  QTest::qWait(150); // a button that is pressed by a key shows it for a while
  EXPECT_THAT(Heard(), testing::Contains("Push Click"));
}

TEST_F(KeyboardTest, AnAccessKeyThatNobodyHasTypesNothing) {
  for (const Control *control : std::initializer_list<Control *>{&bench.Name, &bench.Combo}) {
    Focus(*control);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Z, Qt::AltModifier);
  }
  EXPECT_EQ(bench.Name.Text(), "");
  EXPECT_EQ(bench.Combo.Text(), "?");
}

TEST_F(KeyboardTest, WhereMenuAndButtonShareAnAccessKeyTheMenuOpens) {
  FormWindow &window = Work(app.F_Tessoro);
  midi.messages.clear();
  for (int i = 0; i < 2; ++i) {
    QTest::keyClick(window.windowHandle(), Qt::Key_P, Qt::AltModifier);
    auto *list = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->title(), QStringLiteral("mQ &parameters"));
    list->close();
  }
  EXPECT_TRUE(midi.messages.empty());
}

TEST_F(KeyboardTest, AButtonUnderlinesNoAccessKeyThatIsTheMenus) {
  FormWindow &window = Work(app.F_Tessoro);
  const auto textOf = [&](const Control &control) {
    return dynamic_cast<QPushButton &>(*window.WidgetOf(control)).text();
  };
  EXPECT_EQ(textOf(app.F_Tessoro.Panic), QStringLiteral("Panic"));
  EXPECT_EQ(app.F_Tessoro.Panic.Caption(), "&Panic");
  app.F_Tessoro.Panic.SetCaption("&P && Q");
  EXPECT_EQ(textOf(app.F_Tessoro.Panic), QStringLiteral("P && Q"));
  EXPECT_EQ(dynamic_cast<QPushButton &>(WidgetOf(bench.Push)).text(), QStringLiteral("&Push"));
}

TEST_F(KeyboardTest, TheRoutingIsSwitchedByItsAccessKey) {
  FormWindow &window = Work(app.F_Tessoro);
  Focus(app.F_Tessoro.TextF1_cutoff);
  QTest::keyClick(window.windowHandle(), Qt::Key_R, Qt::AltModifier);
  EXPECT_EQ(app.F_Tessoro.TextFilterParSer.Text(), "1");
  QTest::keyClick(window.windowHandle(), Qt::Key_R, Qt::AltModifier);
  EXPECT_EQ(app.F_Tessoro.TextFilterParSer.Text(), "0");
  EXPECT_TRUE(WidgetOf(app.F_Tessoro.TextF1_cutoff).hasFocus());
}

TEST_F(KeyboardTest, ArrowKeysInAListSendAtEveryStep) {
  Work(app.F_Tessoro);
  app.F_Tessoro.InitPanelParams();
  midi.messages.clear();
  Focus(app.F_Tessoro.ComboFilter1);
  for (int i = 0; i < 3; ++i)
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(midi.messages.size(), 3U);
  EXPECT_EQ(app.F_Tessoro.ComboFilter1.ListIndex(), 4);
}

TEST_F(KeyboardTest, TheWheelChangesAListOrABarOnlyWithTheFocus) {
  FormWindow &window = Work(app.F_Tessoro);
  app.F_Tessoro.InitPanelParams();
  midi.messages.clear();
  window.setFocus();
  for (const Control *control : app.F_Tessoro.Controls())
    if (QWidget *widget = window.WidgetOf(*control); widget != nullptr && !widget->hasFocus())
      Turn(*widget, -1);
  EXPECT_TRUE(midi.messages.empty());
  Focus(app.F_Tessoro.ComboFilter1);
  Turn(WidgetOf(app.F_Tessoro.ComboFilter1), -1);
  EXPECT_EQ(midi.messages.size(), 1U);
}

} // namespace
} // namespace Tessoro::Tests
