// The sound parameters that run in groups. No control shows them.
#include "sound/Catalogue.hpp"

#include <array>
#include <string>
#include <vector>

namespace Tessoro {

namespace {

constexpr int HighestWire = 127;

// `count` fields of one kind, `step` numbers apart.
struct GroupRow {
  int first;
  int step;
  int count;
  // Before the field's place in the group.
  std::string_view prefix;
  // Behind it.
  std::string_view suffix;
  int init;
  Display display = Display::Wire;
  std::string_view sentBy = "HSF";
  // The place of the first field.
  int firstIndex = 1;
};

// clang-format off
constexpr GroupRow Groups[] = {
    // first, step, count, name, init
    {245, 4,  2, "Modifier ",             " first field",   0},
    {246, 4,  2, "Modifier ",             " second field",  0},
    {247, 4,  2, "Modifier ",             " third field",   0},
    {248, 4,  2, "Modifier ",             " fourth field", 64},
    // The third group lies across the gap at 256.
    {253, 5,  2, "Modifier ",             " first field",   0, Display::Wire, "HSF", 3},
    {254, 5,  2, "Modifier ",             " second field",  0, Display::Wire, "HSF", 3},
    {255, 5,  2, "Modifier ",             " third field",   0, Display::Wire, "HSF", 3},
    {257, 4,  2, "Modifier ",             " fourth field", 64, Display::Wire, "HSF", 3},
    {262, 3,  8, "Modulation bank 1 slot ", " source",      0},
    {263, 3,  8, "Modulation bank 1 slot ", " destination", 0},
    {264, 3,  8, "Modulation bank 1 slot ", " amount",     64, Display::Signed},
    {286, 3,  8, "Modulation bank 2 slot ", " source",      0},
    {287, 3,  8, "Modulation bank 2 slot ", " destination", 0},
    {288, 3,  8, "Modulation bank 2 slot ", " amount",     64, Display::Signed},
    {312, 1,  2, "Arpeggiator value ",    "",               0, Display::Wire, "HSF", 312},
    {314, 1,  1, "Arpeggiator value ",    "",              15, Display::Wire, "HSF", 314},
    {315, 1,  1, "Arpeggiator value ",    "",               9, Display::Wire, "HSF", 315},
    {316, 1,  1, "Arpeggiator value ",    "",              11, Display::Wire, "HSF", 316},
    {317, 1,  7, "Arpeggiator value ",    "",               0, Display::Wire, "HSF", 317},
    {324, 1,  1, "Arpeggiator value ",    "",              15, Display::Wire, "HSF", 324},
    {328, 1, 16, "Arpeggiator step ",     " first byte",    4},
    {344, 1, 16, "Arpeggiator step ",     " second byte",  68},
};
// clang-format on

struct TextGroup {
  int first;
  std::string_view prefix;
  std::string_view init;
};

constexpr TextGroup Texts[] = {
    {364, "Sound name character ", "Tessoro V2.0 Tes"},
    {380, "Sound category character ", "Init"},
};

struct GroupTable {
  std::vector<std::string> names;
  std::vector<ParameterRow> rows;

  void Add(int number, std::string name, int init, Display display, std::string_view sentBy) {
    names.push_back(std::move(name));
    rows.push_back({number, {}, {}, 0, HighestWire, init, display, sentBy, 0});
  }
};

GroupTable MakeTable() {
  GroupTable table;
  for (const GroupRow &group : Groups)
    for (int i = 0; i < group.count; ++i)
      table.Add(group.first + i * group.step,
                std::string(group.prefix) + std::to_string(group.firstIndex + i) +
                    std::string(group.suffix),
                group.init, group.display, group.sentBy);
  for (const TextGroup &text : Texts)
    for (std::size_t i = 0; i < text.init.size(); ++i)
      table.Add(text.first + static_cast<int>(i), std::string(text.prefix) + std::to_string(i + 1),
                static_cast<unsigned char>(text.init[i]), Display::Character, "HSFN");
  for (std::size_t i = 0; i < table.rows.size(); ++i)
    table.rows[i].name = table.names[i];
  return table;
}

} // namespace

std::span<const ParameterRow> GroupParameters() {
  static const GroupTable table = MakeTable();
  return table.rows;
}

} // namespace Tessoro
