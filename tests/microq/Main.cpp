// Looks at the microQ window, on a display that nobody sees.
#include "face/qt/Launch.hpp"
#include "face/qt/Program.hpp"

#include <gtest/gtest.h>

int main(int argc, char *argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  const Tessoro::Launch launch(argc, argv);
  Tessoro::DressApplication();
  return RUN_ALL_TESTS();
}
