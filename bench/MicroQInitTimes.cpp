#include "bench/MicroQInitTimes.hpp"

#include <cstdio>
#include <stdexcept>

namespace Tessoro {

MicroQInitTimes MeasureMicroQInits() {
  FILE *output = popen("'" TESSORO_MICROQ_INITS "'", "r");
  if (output == nullptr)
    throw std::runtime_error("no program that inits");
  MicroQInitTimes times;
  const int found = std::fscanf(output, "%lf %lf %lf %lf", &times.atNullService,
                                &times.withoutWindow, &times.withWindow, &times.look);
  if (pclose(output) != 0 || found != 4)
    throw std::runtime_error("the window of the microQ shows no init");
  return times;
}

} // namespace Tessoro
