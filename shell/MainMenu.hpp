// The menu bar of the main form.
#pragma once

#include "surface/Menu.hpp"

namespace Tessoro {

class F_Tessoro;

class MainMenu {
public:
  explicit MainMenu(F_Tessoro &owner);

  // What start-up takes away until a sound has been set up.
  void DisableUntilSound();

private:
  void Menu_Midisettings_Click();
  void ShowFileForm(std::string_view mode);

  Form &form;

public:
  // clang-format off
  Menu Menu_File           {form, "Menu_File",            nullptr,          {"&File", ""}};
  Menu Menu_OpenSound      {form, "Menu_OpenSound",       &Menu_File,       {"&Open sound", "Ctrl+O"}};
  Menu Menu_SaveSound      {form, "Menu_SaveSound",       &Menu_File,       {"Save sound &as", "Ctrl+S"}};
  Menu MenuRequest         {form, "MenuRequest",          &Menu_File,       {"Request sound from microQ", "", false}};
  Menu x1                  {form, "x1",                   &Menu_File,       {"-", ""}};
  Menu Menu_preferences    {form, "Menu_preferences",     &Menu_File,       {"Knob &preferences", ""}};
  Menu x2                  {form, "x2",                   &Menu_File,       {"-", ""}};
  Menu Menu_Quit           {form, "Menu_Quit",            &Menu_File,       {"&Quit", ""}};
  Menu Menu_Options        {form, "Menu_Options",         nullptr,          {"&Midi", ""}};
  Menu Menu_Panic          {form, "Menu_Panic",           &Menu_Options,    {"Send &Panic", "F12"}};
  Menu Menu_Sequenzer      {form, "Menu_Sequenzer",       &Menu_Options,    {"Sequenzer settings", "F11", true, false}};
  Menu Menu_StartSequenzer {form, "Menu_StartSequenzer",  &Menu_Options,    {"Start se&quenzer", "Ctrl+Q", false, false}};
  Menu x3                  {form, "x3",                   &Menu_Options,    {"-", ""}};
  Menu Menu_Midisettings   {form, "Menu_Midisettings",    &Menu_Options,    {"Midi settings", ""}};
  Menu Menu_Parameters     {form, "Menu_Parameters",      nullptr,          {"mQ &parameters", ""}};
  Menu Menu_InitW          {form, "Menu_InitW",           &Menu_Parameters, {"Init sound to mQ Waldorf default", ""}};
  Menu Menu_InitK          {form, "Menu_InitK",           &Menu_Parameters, {"Init sound to Tessoro default", "", false}};
  Menu x4                  {form, "x4",                   &Menu_Parameters, {"-", ""}};
  Menu Menu_LFOs           {form, "Menu_LFOs",            &Menu_Parameters, {"&LFO settings", "Ctrl+L", false}};
  Menu Menu_ModMatrix      {form, "Menu_ModMatrix",       &Menu_Parameters, {"&ModMatrix settings", "Ctrl+M", false}};
  Menu Menu_ChangeSoundName{form, "Menu_ChangeSoundName", &Menu_Parameters, {"Change Sound&Name", "Ctrl+N", false}};
  Menu Menu_General        {form, "Menu_General",         &Menu_Parameters, {"&General sound settings", "Ctrl+G"}};
  Menu Menu_FXSettings     {form, "Menu_FXSettings",      &Menu_Parameters, {"F&X settings", "Ctrl+X", false}};
  Menu Menu_Arpeggiator    {form, "Menu_Arpeggiator",     &Menu_Parameters, {"&Arpeggiator", "Ctrl+A", false}};
  Menu x5                  {form, "x5",                   &Menu_Parameters, {"-", ""}};
  Menu Menu_DrumMapping    {form, "Menu_DrumMapping",     &Menu_Parameters, {"&Drum Mapping", "Ctrl+D", false}};
  Menu Menu_About          {form, "Menu_About",           nullptr,          {"&About", ""}};
  // clang-format on
};

} // namespace Tessoro
