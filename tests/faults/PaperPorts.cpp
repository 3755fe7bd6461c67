#include "tests/faults/PaperPorts.hpp"

namespace Tessoro::Tests {

namespace {

constexpr MidiResult Allocated = 4;
constexpr MidiResult BadHandle = 5;

std::string_view Behind(std::string_view line, std::string_view operation) {
  line.remove_prefix(operation.size() + 1);
  return line.substr(0, line.find(" -> "));
}

} // namespace

Lines PaperPorts::Play(const Lines &faultless) {
  lines.clear();
  bool isListing = false;
  for (std::size_t i = 0; i < faultless.size(); ++i) {
    const std::string_view line = faultless[i];
    if (line.starts_with("midiOutLongMsg ")) {
      SendLong(Behind(line, "midiOutLongMsg"));
    } else if (line.starts_with("midiOutShortMsg ")) {
      SendShort(Behind(line, "midiOutShortMsg"));
    } else if (line.starts_with("midiOutOpen ")) {
      OpenOut();
    } else if (line == "midiOutClose") {
      CloseOut();
    } else if (line.starts_with("midiInOpen ")) {
      OpenThru();
      i += 2; // its midiConnect and its midiInStart
    } else if (line == "midiInStop") {
      CloseThru();
      while (faultless[i] != "midiInClose")
        ++i;
      // Whoever closes both ports is about to list the devices.
      isListing = faultless.front() == "load F_Midi";
      if (isListing && !ListDevices())
        while (faultless[i + 1] != "show F_Midi")
          ++i;
    } else {
      lines.emplace_back(line);
    }
  }
  return lines;
}

MidiResult PaperPorts::Call(std::string_view operation, std::string_view arguments,
                            MidiResult otherwise) {
  MidiResult result = fault(operation);
  if (result == 0)
    result = otherwise;
  std::string line(operation);
  if (!arguments.empty())
    line.append(" ").append(arguments);
  if (result != 0)
    line.append(" -> ").append(std::to_string(result));
  lines.push_back(line);
  return result;
}

MidiResult PaperPorts::QuietCall(std::string_view operation, MidiResult otherwise) {
  const MidiResult result = Call(operation, {}, otherwise);
  if (result == 0)
    lines.pop_back();
  return result;
}

void PaperPorts::Box(Text text, MidiResult code) {
  if (code != 0)
    lines.push_back(BoxLine(0, "Tessoro",
                            std::string("vrn midi out detection:\r\n") +
                                (text == Text::Out ? "OUT" : "IN") + " error " +
                                std::to_string(code) + "\r\n"));
}

void PaperPorts::SendLong(std::string_view bytes) {
  const MidiResult known = hasOut ? 0 : BadHandle;
  if (const MidiResult result = QuietCall("midiOutPrepareHeader", known); result != 0) {
    Box(Text::Out, result);
    return;
  }
  Box(Text::Out, Call("midiOutLongMsg", bytes, known));
  Box(Text::Out, QuietCall("midiOutUnprepareHeader", known));
}

// Nobody looks at what comes of it.
void PaperPorts::SendShort(std::string_view word) {
  Call("midiOutShortMsg", word, hasOut ? 0 : BadHandle);
}

void PaperPorts::OpenOut() {
  const MidiResult result = Call("midiOutOpen", "0", outIsOpen ? Allocated : 0);
  if (result == 0)
    hasOut = outIsOpen = true;
  Box(Text::Out, result);
}

// The handle is forgotten whether or not the device has been closed.
void PaperPorts::CloseOut() {
  if (!hasOut)
    return;
  const MidiResult result = Call("midiOutClose", {}, 0);
  if (result == 0)
    outIsOpen = false;
  hasOut = false;
  Box(Text::Out, result);
}

void PaperPorts::OpenThru() {
  if (!hasOut)
    OpenOut();
  if (!hasOut)
    return;
  if (const MidiResult result = Call("midiInOpen", "0", inIsOpen ? Allocated : 0); result != 0) {
    Box(Text::In, result);
    return;
  }
  hasIn = inIsOpen = true;
  Box(Text::In, Call("midiConnect", {}, 0));
  Call("midiInStart", {}, 0);
}

void PaperPorts::CloseThru() {
  if (!hasIn)
    return;
  const MidiResult known = inIsOpen ? 0 : BadHandle;
  Call("midiInStop", {}, known);
  if (hasOut)
    Box(Text::In, Call("midiDisconnect", {}, known));
  const MidiResult result = Call("midiInClose", {}, known);
  if (result == 0)
    inIsOpen = false;
  Box(Text::In, result);
}

// One device in each direction. The first that can't be asked leaves all lists empty.
bool PaperPorts::ListDevices() {
  if (const MidiResult result = QuietCall("midiOutGetDevCapsA", 0); result != 0) {
    Box(Text::Out, result);
    return false;
  }
  const MidiResult result = QuietCall("midiInGetDevCapsA", 0);
  Box(Text::In, result);
  return result == 0;
}

} // namespace Tessoro::Tests
