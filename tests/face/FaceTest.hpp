// A run of the editor in windows, with the workbench shown beside the main form.
#pragma once

#include "face/qt/FormWindow.hpp"
#include "face/qt/Ground.hpp"
#include "face/qt/QtClock.hpp"
#include "face/qt/QtScreen.hpp"
#include "shell/Application.hpp"
#include "sound/RandomNumbers.hpp"
#include "tests/face/Workbench.hpp"
#include "tests/support/TestFiles.hpp"
#include "tests/support/TestMidi.hpp"

#include <QMessageBox>
#include <QPointer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace Tessoro::Tests {

class FaceTest : public testing::Test {
protected:
  // Whether the workbench previews keys.
  explicit FaceTest(bool keyPreview = true);

  void SetUp() override;
  void TearDown() override;

  // What the workbench has heard since the last call, without pure moves of the pointer.
  std::vector<std::string> Heard();

  FormWindow &WindowOf(const Form &form) const { return *screen.WindowOf(form); }
  template <typename Widget = QWidget> Widget &WidgetOf(const Control &control) const {
    return dynamic_cast<Widget &>(*WindowOf(control.Owner()).WidgetOf(control));
  }
  // The ground that all controls of the form lie on.
  Ground &GroundOf(const Form &form) const;
  // What stands on the ground without being a widget of its own; null for any other control.
  const DrawnControl *DrawnFor(const Control &control) const;
  // Gives the control the focus as the user would.
  void Focus(const Control &control) const;

  TestMidi midi;
  QtScreen screen;
  QtClock clock{screen.Entrance()};
  TestFiles files;
  StandardRandomNumbers random;
  Application app{{.midi = midi,
                   .screen = screen,
                   .clock = clock,
                   .files = files,
                   .random = random,
                   .programPath = "/editor"}};
  Workbench bench;
};

// Hands the next message box to the act, which is to answer it. Call before what raises the box.
void WithNextBox(std::function<void(QMessageBox &)> act);

// Lets the event loop run.
void LetPass(int milliseconds = 0);

} // namespace Tessoro::Tests
