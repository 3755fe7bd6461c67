#include "face/qt/Launch.hpp"

#include <QLibrary>

namespace Tessoro {

void ChooseEventLoop() {
  constexpr const char *variable = "QT_NO_GLIB"; // the toolkit offers no other way
  if (!qEnvironmentVariableIsSet(variable))
    qputenv(variable, "1");
}

bool OpenDisplayLibrary() {
  const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
  const bool isX = chosen.isEmpty() ? qEnvironmentVariableIsSet("DISPLAY") &&
                                          !qEnvironmentVariableIsSet("WAYLAND_DISPLAY")
                                    : chosen.startsWith("xcb");
  return isX && QLibrary(QStringLiteral("Qt6XcbQpa"), 6).load();
}

Launch::BeforeThreads::BeforeThreads() {
  ChooseEventLoop();
  OpenDisplayLibrary();
}

Launch::Launch(int &argc, char *argv[]) : application(argc, argv) {
  fonts.End();
  bus.emplace(); // behind the fonts, whose thread leaves its memory to it
}

} // namespace Tessoro
