// A form with one control of each type, which notes all that it hears.
#pragma once

#include "surface/Controls.hpp"
#include "surface/Form.hpp"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace Tessoro::Tests {

inline constexpr std::array<std::string_view, 4> Waves{"Pulse", "Saw", "Sine", "Saw 2"};

class Workbench : public Form {
public:
  explicit Workbench(Application &app, bool keyPreview = true);

  // What was heard, as "Box Change 12" or "KeyDown 16 1".
  std::vector<std::string> heard;
  // Heard in place of a note, where set.
  std::function<void()> onFormClick;

  // clang-format off
  Menu Menu_One     {*this, "Menu_One",     nullptr,   {"&One", ""}};
  Menu Menu_Order   {*this, "Menu_Order",   &Menu_One, {"&Order", "Ctrl+O"}};
  Menu Menu_Line    {*this, "Menu_Line",    &Menu_One, {"-", ""}};
  Menu Menu_Disabled{*this, "Menu_Disabled",&Menu_One, {"&Disabled", "Ctrl+D", false}};
  Menu Menu_Hidden  {*this, "Menu_Hidden",  &Menu_One, {"&Hidden", "F11", true, false}};
  Menu Menu_All     {*this, "Menu_All",     &Menu_One, {"&All", "Ctrl+A"}};
  Menu Menu_Alone   {*this, "Menu_Alone",   nullptr,   {"&Alone", ""}};
  Shape Panel       {*this, "Panel",        {60, 60, 4400, 4000}, ShapeKind::Panel};
  Shape Inset       {*this, "Inset",        {3000, 1500, 1300, 900}, ShapeKind::Inset};
  Shape Rule        {*this, "Rule",         {120, 3900, 4200, 30}, ShapeKind::Rule};
  Line Slope        {*this, "Slope",        {3100, 2300, 4200, 1600}, Colors::Navy};
  Label Title       {*this, "Title",        {150, 90, 4000, 345}, {.caption = "Workbench", .style = LabelStyle::Title}};
  Label Tag         {*this, "Tag",          {150, 480, 900, 240}, {.caption = "label"}};
  Label Readout     {*this, "Readout",      {3000, 480, 1300, 270}, {.caption = "/home/sounds", .style = LabelStyle::Readout, .toolTip = "A folder"}};
  Label Low         {*this, "Low",          {1200, 525, 600, 90}, {.caption = "Ag"}};
  TextBox Box       {*this, "Box",          {150, 750, 480, 300}, {.toolTip = "A number", .says = "Number"}};
  TextBox Name      {*this, "Name",         {750, 750, 1500, 300}, {.text = "", .says = "Name", .maxLength = 16}};
  TextBox Blended   {*this, "Blended",      {2400, 750, 480, 300}, {.says = "Blended", .enabled = false}};
  ComboBox Combo    {*this, "Combo",        {150, 1200, 1500, 315}, {.items = Waves, .says = "Wave"}};
  ComboBox Faded    {*this, "Faded",        {1800, 1200, 1000, 315}, {.items = Waves, .says = "Faded", .enabled = false}};
  CheckBox Check    {*this, "Check",        {150, 1650, 900, 300}, {.caption = "S&ync", .backColor = Colors::DimGreen, .foreColor = Colors::Grey}};
  CommandButton Push{*this, "Push",         {1200, 1650, 900, 330}, {.caption = "&Push"}};
  CommandButton Dead{*this, "Dead",         {2150, 1650, 700, 330}, {.caption = "Dead", .enabled = false}};
  HScrollBar HBar   {*this, "HBar",         {150, 2100, 1500, 300}, {.min = -12, .max = 12, .largeChange = 4, .says = "Lying bar"}};
  VScrollBar VBar   {*this, "VBar",         {1800, 2100, 270, 1500}, {.min = 127, .max = 0, .largeChange = 10, .says = "Standing bar"}};
  Image Knob        {*this, "Knob",         {2250, 2400, 600, 660}, {.picture = "knob", .says = "Knob"}};
  Image OtherKnob   {*this, "OtherKnob",    {2250, 3060, 600, 660}, {.picture = "knob", .says = "Other knob", .enabled = false}};
  Image Routing     {*this, "Routing",      {150, 2600, 1500, 615}, {.picture = "parallel", .says = "Parallel"}};
  Image Serial      {*this, "Serial",       {150, 3200, 1500, 615}, {.picture = "serial", .says = "Serial"}};
  NoteKey Key       {*this, "Key",          {3000, 2600, 300, 1200}, {.caption = "C3", .says = "C3"}};
  Image Logo        {*this, "Logo",         {3400, 2600, 960, 960}, {.picture = "logo", .says = "Logo"}};
  Frame Group       {*this, "Group",        {4600, 60, 2300, 4000}};
  DriveListBox Drive{*this, "Drive",        {4700, 150, 2100, 315}, {.says = "Drive"}};
  DirListBox Dir    {*this, "Dir",          {4700, 600, 2100, 1500}, {.says = "Folder"}};
  FileListBox File  {*this, "File",         {4700, 2250, 2100, 1500}, {.pattern = "*.tss", .says = "File"}};
  TextBox Nowhere   {*this, "Nowhere",      {0, 0, 0, 0}, {.text = "0"}};
  Timer Clockwork   {*this, "Clockwork",    {.interval = 20, .enabled = false}};
  // clang-format on

protected:
  void Form_Click() override;
  void Form_KeyDown(int keyCode, int shift) override;
  void Form_KeyUp(int keyCode, int shift) override;
  void Form_KeyPress(int keyAscii) override;

private:
  void Hear(std::string event) { heard.push_back(std::move(event)); }
  void ListenToFields();
  void ListenToPointer();
  void ListenToLists();
};

} // namespace Tessoro::Tests
