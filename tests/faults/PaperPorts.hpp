// What the editor does with its ports where operations of the MIDI service fail, worked out from a
// session in which none does.
#pragma once

#include "midi/MidiService.hpp"
#include "tests/faults/TracedSession.hpp"

#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace Tessoro::Tests {

// Knows nothing of the code: the steps and their boxes stand here once more.
class PaperPorts {
public:
  using Fault = std::function<MidiResult(std::string_view operation)>;

  // The fault is asked at every call of an operation, as the driver's double asks it.
  explicit PaperPorts(Fault faults) : fault(std::move(faults)) {}

  // Takes what an act prints in the session without faults, and returns what it is to print.
  Lines Play(const Lines &faultless);

private:
  enum class Text { Out, In };

  // A call that is traced whatever comes of it.
  MidiResult Call(std::string_view operation, std::string_view arguments, MidiResult otherwise);
  // One that is traced only where it fails.
  MidiResult QuietCall(std::string_view operation, MidiResult otherwise);
  void Box(Text text, MidiResult code);
  void SendLong(std::string_view bytes);
  void SendShort(std::string_view word);
  void OpenOut();
  void CloseOut();
  void OpenThru();
  void CloseThru();
  bool ListDevices();

  const Fault fault;
  Lines lines;
  // What the editor holds: closed, or the one handle it was given; the IN handle is kept for ever.
  bool hasOut = false;
  bool hasIn = false;
  // What the service holds. A close that fails leaves the device open.
  bool outIsOpen = false;
  bool inIsOpen = false;
};

} // namespace Tessoro::Tests
