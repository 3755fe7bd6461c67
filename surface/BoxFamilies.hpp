// The families of text boxes: one algorithm each, driven by one row for each box.
#pragma once

#include "surface/Controls.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>

namespace Tessoro {

// Which message carries the value of a control.
enum class Road : std::uint8_t { Parameter, Controller };

// When a box writes the bar that stands beside it.
enum class MirrorOrder : std::uint8_t { BeforeSend, AfterSend };

struct BoxFamily {
  // The wire value is the text + 64, and a lone minus sign is left alone.
  bool bipolar;
  Road road;
  MirrorOrder mirrorOrder;
};

// Any of them may have a bar, named in the row of the box.
namespace BoxFamilies {
inline constexpr BoxFamily PlainUnipolar{false, Road::Parameter, MirrorOrder::AfterSend};
// As PlainUnipolar, but the bar moves before the value goes out.
inline constexpr BoxFamily Amp{false, Road::Parameter, MirrorOrder::BeforeSend};
inline constexpr BoxFamily PlainBipolar{true, Road::Parameter, MirrorOrder::AfterSend};
inline constexpr BoxFamily BipolarOnController{true, Road::Controller, MirrorOrder::AfterSend};
} // namespace BoxFamilies

// What a double click on a box does beside nothing.
struct BoxDoubleClick {
  // The text that it writes.
  int text;
  // Sends the box's value once more, and also when the text was there already.
  bool sendsItself = false;
};

struct BoxRow {
  TextBox &box;
  const BoxFamily &family;
  // The limits of the text.
  int lower;
  int upper;
  // The number of the parameter or of the controller, as the family's road says.
  int number;
  ScrollBar *bar = nullptr;
  std::optional<BoxDoubleClick> doubleClick = std::nullopt;
  // Keeps the value where the box's form goes before the sound does; runs behind send and mirror.
  std::function<void(const TextBox &box)> store = {};
};

// Stores the wire value, which is told from the text by the family of the box.
std::function<void(const TextBox &box)> StoreWire(const BoxFamily &family, std::int16_t &shadow);

// Gives each box, and its bar, the handlers of its row.
void AttachBoxes(std::span<const BoxRow> rows);

} // namespace Tessoro
