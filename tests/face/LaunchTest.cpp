// What happens before the first window.
#include "face/qt/Launch.hpp"

#include <QAbstractEventDispatcher>
#include <QByteArray>

#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <string_view>

namespace Tessoro {
namespace {

TEST(EventLoop, IsTheToolkitsOwn) {
  const QByteArray name = QAbstractEventDispatcher::instance()->metaObject()->className();
  EXPECT_FALSE(name.contains("Glib")) << name.data();
}

TEST(EventLoop, IsTheUsersChoiceWhereThereIsOne) {
  qputenv("QT_NO_GLIB", "");
  ChooseEventLoop();
  EXPECT_TRUE(qEnvironmentVariableIsEmpty("QT_NO_GLIB"));
  qunsetenv("QT_NO_GLIB");
  ChooseEventLoop();
  EXPECT_FALSE(qEnvironmentVariableIsEmpty("QT_NO_GLIB"));
}

bool IsLoaded(std::string_view library) {
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);)
    if (line.find(library) != std::string::npos)
      return true;
  return false;
}

class DisplayLibrary : public testing::Test {
protected:
  // Each test has these as it wants them.
  void SetUp() override {
    for (const char *variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
      qunsetenv(variable);
  }
};

TEST_F(DisplayLibrary, IsThereWhereTheDisplayWillBeOfX) {
  qputenv("DISPLAY", ":1");
  EXPECT_TRUE(OpenDisplayLibrary());
  EXPECT_TRUE(IsLoaded("libQt6XcbQpa.so.6"));
}

TEST_F(DisplayLibrary, IsThereWhereSomebodyAsksForX) {
  qputenv("QT_QPA_PLATFORM", "xcb");
  qputenv("WAYLAND_DISPLAY", "wayland-0");
  EXPECT_TRUE(OpenDisplayLibrary());
}

TEST_F(DisplayLibrary, IsNotOpenedForAnotherDisplay) {
  EXPECT_FALSE(OpenDisplayLibrary());
  qputenv("DISPLAY", ":1");
  qputenv("WAYLAND_DISPLAY", "wayland-0");
  EXPECT_FALSE(OpenDisplayLibrary());
  qunsetenv("WAYLAND_DISPLAY");
  for (const char *chosen : {"offscreen", "wayland", "wayland;xcb"}) {
    qputenv("QT_QPA_PLATFORM", chosen);
    EXPECT_FALSE(OpenDisplayLibrary()) << chosen;
  }
}

} // namespace
} // namespace Tessoro
