#include "face/qt/Launch.hpp"

namespace Tessoro {

void ChooseEventLoop() {
  constexpr const char *variable = "QT_NO_GLIB"; // the toolkit offers no other way
  if (!qEnvironmentVariableIsSet(variable))
    qputenv(variable, "1");
}

Launch::Launch(int &argc, char *argv[]) : application(argc, argv) {
  fonts.End();
  bus.emplace(); // behind the fonts, whose thread leaves its memory to it
}

} // namespace Tessoro
