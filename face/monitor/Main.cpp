// Shows what any program sends to a microQ.
#include "face/microq/MicroQWindow.hpp"
#include "face/monitor/EndSignals.hpp"
#include "face/monitor/MonitorOptions.hpp"
#include "face/monitor/MonitorPort.hpp"
#include "face/monitor/TextMonitor.hpp"
#include "face/qt/Program.hpp"

#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

using namespace Tessoro;

// Answered before anything needs a port or a display.
bool AnswersAlone(std::string_view argument) {
  if (argument == "--help" || argument == "-h") {
    std::fputs(MonitorHelp, stdout);
    return true;
  }
  if (argument == "--version") {
    const ProgramVersion version;
    std::printf("tessoro-monitor %d.%d.%d\n", version.major, version.minor, version.revision);
    return true;
  }
  return false;
}

bool HasDisplay() {
  for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    if (const char *value = std::getenv(name); value != nullptr && *value != '\0')
      return true;
  return false;
}

int RunWindow(MonitorPort &port, const BuiltinMicroQ &microQ, MessageInbox &inbox,
              const EndSignals &endSignals) {
  using namespace std::chrono_literals;
  QApplication::setQuitOnLastWindowClosed(true);
  MicroQWindow window(microQ, inbox, QString::fromLatin1(MonitorPortName));
  const QString system = QString::fromStdString(port.system);
  window.ShowStatus(MicroQWindow::tr("Listening at %1").arg(system));
  QSocketNotifier end(endSignals.Descriptor(), QSocketNotifier::Read);
  QObject::connect(&end, &QSocketNotifier::activated, &window, [] { QApplication::quit(); });
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &window, [&] {
    if (port.port->IsThere())
      return;
    look.stop();
    window.ShowStatus(MicroQWindow::tr("Gone: %1").arg(system));
  });
  look.start(1s);
  window.OpenAlone();
  window.show();
  return QApplication::exec();
}

int Complain(const std::string &complaint, int status) {
  std::fprintf(stderr, "tessoro-monitor: %s\n", complaint.c_str());
  return status;
}

} // namespace

int main(int argc, char *argv[]) {
  const std::span<const char *const> arguments(argv + 1, argv + argc);
  for (const char *argument : arguments)
    if (AnswersAlone(argument))
      return 0;
  std::string complaint;
  const std::optional<MonitorOptions> options = ReadMonitorOptions(arguments, complaint);
  if (!options)
    return Complain(complaint, 2);
  if (!options->asText && !HasDisplay())
    return Complain("there is no display for a window here; --text does without", 1);

  const EndSignals endSignals;
  BuiltinMicroQ microQ;
  MessageInbox inbox(options->asText ? MostWaitingMessages : MessageModel::MostLines);
  microQ.AddListener(inbox);
  MonitorPort port = OpenMonitorPort(*options, microQ);
  if (port.port == nullptr)
    return Complain("there is " + port.system + " here that would grant a MIDI port", 1);
  if (options->asText)
    return RunTextMonitor(port, inbox, endSignals);
  const QApplication application(argc, argv);
  DressApplication();
  return RunWindow(port, microQ, inbox, endSignals);
}
