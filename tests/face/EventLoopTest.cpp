#include "face/qt/Launch.hpp"

#include <QAbstractEventDispatcher>
#include <QByteArray>

#include <gtest/gtest.h>

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

} // namespace
} // namespace Tessoro
