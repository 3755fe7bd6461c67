// What must hold after each act of a user, whatever the act was.
#pragma once

#include "face/headless/Session.hpp"
#include "tests/sweep/ControlTable.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Tessoro::Random {

// A rule that was broken, and how.
struct Breach {
  std::string rule;
  std::string how;
};

// What the rules have to know of an act besides the editor itself.
struct ActSeen {
  std::vector<std::string> trace;
  // A box on the road of controllers held a number with a fraction. It isn't rounded there and
  // spills into the bytes beside the value.
  bool fractionOnController = false;
  int deepestNesting = 0;
  bool handlersRan = false;
  int filesOpen = 0;
};

// The rules for one editor. Knows its controls from the table of the sweep.
class Rules {
public:
  explicit Rules(Session &editor);

  // The first rule that the act has broken.
  std::optional<Breach> BrokenBy(const ActSeen &act);

private:
  struct Box {
    TextBox *box;
    ScrollBar *bar;
    const Sweep::BoxRow *row;
  };
  struct Check {
    CheckBox *box;
    // Of a mute; else null.
    ScrollBar *volume;
  };

  std::optional<Breach> OfTheWire(const ActSeen &act) const;
  std::optional<Breach> OfTheTrace(const ActSeen &act) const;
  std::optional<Breach> OfBoxes() const;
  std::optional<Breach> OfLists() const;
  std::optional<Breach> OfChecks() const;
  std::optional<Breach> OfPictures() const;
  bool HoldsNumberOf(const Box &each) const;
  bool IsLine(float end, const TextBox &box, float base, float factor) const;

  Session &session;
  std::vector<Box> boxes;
  std::vector<ComboBox *> lists;
  std::vector<ScrollBar *> bars;
  std::vector<Check> checks;
  // A load that failed in the middle leaves the field that it failed on in its box.
  bool loadHasFailed = false;
  // A start that failed in the settings has not got as far as the places of the envelopes' lines.
  bool startHasFailed = false;
};

// How deep handlers may nest. A button (1) has a file's field written into a box beyond its limit
// (2), which writes the limit (3), of which its bar hears (4). Or the field is a number in another
// form than the plain one (2): then the bar hears (3) and writes the box plainly (4).
inline constexpr int DeepestNesting = 4;

} // namespace Tessoro::Random
