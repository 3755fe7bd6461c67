// The one form for opening and saving a sound.
#pragma once

#include "surface/Controls.hpp"
#include "surface/Form.hpp"

#include <string>

namespace Tessoro {

class Failure;

// LabelPath is the only carrier of the path. FileFormMode, "Open" or "Save", tells the direction.
class F_FileIO : public Form {
public:
  explicit F_FileIO(Application &app);

  // clang-format off
  DriveListBox Drive1  {*this, "Drive1",       { 375,  435, 3400,  315}, {.says = "Drive"}};
  DirListBox Dir1      {*this, "Dir1",         { 375,  840, 3400, 1890}, {.says = "Folder"}};
  FileListBox File1    {*this, "File1",        { 390, 2790, 3400, 1065}, {.pattern = "*.tss", .says = "Sounds in the folder"}};
  TextBox TextFilename {*this, "TextFilename", { 390, 4095, 3400,  330}, {.text = "*.tss", .toolTip = "Enter a name for your sound filename", .says = "File name"}};
  CommandButton C_File {*this, "C_File",       {4125, 3090, 1350,  555}, {}};
  CommandButton Command1{*this, "Command1",    {4125, 3885, 1350,  555}, {.caption = "&Exit"}};
  Label LabelPath      {*this, "LabelPath",    { 360, 4485, 5130,  270}, {.style = LabelStyle::Readout}};
  // clang-format on

protected:
  void Form_Load() override;

private:
  void LoadByMode();
  void Drive1_Change();
  void Dir1_Change();
  void TextFilename_Change();
  // What the button, a double click in the list and the Enter key do.
  void C_File_Click();
  void SaveSound();
  void LoadSound();
  void ShowFileFailure(const Failure &failure);
  void ShowSelectionFailure(const Failure &failure);
  bool IsSaving() const;
  // The path that stands for a name in the chosen folder.
  std::string PathOf(const std::string &name) const;
  void ShowPathOfBox();
};

} // namespace Tessoro
