// The plain table of the controls, controls.txt, which tells the form of its rows.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace Tessoro::Sweep {

// What carries a value: nothing, a parameter change or a controller.
struct Road {
  char kind = '-';
  int number = 0;

  // The message of one value, as TestMidi notes it.
  std::string Message(int value) const;
};

struct Row {
  std::string form;
  std::string name;
};

struct BoxRow : Row {
  std::string family;
  int lower = 0;
  int upper = 0;
  Road road;
  std::string bar;
  std::optional<int> doubleClick;
  bool sendsItself = false;
  std::string reach;
  std::string envelope;

  bool IsBipolar() const { return family == "bipolar"; }
  bool WaitsEmpty() const { return family == "bipolar" || family == "unipolar"; }
  int Wire(int number) const { return IsBipolar() ? number + 64 : number; }
  // What the box makes of a number.
  int Kept(int number) const;
};

struct Item {
  int value = 0;
  std::string text;
};

struct ListRow : Row {
  std::string kind;
  Road road;
  std::vector<Item> items;
  std::size_t shown = 0;
  std::size_t known = 0;
  std::string reach;
  std::string message;
};

struct Preset {
  std::vector<int> values;
  std::string text;
};

struct PresetRow : Row {
  std::vector<std::string> boxes;
  std::vector<Preset> presets;
};

struct BarRow : Row {
  int min = 0;
  int max = 0;
  int largeChange = 0;
  Road road;
  int added = 0;
  std::string partner;
};

struct CheckRow : Row {
  Road road;
  // Of a mute: the bar that it silences.
  std::string bar;
};

struct KnobRow : Row {
  std::string box;
  int lower = 0;
  int upper = 0;
  std::optional<int> doubleClick;
  int fineUp = 0;
  bool hasTip = false;
  std::string reach;
};

struct ControlTable {
  std::vector<BoxRow> boxes;
  std::vector<ListRow> lists;
  std::vector<PresetRow> presets;
  std::vector<BarRow> bars;
  std::vector<CheckRow> checks;
  std::vector<KnobRow> knobs;

  // The first of that name.
  const BoxRow &Box(const std::string &form, const std::string &name) const;
};

// Read once. Throws std::runtime_error where the file can't be read or a row can't be understood.
const ControlTable &Controls();

std::ostream &operator<<(std::ostream &stream, const Row &row);

} // namespace Tessoro::Sweep
