// A form with one control of each type, for trying the control layer without the editor's forms.
#pragma once

#include "surface/Controls.hpp"
#include "surface/Form.hpp"

#include <array>
#include <functional>

namespace Tessoro {

class TestForm : public Form {
public:
  explicit TestForm(Application &app)
      : Form(app, "TestForm",
             {.caption = "A form", .width = 6000, .height = 4000, .keyPreview = true}) {}

  static constexpr std::array<std::string_view, 3> Fruits{"apple", "pear", "plum"};

  // clang-format off
  TextBox Box          {*this, "Box",      {0, 0, 480, 300}, {.text = "?", .toolTip = "a box", .says = "Box of the form"}};
  TextBox ShortBox     {*this, "ShortBox", {0, 0, 480, 300}, {.text = "", .maxLength = 4}};
  TextBox ClosedBox    {*this, "ClosedBox",{0, 0, 480, 300}, {.enabled = false}};
  TextBox NoWidthBox   {*this, "NoWidthBox", {0, 0, 0, 300}};
  ComboBox Combo       {*this, "Combo",    {0, 0, 900, 300}, {.items = Fruits}};
  ComboBox ClosedCombo {*this, "ClosedCombo", {0, 0, 900, 300}, {.items = Fruits, .enabled = false}};
  HScrollBar Bar       {*this, "Bar",      {0, 0, 900, 300}, {.min = -12, .max = 12}};
  VScrollBar Upright   {*this, "Upright",  {0, 0, 300, 900}, {.min = 127, .max = 0}};
  HScrollBar HighBar   {*this, "HighBar",  {0, 0, 900, 300}, {.min = 1, .max = 5}};
  CheckBox Check       {*this, "Check",    {0, 0, 300, 300}, {.caption = "Sync", .backColor = Colors::DimGreen}};
  CommandButton Button {*this, "Button",   {0, 0, 300, 300}, {.caption = "&Press"}};
  Label Text           {*this, "Text",     {0, 0, 735, 240}, {.caption = "OSC 2"}};
  Label Value          {*this, "Value",    {0, 0, 735, 240}, {.style = LabelStyle::Readout, .align = LabelAlign::Right}};
  Image Knob           {*this, "Knob",     {0, 0, 600, 660}, {.picture = "knob", .accessKey = "Alt+K"}};
  Image Ghost          {*this, "Ghost",    {0, 0, 600, 660}, {.picture = "knob", .visible = false}};
  NoteKey Key          {*this, "Key",      {0, 0, 300, 900}, {.caption = "C"}};
  Line Slope           {*this, "Slope",    {10, 20, 30, 40}, Colors::Navy};
  Shape Plate          {*this, "Plate",    {0, 0, 300, 300}, ShapeKind::Inset};
  Frame Ground         {*this, "Ground",   {0, 0, 300, 300}};
  Timer Ticker         {*this, "Ticker",   {.interval = 500}};
  Timer Sleeper        {*this, "Sleeper",  {.interval = 500, .enabled = false}};
  Menu Menu_Top        {*this, "Menu_Top",  nullptr,    {"&Top", ""}};
  Menu Menu_Entry      {*this, "Menu_Entry", &Menu_Top, {"&Entry", "Ctrl+E"}};
  Menu Menu_Closed     {*this, "Menu_Closed", &Menu_Top, {"Closed", "F9", false}};
  Menu Menu_Line       {*this, "Menu_Line", &Menu_Top,  {"-", ""}};
  // clang-format on

  std::function<void()> onLoad;
  std::function<void()> onUnload;
  std::function<void()> onClick;
  std::function<void(int)> onKeyDown;
  std::function<void(int)> onKeyUp;
  std::function<void(int)> onKeyPress;

protected:
  void Form_Load() override { Call(onLoad); }
  void Form_Unload() override { Call(onUnload); }
  void Form_Click() override { Call(onClick); }
  void Form_KeyDown(int keyCode, int /*shift*/) override { Call(onKeyDown, keyCode); }
  void Form_KeyUp(int keyCode, int /*shift*/) override { Call(onKeyUp, keyCode); }
  void Form_KeyPress(int keyAscii) override { Call(onKeyPress, keyAscii); }

private:
  template <typename Handler, typename... Arguments>
  static void Call(const Handler &handler, Arguments... arguments) {
    if (handler)
      handler(arguments...);
  }
};

} // namespace Tessoro
