#include "surface/AmplifierSection.hpp"

#include "surface/BoxFamilies.hpp"

namespace Tessoro {

AmplifierSection::AmplifierSection(Form &owner) : form(owner) {
  // clang-format off
  const BoxRow boxes[] = {
      // box            family             limits  number  bar                  double click
      {TextAmpVolume,   BoxFamilies::Amp,  0, 127, 121,    &VScrollAmpVolume,   {}},
      {TextAmpVelocity, BoxFamilies::Amp,  0, 127, 122,    &VScrollAmpVelocity, {}},
  };
  // clang-format on
  AttachBoxes(boxes);
}

} // namespace Tessoro
