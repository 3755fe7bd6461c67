#include "surface/Decoration.hpp"

#include "surface/Conversions.hpp"
#include "surface/UserAct.hpp"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace Tessoro {

namespace {

// Fails with 6 for a number that single precision can't hold.
float SinglePrecision(double number) {
  if (std::fabs(number) > std::numeric_limits<float>::max())
    throw Failure(FailureCode::Overflow);
  return static_cast<float>(number);
}

// The number with as few digits as tell the float, so that 0.1 reads 0.1.
double AsWritten(float number) {
  std::array<char, 64> digits{};
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  double read = 0;
  std::from_chars(digits.data(), written.ptr, read);
  return read;
}

} // namespace

Label::Label(Form &form, std::string_view name, Place place, const LabelDesign &labelDesign)
    : Control(form, name, place, {.toolTip = labelDesign.toolTip}), design(labelDesign),
      caption(labelDesign.caption), width(place.width) {}

PropertyEntries Label::Properties() {
  PropertyEntries entries = Control::Properties();
  entries.front().listed = false; // a label can't be enabled in any sense that shows
  entries.push_back(TextProperty(
      "Caption", [this] { return caption; },
      [this](const std::string &text) { SetCaption(text); }));
  entries.push_back(NumberProperty(
      "Width", [this] { return width; }, [this](double twips) { SetWidth(RoundInteger(twips)); }));
  return entries;
}

void Label::ResetToDesign() {
  Control::ResetToDesign();
  caption.assign(design.caption);
  width = DesignPlace().width;
}

void Label::SetCaption(std::string_view text) {
  if (text == caption)
    return;
  caption.assign(text);
  Tell(Property::Caption);
  if (onChange)
    onChange();
}

void Label::SetWidth(int twips) {
  if (twips == width)
    return;
  width = twips;
  Tell(Property::Width);
}

Reach Label::UserClick() {
  return Perform([this] {
    if (onClick)
      onClick();
  });
}

Line::Line(Form &form, std::string_view name, LineEnds designEnds, Color lineColor)
    : Control(form, name, {}, {}), design(designEnds), color(lineColor), ends(designEnds) {}

PropertyEntries Line::Properties() {
  const auto end = [this](std::string_view name, float LineEnds::*place) {
    return NumberProperty(
        name, [this, place] { return AsWritten(ends.*place); },
        [this, place](double twips) { Move(place, SinglePrecision(twips)); });
  };
  PropertyEntries entries = Control::Properties();
  entries.front().listed = false;
  entries.push_back(end("X1", &LineEnds::x1));
  entries.push_back(end("Y1", &LineEnds::y1));
  entries.push_back(end("X2", &LineEnds::x2));
  entries.push_back(end("Y2", &LineEnds::y2));
  return entries;
}

void Line::ResetToDesign() {
  Control::ResetToDesign();
  ends = design;
}

void Line::Move(float LineEnds::*end, float twips) {
  if (ends.*end == twips)
    return;
  ends.*end = twips;
  Tell(Property::Ends);
}

void Line::SetX1(float twips) { Move(&LineEnds::x1, twips); }
void Line::SetY1(float twips) { Move(&LineEnds::y1, twips); }
void Line::SetX2(float twips) { Move(&LineEnds::x2, twips); }
void Line::SetY2(float twips) { Move(&LineEnds::y2, twips); }

Reach Frame::UserClick() {
  return Perform([this] {
    if (onClick)
      onClick();
  });
}

} // namespace Tessoro
