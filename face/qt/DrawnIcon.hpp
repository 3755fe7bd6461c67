// Icons that are drawn at whatever size is asked for.
#pragma once

#include <QIcon>

namespace Tessoro {

struct Drawing;

QIcon DrawnIcon(const Drawing &drawing);

} // namespace Tessoro
