#include "service/ErrorTexts.hpp"

#include <algorithm>
#include <array>
#include <string_view>

namespace Tessoro {
namespace {

struct ErrorText {
  MidiResult code;
  std::string_view out;
  std::string_view in;
};

// One text serves both sides unless what the user can do about it differs.
constexpr std::array ErrorTexts = {
    ErrorText{0, "The command was carried out.", {}},
    ErrorText{1, "The MIDI service failed for a reason that it does not tell.", {}},
    ErrorText{2,
              "There is no MIDI OUT device with this number. Choose the port again in the MIDI "
              "settings.",
              "There is no MIDI IN device with this number. Choose the port again in the MIDI "
              "settings."},
    ErrorText{3, "The MIDI driver could not be started.", {}},
    ErrorText{4, "This MIDI OUT device is open already, or another program holds it.",
              "This MIDI IN device is open already, or another program holds it."},
    ErrorText{5, "No MIDI OUT port is open.", "No MIDI IN port is open."},
    ErrorText{6, "There is no driver for this MIDI device.", {}},
    ErrorText{7, "There is not enough memory for this.", {}},
    ErrorText{8, "The MIDI device does not know this function.", {}},
    ErrorText{9, "There is no error with this number.", {}},
    ErrorText{10, "The MIDI device does not know this flag.", {}},
    ErrorText{11, "The MIDI device was given a value that it cannot use.", {}},
    ErrorText{64, "The MIDI message was not prepared before it was sent.", {}},
    ErrorText{65, "The MIDI device is still busy with its data.", {}},
    ErrorText{66, "There is no map for this MIDI device.", {}},
    ErrorText{67, "The MIDI OUT device could not take the message. Wait a moment and try again.",
              "The MIDI IN device is not ready, or it is connected to a MIDI OUT device already."},
    ErrorText{68,
              "The MIDI OUT device is no longer there. Plug it in again, or choose another port in "
              "the MIDI settings.",
              "The MIDI IN device is no longer there. Plug it in again, or choose another port in "
              "the MIDI settings."},
    ErrorText{69, "The set-up of the MIDI devices is not valid.", {}},
    ErrorText{70, "The MIDI device was opened in a way that does not allow this.", {}},
    ErrorText{71, "The MIDI message was left unfinished.", {}},
};

std::string_view FindText(MidiResult code, std::string_view ErrorText::*side) {
  const auto *found = std::find_if(ErrorTexts.begin(), ErrorTexts.end(),
                                   [code](const ErrorText &each) { return each.code == code; });
  if (found == ErrorTexts.end()) {
    return {};
  }
  return (found->*side).empty() ? found->out : found->*side;
}

std::string TextFor(MidiResult code, std::string_view ErrorText::*side) {
  const std::string_view found = FindText(code, side);
  if (!found.empty()) {
    return std::string(found);
  }
  return "The MIDI device gave the error " + std::to_string(code) + ", which is not known here.";
}

} // namespace

std::string OutErrorText(MidiResult code) { return TextFor(code, &ErrorText::out); }

std::string InErrorText(MidiResult code) { return TextFor(code, &ErrorText::in); }

} // namespace Tessoro
