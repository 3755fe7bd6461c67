#include "tests/sweep/ControlTable.hpp"

#include "tests/support/TestRun.hpp"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace Tessoro::Sweep {

namespace {

// Beyond these two the low part of a number begins anew.
constexpr int FirstOfSecondBlock = 128;
constexpr int FirstOfThirdBlock = 257;
// Attack, decay, sustain and release.
constexpr int EnvelopeStages = 4;

class Words {
public:
  explicit Words(const std::string &line) : stream(line) {}

  std::string Text() {
    std::string word;
    if (!(stream >> word))
      throw std::runtime_error("a word is missing: " + stream.str());
    return word;
  }
  std::string Name() {
    std::string word = Text();
    return word == "-" ? std::string() : word;
  }
  int Number() { return std::stoi(Text()); }
  std::size_t Count() { return static_cast<std::size_t>(Number()); }
  Road Sends() {
    const std::string word = Text();
    return {word.front(), word == "-" ? 0 : std::stoi(word.substr(1))};
  }
  // A row that knows where its control stands.
  template <typename RowType> RowType RowOf() {
    RowType row;
    row.form = Text();
    row.name = Text();
    return row;
  }
  // All that is left behind one blank.
  std::string Rest() {
    std::string rest;
    stream.get();
    std::getline(stream, rest);
    return rest;
  }

private:
  std::istringstream stream;
};

BoxRow ReadBox(Words &words) {
  BoxRow row = words.RowOf<BoxRow>();
  row.family = words.Text();
  row.lower = words.Number();
  row.upper = words.Number();
  row.road = words.Sends();
  row.bar = words.Name();
  if (const std::string text = words.Name(); !text.empty()) {
    row.doubleClick = std::stoi(text);
    row.sendsItself = text.back() == '+';
  }
  row.reach = words.Text();
  row.envelope = words.Name();
  return row;
}

BarRow ReadBar(Words &words) {
  BarRow row = words.RowOf<BarRow>();
  row.min = words.Number();
  row.max = words.Number();
  row.largeChange = words.Number();
  row.road = words.Sends();
  row.added = words.Number();
  row.partner = words.Name();
  return row;
}

CheckRow ReadCheck(Words &words, bool isMute) {
  CheckRow row = words.RowOf<CheckRow>();
  row.road = words.Sends();
  if (isMute)
    row.bar = words.Text();
  return row;
}

PresetRow ReadPresets(Words &words) {
  PresetRow row = words.RowOf<PresetRow>();
  for (int stage = 0; stage < EnvelopeStages; ++stage)
    row.boxes.push_back(words.Text());
  return row;
}

KnobRow ReadKnob(Words &words) {
  KnobRow row = words.RowOf<KnobRow>();
  row.box = words.Text();
  row.lower = words.Number();
  row.upper = words.Number();
  if (const std::string text = words.Name(); !text.empty())
    row.doubleClick = std::stoi(text);
  row.fineUp = words.Number();
  row.hasTip = words.Text() == "tip";
  row.reach = words.Text();
  return row;
}

class Reader {
public:
  void Read(const std::string &line) {
    Words words(line);
    const std::string kind = words.Text();
    if (kind == "box")
      table.boxes.push_back(ReadBox(words));
    else if (kind == "list")
      ReadList(words);
    else if (kind == "item")
      ReadItem(words);
    else if (kind == "presets")
      table.presets.push_back(ReadPresets(words));
    else if (kind == "preset")
      ReadPreset(words);
    else if (kind == "bar")
      table.bars.push_back(ReadBar(words));
    else if (kind == "check" || kind == "mute")
      table.checks.push_back(ReadCheck(words, kind == "mute"));
    else if (kind == "knob")
      table.knobs.push_back(ReadKnob(words));
    else
      throw std::runtime_error("no row is called " + kind);
  }

  ControlTable Finished() {
    for (std::size_t i = 0; i < table.lists.size(); ++i)
      table.lists[i].items = items.at(itemsOfList[i]);
    return table;
  }

private:
  void ReadList(Words &words) {
    ListRow row = words.RowOf<ListRow>();
    row.kind = words.Text();
    row.road = words.Sends();
    itemsOfList.push_back(words.Text());
    row.shown = words.Count();
    row.known = words.Count();
    row.reach = words.Text();
    row.message = words.Rest();
    table.lists.push_back(row);
  }

  void ReadItem(Words &words) {
    std::vector<Item> &list = items[words.Text()];
    const int value = words.Number();
    list.push_back({value, words.Rest()});
  }

  void ReadPreset(Words &words) {
    const std::string name = words.Text();
    const auto list = std::ranges::find(table.presets, name, &Row::name);
    if (list == table.presets.end())
      throw std::runtime_error("no list of presets is called " + name);
    Preset preset;
    for (int stage = 0; stage < EnvelopeStages; ++stage)
      preset.values.push_back(words.Number());
    preset.text = words.Rest();
    list->presets.push_back(preset);
  }

  ControlTable table;
  std::map<std::string, std::vector<Item>> items;
  std::vector<std::string> itemsOfList;
};

ControlTable ReadTable() {
  std::ifstream file(TESSORO_SWEEP_TABLE);
  if (!file)
    throw std::runtime_error("the table of the controls can't be read");
  Reader reader;
  for (std::string line; std::getline(file, line);)
    if (!line.empty() && line.front() != '#')
      reader.Read(line);
  return reader.Finished();
}

} // namespace

std::string Road::Message(int value) const {
  if (kind == 'c') {
    std::array<char, 9> text{};
    std::snprintf(text.data(), text.size(), "00%02X%02XB0", static_cast<unsigned>(value),
                  static_cast<unsigned>(number));
    return text.data();
  }
  if (number >= FirstOfThirdBlock)
    return ParameterMessage(2, number - FirstOfThirdBlock, value);
  if (number >= FirstOfSecondBlock)
    return ParameterMessage(1, number - FirstOfSecondBlock, value);
  return ParameterMessage(0, number, value);
}

int BoxRow::Kept(int number) const {
  if (family == "switch")
    return number == 1 ? 1 : 0;
  if (family == "glide" && number > upper)
    return 0;
  return std::clamp(number, lower, upper);
}

const BoxRow &ControlTable::Box(const std::string &form, const std::string &name) const {
  const auto found = std::ranges::find_if(
      boxes, [&](const BoxRow &row) { return row.form == form && row.name == name; });
  if (found == boxes.end())
    throw std::runtime_error("no box is called " + name);
  return *found;
}

const ControlTable &Controls() {
  static const ControlTable table = ReadTable();
  return table;
}

std::ostream &operator<<(std::ostream &stream, const Row &row) {
  return stream << row.form << '.' << row.name;
}

} // namespace Tessoro::Sweep
