#include "tests/endtoend/MachinePorts.hpp"

#include "service/MachineMidi.hpp"

#include <stdexcept>

namespace Tessoro::Tests {
namespace {

template <typename Record, typename Ask>
int NumberOf(const std::string &name, std::uint32_t count, const Ask &ask) {
  for (std::int32_t i = 0; i < static_cast<std::int32_t>(count); ++i) {
    Record record;
    if (ask(i, record) == 0 && record.szPname.data() == name)
      return i;
  }
  throw std::runtime_error("there is no port " + name);
}

} // namespace

int NumberOfOut(const std::string &name) {
  const auto service = MakeMachineMidiService(std::make_shared<BuiltinMicroQ>());
  return NumberOf<MIDIOUTCAPS>(name, service->midiOutGetNumDevs(),
                               [&](std::int32_t i, MIDIOUTCAPS &record) {
                                 return service->midiOutGetDevCapsA(i, record, sizeof record);
                               });
}

int NumberOfIn(const std::string &name) {
  const auto service = MakeMachineMidiService(std::make_shared<BuiltinMicroQ>());
  return NumberOf<MIDIINCAPS>(name, service->midiInGetNumDevs(),
                              [&](std::int32_t i, MIDIINCAPS &record) {
                                return service->midiInGetDevCapsA(i, record, sizeof record);
                              });
}

} // namespace Tessoro::Tests
