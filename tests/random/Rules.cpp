#include "tests/random/Rules.hpp"

#include "surface/Conversions.hpp"
#include "tests/random/RandomUser.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

namespace Tessoro::Random {

namespace {

constexpr std::uint32_t HighestData = 127;

std::optional<Breach> Broken(std::string_view rule, std::string how) {
  return Breach{std::string(rule), std::move(how)};
}

// The words behind the name of an operation, up to its result.
std::string_view Arguments(std::string_view line) {
  const std::size_t begin = std::min(line.find(' '), line.size() - 1) + 1;
  return line.substr(begin, line.find(" -> ") - begin);
}

std::uint32_t Hex(std::string_view digits) {
  return static_cast<std::uint32_t>(std::stoul(std::string(digits), nullptr, 16));
}

// F0 3E 10 00 20 00 hh pp xx F7, and only what a sound parameter can be addressed by.
bool IsParameterChange(std::string_view bytes) {
  constexpr std::size_t length = 10 * 3 - 1;
  constexpr std::string_view begin = "F0 3E 10 00 20 00 ";
  if (bytes.size() != length || !bytes.starts_with(begin) || !bytes.ends_with(" F7"))
    return false;
  const auto byteAt = [bytes](std::size_t number) { return Hex(bytes.substr(number * 3, 2)); };
  return byteAt(6) <= 2 && byteAt(7) <= HighestData && byteAt(8) <= HighestData;
}

// The sixteen that end all notes when a port is picked, of which the last has run over.
bool IsAllNotesOff(std::uint32_t word) { return word >= 0x7BB1 && word <= 0x7BC0; }

// Three bytes of a note or of a controller on the channel.
bool IsChannelMessage(std::uint32_t word, int channel) {
  const std::uint32_t status = word & 0xFF;
  const auto wanted = static_cast<std::uint32_t>(channel);
  return (status == 0x90 + wanted || status == 0xB0 + wanted) &&
         (word >> 8 & 0xFF) <= HighestData && (word >> 16) <= HighestData;
}

// Failures that no handler traps end the program: what isn't a number in a box, a number beyond 16
// bits, an index or a value that a control can't take. A file's are all trapped.
bool MayEndTheProgram(std::string_view failure) {
  return failure == "failure 13" || failure == "failure 6" || failure == "failure 380";
}

template <typename Type>
Type *Find(const Session &session, const std::string &form, const std::string &name) {
  return dynamic_cast<Type *>(session.App.FindForm(form)->FindControl(name));
}

} // namespace

Rules::Rules(Session &editor) : session(editor) {
  const Sweep::ControlTable &table = Sweep::Controls();
  for (const Sweep::BoxRow &row : table.boxes)
    // The third panel has a row for each of the envelopes that it shows.
    if (row.envelope != "4")
      boxes.push_back({Find<TextBox>(session, row.form, row.name),
                       row.bar.empty() ? nullptr : Find<ScrollBar>(session, row.form, row.bar),
                       &row});
  for (const Sweep::CheckRow &row : table.checks)
    checks.push_back({Find<CheckBox>(session, row.form, row.name),
                      row.bar.empty() ? nullptr : Find<ScrollBar>(session, row.form, row.bar)});
  for (const Form *form : session.App.Forms())
    for (Control *control : form->Controls()) {
      if (auto *list = dynamic_cast<ComboBox *>(control))
        lists.push_back(list);
      if (auto *bar = dynamic_cast<ScrollBar *>(control))
        bars.push_back(bar);
    }
}

std::optional<Breach> Rules::BrokenBy(const ActSeen &act) {
  if (act.deepestNesting > DeepestNesting)
    return Broken("nesting", std::to_string(act.deepestNesting) + " handlers inside each other");
  if (act.filesOpen != 0)
    return Broken("files", "a file is left open");
  for (const std::string &line : act.trace)
    if (line.starts_with("MsgBox 16 \"Error loading INI\""))
      startHasFailed = true;
    else if (line.starts_with("MsgBox 16 \"Error "))
      loadHasFailed = true;
  if (auto breach = OfTheTrace(act))
    return breach;
  if (auto breach = OfTheWire(act))
    return breach;
  // What failed has left its handlers in the middle.
  if (session.App.HasEnded())
    return std::nullopt;
  for (const auto rule : {&Rules::OfBoxes, &Rules::OfLists, &Rules::OfChecks, &Rules::OfPictures})
    if (auto breach = (this->*rule)())
      return breach;
  return std::nullopt;
}

std::optional<Breach> Rules::OfTheTrace(const ActSeen &act) const {
  for (const std::string &line : act.trace) {
    if (line.starts_with("cannot ") && (act.trace.size() != 1 || act.handlersRan))
      return Broken("refusal", "an act that is refused does something: " + act.trace.front());
    if (line.starts_with("failure ") && !MayEndTheProgram(line))
      return Broken("failure", line + " isn't trapped");
  }
  if (session.App.HasEnded() && !act.trace.back().starts_with("end "))
    return Broken("end", act.trace.back() + " behind the end");
  return std::nullopt;
}

std::optional<Breach> Rules::OfTheWire(const ActSeen &act) const {
  const int channel = session.App.Module1.MidiChannel;
  for (const std::string_view line : act.trace) {
    if (line.starts_with("midiOutLongMsg ") && !IsParameterChange(Arguments(line)))
      return Broken("long message", std::string(line));
    if (!line.starts_with("midiOutShortMsg "))
      continue;
    const std::uint32_t word = Hex(Arguments(line));
    // The channel of the settings file is taken as it stands, whatever it is.
    const bool channelIsOne = channel >= 0 && channel < 16;
    if (channelIsOne && !act.fractionOnController && !IsAllNotesOff(word) &&
        !IsChannelMessage(word, channel))
      return Broken("short message", std::string(line));
  }
  return std::nullopt;
}

// False for what a box waits with, and for what it has never been given.
bool Rules::HoldsNumberOf(const Box &each) const {
  const std::string &text = each.box->Text();
  return !text.empty() && text != "?" && text != "-";
}

std::optional<Breach> Rules::OfBoxes() const {
  for (const Box &each : boxes) {
    if (!each.box->Owner().IsLoaded())
      continue;
    const std::string &text = each.box->Text();
    const Sweep::BoxRow &row = *each.row;
    if (!HoldsNumberOf(each)) {
      const bool mayWait = text == "?" || loadHasFailed || (text.empty() && row.WaitsEmpty()) ||
                           (text == "-" && row.IsBipolar());
      if (!mayWait)
        return Broken("limits", NameOf(*each.box) + " holds " + QuotedText(text));
      continue;
    }
    double number = 0;
    try {
      number = session.App.StrictNumber(text);
    } catch (const Failure &) {
      if (loadHasFailed)
        continue;
      return Broken("limits", NameOf(*each.box) + " holds " + QuotedText(text));
    }
    if (number < row.lower || number > row.upper)
      return Broken("limits", NameOf(*each.box) + " holds " + text);
    if (each.bar != nullptr && each.bar->Value() != RoundHalfEven(number))
      return Broken("mirror", NameOf(*each.box) + " holds " + text + " and its bar stands at " +
                                  std::to_string(each.bar->Value()));
  }
  for (const ScrollBar *bar : bars)
    if (!bar->HasValue(bar->Value()))
      return Broken("limits", NameOf(*bar) + " stands at " + std::to_string(bar->Value()));
  return std::nullopt;
}

std::optional<Breach> Rules::OfLists() const {
  for (const ComboBox *list : lists) {
    const int index = list->ListIndex();
    const bool isItem = index >= 0 && list->HasItem(index) &&
                        list->List()[static_cast<std::size_t>(index)] == list->Text();
    const bool isNone =
        index == -1 && std::ranges::find(list->List(), list->Text()) == list->List().end();
    if (!isItem && !isNone)
      return Broken("mirror", NameOf(*list) + " shows " + QuotedText(list->Text()) +
                                  " for its index " + std::to_string(index));
  }
  return std::nullopt;
}

std::optional<Breach> Rules::OfChecks() const {
  for (const Check &each : checks) {
    const CheckBox &box = *each.box;
    if (box.Value() != 0 && box.Value() != 1)
      return Broken("limits", NameOf(box) + " is " + std::to_string(box.Value()));
    const bool isSet = box.Value() == 1;
    const bool isRight =
        each.volume != nullptr ? box.BackColor() == (isSet ? Colors::Red : Colors::LitGreen)
        : box.Name() == "CheckPolyOn"
            ? !isSet || box.Caption() == "Mono"
            // Only a click colours one that is clear.
            : !isSet || (box.BackColor() == Colors::LitGreen && box.ForeColor() == Colors::Black);
    if (box.Owner().IsLoaded() && !isRight)
      return Broken("mirror", NameOf(box) + " has the wrong looks");
  }
  return std::nullopt;
}

// An end of a line stands where the number in its box puts it; until there is one, at its design.
bool Rules::IsLine(float end, const TextBox &box, float base, float factor) const {
  if (box.Text().empty() || box.Text() == "?")
    return true;
  const auto wanted = base + factor * static_cast<float>(NumericPrefix(box.Text()));
  return std::fabs(end - wanted) < 1;
}

std::optional<Breach> Rules::OfPictures() const {
  const F_Tessoro &form = session.App.F_Tessoro;
  if (!form.IsLoaded())
    return std::nullopt;
  if (form.ImageSeriell.Visible() == form.ImageParallel.Visible())
    return Broken("mirror", "the filters stand in series and in parallel");
  const std::string &routing = form.TextFilterParSer.Text();
  if ((routing == "1" && !form.ImageSeriell.Visible()) ||
      (routing == "0" && !form.ImageParallel.Visible()))
    return Broken("mirror", "the picture of the filters isn't that of " + routing);
  if (form.CheckSyncOn.Value() != (form.TextOSC3.Caption() == "OSC 3 (master)" ? 1 : 0))
    return Broken("mirror", "OSC 3 is called " + form.TextOSC3.Caption());
  if (form.Menu_General.Enabled() != form.Menu_SaveSound.Enabled())
    return Broken("mirror", "one of two menu entries has come alone");
  const bool linesAreRight = IsLine(form.LinieEnv1T1.Ends().x1, form.TextEnv1T1, 745, -6) &&
                             IsLine(form.LinieEnv1T2.Ends().x2, form.TextEnv1T2, 735, 6) &&
                             IsLine(form.LinieEnv1L2.Ends().x1, form.TextEnv1T2, 735, 6) &&
                             IsLine(form.LinieEnv1L2.Ends().y1, form.TextEnv1L2, 6935, -3) &&
                             IsLine(form.LinieEnv1T3.Ends().x2, form.TextEnv1T3, 2055, 6) &&
                             IsLine(form.LinieEnv2T1.Ends().x1, form.TextEnv2T1, 3315, -6) &&
                             IsLine(form.LinieEnv2T2.Ends().x2, form.TextEnv2T2, 3300, 6) &&
                             IsLine(form.LinieEnv2L2.Ends().y2, form.TextEnv2L2, 6935, -3) &&
                             IsLine(form.LinieEnv2T3.Ends().x2, form.TextEnv2T3, 4605, 6);
  if (!startHasFailed && !linesAreRight)
    return Broken("mirror", "an envelope isn't drawn as its boxes say");
  return std::nullopt;
}

} // namespace Tessoro::Random
