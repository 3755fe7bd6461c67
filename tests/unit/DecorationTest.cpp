#include "tests/unit/ControlFixture.hpp"

namespace Tessoro {
namespace {

using testing::ElementsAre;

using LabelTest = ControlFixture;
using LineTest = ControlFixture;
using ShapeTest = ControlFixture;
using ImageTest = ControlFixture;
using NoteKeyTest = ControlFixture;
using FrameTest = ControlFixture;

TEST_F(LabelTest, ADifferentCaptionRaisesChange) {
  int changes = 0;
  form.Text.onChange = [&changes] { ++changes; };
  form.Text.SetCaption("OSC 2 (slave)");
  form.Text.SetCaption("OSC 2 (slave)");
  EXPECT_EQ(changes, 1);
}

TEST_F(LabelTest, ItsWidthCanBeWritten) {
  form.Text.SetWidth(1360);
  form.Text.SetWidth(1360);
  EXPECT_EQ(form.Text.Width(), 1360);
  EXPECT_EQ(ChangesOf(form.Text, Property::Width), 1);
}

TEST_F(LabelTest, ALoadTakesCaptionAndWidthBack) {
  form.Text.SetCaption("OSC 2 (slave)");
  form.Text.SetWidth(1360);
  form.Unload();
  form.Load();
  EXPECT_EQ(form.Text.Caption(), "OSC 2");
  EXPECT_EQ(form.Text.Width(), 735);
}

TEST_F(LabelTest, TellsAFaceHowItsDeclarationSetsIt) {
  EXPECT_EQ(form.Value.Style(), LabelStyle::Readout);
  EXPECT_EQ(form.Value.Align(), LabelAlign::Right);
  EXPECT_EQ(form.Text.Style(), LabelStyle::Plain);
  EXPECT_EQ(form.Text.Align(), LabelAlign::Left);
}

TEST_F(LineTest, KeepsTheColorOfItsDeclarationWhereverItMoves) {
  form.Slope.SetX1(1.5F);
  EXPECT_EQ(form.Slope.LineColor(), Colors::Navy);
}

TEST_F(LineTest, EachEndMovesByItself) {
  form.Slope.SetX1(1.5F);
  form.Slope.SetY2(-3);
  EXPECT_EQ(form.Slope.Ends(), (LineEnds{1.5F, 20, 30, -3}));
  EXPECT_EQ(ChangesOf(form.Slope, Property::Ends), 2);
}

TEST_F(LineTest, AnEndThatIsThereAlreadyTellsNobody) {
  form.Slope.SetX2(30);
  form.Slope.SetY1(20);
  EXPECT_EQ(ChangesOf(form.Slope, Property::Ends), 0);
}

TEST_F(LineTest, ALoadTakesItBackToItsDesign) {
  form.Slope.SetX1(99);
  form.Unload();
  form.Load();
  EXPECT_EQ(form.Slope.Ends(), (LineEnds{10, 20, 30, 40}));
}

TEST_F(ShapeTest, TellsAFaceWhatToDraw) { EXPECT_EQ(form.Plate.Kind(), ShapeKind::Inset); }

TEST_F(NoteKeyTest, TellsAFaceWhatStandsOnIt) { EXPECT_EQ(form.Key.Caption(), "C"); }

TEST_F(ImageTest, TellsAFaceItsPictureAndTheKeyThatClicksIt) {
  EXPECT_EQ(form.Knob.Picture(), "knob");
  EXPECT_EQ(form.Knob.AccessKey(), "Alt+K");
  EXPECT_EQ(form.Ghost.AccessKey(), "");
}

TEST_F(ImageTest, PressesMovesAndReleasesArriveWithTheirPlace) {
  std::vector<std::string> events;
  const auto note = [&events](const char *what) {
    return [&events, what](const MouseEvent &event) {
      events.push_back(what + std::to_string(static_cast<int>(event.y)));
    };
  };
  form.Knob.onMouseDown = note("down ");
  form.Knob.onMouseMove = note("move ");
  form.Knob.onMouseUp = note("up ");
  form.Knob.UserMouseDown({.y = 10});
  form.Knob.UserMouseMove({.y = -40});
  form.Knob.UserMouseUp({.y = -41});
  EXPECT_THAT(events, ElementsAre("down 10", "move -40", "up -41"));
}

TEST_F(ImageTest, AHiddenOrDisabledImageRaisesNothing) {
  int events = 0;
  for (Image *image : {&form.Ghost, &form.Knob}) {
    image->onMouseDown = [&events](const MouseEvent &) { ++events; };
    image->onClick = [&events] { ++events; };
    image->onDblClick = [&events] { ++events; };
  }
  form.Knob.SetEnabled(false);
  EXPECT_EQ(form.Ghost.UserMouseDown({}), Reach::Hidden);
  EXPECT_EQ(form.Ghost.UserClick(), Reach::Hidden);
  EXPECT_EQ(form.Knob.UserMouseDown({}), Reach::Disabled);
  EXPECT_EQ(form.Knob.UserDblClick(), Reach::Disabled);
  EXPECT_EQ(events, 0);
}

TEST_F(ImageTest, WhatIsBothHiddenAndDisabledCountsAsHidden) {
  form.Ghost.SetEnabled(false);
  EXPECT_EQ(form.Ghost.UserClick(), Reach::Hidden);
}

TEST_F(ImageTest, ALoadTakesItsVisibilityBack) {
  form.Ghost.SetVisible(true);
  form.Knob.SetVisible(false);
  form.Unload();
  form.Load();
  EXPECT_FALSE(form.Ghost.Visible());
  EXPECT_TRUE(form.Knob.Visible());
}

TEST_F(FrameTest, AClickReachesItsHandler) {
  int clicks = 0;
  form.Ground.onClick = [&clicks] { ++clicks; };
  form.Ground.UserClick();
  EXPECT_EQ(clicks, 1);
}

TEST_F(LineTest, AnEndBeyondSinglePrecisionFails) {
  for (const PropertyEntry &entry : form.Slope.Properties())
    if (entry.name == "X1") {
      EXPECT_EQ(FailureOf([&] { entry.set(1e39); }), 6);
    }
}

} // namespace
} // namespace Tessoro
