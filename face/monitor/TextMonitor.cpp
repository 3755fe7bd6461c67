#include "face/monitor/TextMonitor.hpp"

#include "service/builtin/MessageText.hpp"

#include <poll.h>

#include <cstdio>

namespace Tessoro {
namespace {

constexpr int PrintIntervalMilliseconds = 33;
constexpr int PrintsBetweenLooks = 30; // whether the port is still there

bool HasSignal(const EndSignals &endSignals, int milliseconds) {
  pollfd waited = {endSignals.Descriptor(), POLLIN, 0};
  return poll(&waited, 1, milliseconds) > 0;
}

void PrintNews(MessageInbox &inbox) {
  const MessageInbox::News news = inbox.Take();
  if (news.skipped > 0)
    std::printf("... %llu messages left out ...\n", static_cast<unsigned long long>(news.skipped));
  for (const LoggedMessage &message : news.messages)
    std::puts(MessageLine(message).c_str());
  std::fflush(stdout);
}

} // namespace

int RunTextMonitor(MonitorPort &port, MessageInbox &inbox, const EndSignals &endSignals) {
  std::printf("Listening at %s, port \"%s\". Ctrl+C ends.\n", port.system.c_str(), MonitorPortName);
  for (int round = 1;; ++round) {
    PrintNews(inbox);
    if (HasSignal(endSignals, PrintIntervalMilliseconds)) {
      PrintNews(inbox);
      return 0;
    }
    if (round % PrintsBetweenLooks == 0 && !port.port->IsThere()) {
      PrintNews(inbox);
      std::fprintf(stderr, "tessoro-monitor: %s has gone\n", port.system.c_str());
      return 1;
    }
  }
}

} // namespace Tessoro
