#include "sound/Catalogue.hpp"

#include "sound/ValueLists.hpp"
#include "surface/Conversions.hpp"

#include <algorithm>

namespace Tessoro {

namespace {

constexpr int HighestNumber = 383;
constexpr int SignedCenter = 64;
constexpr int FilterOneTypeController = 68;

using NumberTable = std::array<const ParameterRow *, HighestNumber + 1>;

NumberTable MakeNumberTable() {
  NumberTable table{};
  for (const auto rows : {SingleParameters(), GroupParameters()})
    for (const ParameterRow &row : rows)
      table[static_cast<std::size_t>(row.number)] = &row;
  return table;
}

std::vector<ControllerRow> MakeControllers() {
  std::vector<ControllerRow> table{
      {FilterOneTypeController, 0, "Filter 1 type", Display::FilterType}};
  for (const ParameterRow &row : SingleParameters())
    if (row.controller != 0)
      table.push_back({row.controller, row.number, row.name, row.display});
  std::sort(table.begin(), table.end(), [](const ControllerRow &left, const ControllerRow &right) {
    return left.controller < right.controller;
  });
  return table;
}

template <std::size_t Count>
std::string Named(const std::array<ValueLists::TextValue, Count> &values, int wire) {
  const auto *found = std::find_if(values.begin(), values.end(),
                                   [wire](const auto &value) { return value.wire == wire; });
  return found == values.end() ? IntegerText(wire) : std::string(found->text);
}

template <std::size_t Count>
std::string Listed(const std::array<std::string_view, Count> &texts, int wire) {
  const auto place = static_cast<std::size_t>(wire); // behind every list for a negative one
  return place < Count ? std::string(texts[place]) : IntegerText(wire);
}

std::string SignedText(int wire) {
  const int number = wire - SignedCenter;
  return number > 0 ? "+" + IntegerText(number) : IntegerText(number);
}

std::string AllocationText(int wire) {
  constexpr int unisonoStep = 16;
  return std::string(wire % unisonoStep == 0 ? "Poly" : "Mono") + ", unisono " +
         Listed(ValueLists::UnisonoModeTexts, wire / unisonoStep);
}

std::string CharacterText(int wire) {
  constexpr int firstVisible = 32;
  return wire < firstVisible ? IntegerText(wire) : std::string("'") + static_cast<char>(wire) + "'";
}

} // namespace

const ParameterRow *FindParameter(int number) {
  static const NumberTable table = MakeNumberTable();
  return number < 0 || number > HighestNumber ? nullptr : table[static_cast<std::size_t>(number)];
}

std::span<const ControllerRow> Controllers() {
  static const std::vector<ControllerRow> table = MakeControllers();
  return table;
}

const ControllerRow *FindController(int controller) {
  const auto rows = Controllers();
  const auto found = std::find_if(rows.begin(), rows.end(), [controller](const ControllerRow &row) {
    return row.controller == controller;
  });
  return found == rows.end() ? nullptr : &*found;
}

std::string DisplayText(Display display, int wire) {
  using namespace ValueLists;
  switch (display) {
  case Display::Signed:
    return SignedText(wire);
  case Display::Octave:
    return Named(OctaveValues, wire);
  case Display::Shape:
    return Named(ShapeValues, wire);
  case Display::FilterType:
    return Named(FilterTypeValues, wire);
  case Display::ModSource:
    return Named(ModSourceValues, wire);
  case Display::FmSource:
    return Listed(FmSourceTexts, wire);
  case Display::SubFrequency:
    return Listed(SubFrequencyTexts, wire);
  case Display::GlideMode:
    return Listed(GlideModeTexts, wire);
  case Display::LfoShape:
    return Listed(LfoShapeTexts, wire);
  case Display::Checked:
    return wire == 0 ? "off" : "on";
  case Display::Allocation:
    return AllocationText(wire);
  case Display::Routing:
    return wire == 0 ? "parallel" : "serial";
  case Display::Character:
    return CharacterText(wire);
  case Display::Wire:
    break;
  }
  return IntegerText(wire);
}

} // namespace Tessoro
