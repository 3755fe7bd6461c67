// Drives real widgets, on a display that nobody sees.
#include "face/qt/Program.hpp"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char *argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  Tessoro::ChooseEventLoop();
  const QApplication application(argc, argv);
  Tessoro::DressApplication();
  return RUN_ALL_TESTS();
}
