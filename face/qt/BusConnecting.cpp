#include "face/qt/BusConnecting.hpp"

#include <QDBusConnection>

namespace Tessoro {

BusConnecting::BusConnecting() : thread([] { QDBusConnection::sessionBus(); }) {}

} // namespace Tessoro
