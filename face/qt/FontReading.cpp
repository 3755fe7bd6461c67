#include "face/qt/FontReading.hpp"

#include <fontconfig/fontconfig.h>

namespace Tessoro {

FontReading::FontReading() : thread([] { FcInit(); }) {}

} // namespace Tessoro
