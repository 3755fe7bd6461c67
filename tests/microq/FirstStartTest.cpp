// The first start as a new user would do it, up to what can be read in the window of the microQ.
#include "face/microq/WatchedMicroQ.hpp"
#include "face/qt/FormWindow.hpp"
#include "face/qt/Program.hpp"
#include "face/qt/Text.hpp"
#include "service/PlatformMidiService.hpp"
#include "service/builtin/BuiltinSource.hpp"
#include "service/builtin/MessageText.hpp"

#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Tessoro::Tests {
namespace {

std::vector<std::unique_ptr<DeviceSource>> BuiltinDevices(WatchedMicroQ &watched) {
  std::vector<std::unique_ptr<DeviceSource>> sources;
  // The one that watches belongs to the test.
  sources.push_back(MakeBuiltinSource({std::shared_ptr<void>(), &watched.MicroQ()}));
  return sources;
}

class FirstStartTest : public testing::Test {
protected:
  FirstStartTest() { program.Editor().Start(); }

  template <typename View = QWidget> View *ViewOf(const Control &control) {
    return qobject_cast<View *>(program.Windows().WindowOf(control.Owner())->WidgetOf(control));
  }

  void Pick(ComboBox &list, int index) {
    auto *view = ViewOf(list);
    view->setFocus();
    for (int i = 0; i <= index; ++i)
      QTest::keyClick(view, Qt::Key_Down);
  }

  std::vector<std::string> Meanings() {
    std::vector<std::string> meanings;
    const MessageModel &messages = watched.Window()->Messages();
    for (int row = 0; row < messages.rowCount(); ++row)
      meanings.push_back(MeaningText(messages.At(row)));
    return meanings;
  }

  const QTemporaryDir directory;
  WatchedMicroQ watched;
  PlatformMidiService midi{BuiltinDevices(watched)};
  Program program{midi, ToModel(directory.path())};
};

TEST_F(FirstStartTest, WhatIsPlayedAndChangedCanBeReadInTheWindowOfTheMicroQ) {
  F_Midi &ports = program.Editor().F_Midi;
  ASSERT_TRUE(ports.IsShown());
  Pick(ports.AuswahlMIDIPort, 0);
  Pick(ports.AuswahlMIDIinPort, 0);
  QTest::mouseClick(ViewOf<QPushButton>(ports.Command1), Qt::LeftButton);
  EXPECT_FALSE(ports.IsShown());
  ASSERT_TRUE(QTest::qWaitFor([&] { return watched.Window() && watched.Window()->isVisible(); }));

  F_Tessoro &form = program.Editor().F_Tessoro;
  QTest::mouseClick(ViewOf(form.NoteC3), Qt::LeftButton);
  auto *cutoff = ViewOf<QLineEdit>(form.TextF1_cutoff);
  cutoff->selectAll();
  QTest::keyClicks(cutoff, QStringLiteral("64"));

  ASSERT_TRUE(QTest::qWaitFor([&] { return watched.Window()->Messages().rowCount() >= 4; }));
  EXPECT_THAT(Meanings(), testing::ElementsAre("Note C3 on, velocity 100", "Note C3 off",
                                               "Filter 1 cutoff = 6", "Filter 1 cutoff = 64"));

  program.Windows().WindowOf(form)->close();
  EXPECT_TRUE(program.Windows().ExitStatus().has_value()) << "the microQ keeps the program alive";
  QFile settings(directory.filePath(QStringLiteral("Tessoro.ini")));
  ASSERT_TRUE(settings.open(QFile::ReadOnly));
  EXPECT_EQ(settings.readAll().toStdString(),
            "\"Tessoro v1.3.1\"\r\n,\"\"\r\n3,3\r\n0,0\r\n0,0\r\n\"?\"\r\n\"Yes\"\r\n");
}

} // namespace
} // namespace Tessoro::Tests
