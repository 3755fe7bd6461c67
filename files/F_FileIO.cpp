#include "files/F_FileIO.hpp"

#include "files/FileSystem.hpp"
#include "shell/Application.hpp"
#include "surface/Conversions.hpp"
#include "surface/KeyCodes.hpp"

namespace Tessoro {

namespace {

constexpr std::string_view Extension = ".tss";

std::string WithoutExtension(const std::string &name) {
  return name.ends_with(Extension) ? name.substr(0, name.size() - Extension.size()) : name;
}

// Runs a step and hands a failure over; what comes behind it goes on.
template <typename Step, typename Report> void Trap(Step &&step, Report &&report) {
  try {
    step();
  } catch (const Failure &failure) {
    report(failure);
  }
}

} // namespace

F_FileIO::F_FileIO(Application &app)
    : Form(app, "F_FileIO",
           {.caption = "File", .width = 5880, .height = 4875, .firstFocus = "TextFilename"}) {
  Drive1.onChange = [this] { Drive1_Change(); };
  Dir1.onChange = [this] { Dir1_Change(); };
  File1.onClick = [this] { TextFilename.SetText(File1.FileName()); };
  File1.onDblClick = [this] {
    if (App().Module1.FileFormMode == "Open")
      C_File_Click();
  };
  TextFilename.onChange = [this] { TextFilename_Change(); };
  TextFilename.onKeyPress = [this](int keyAscii) {
    if (keyAscii == KeyCodes::Enter)
      C_File_Click();
  };
  LabelPath.onChange = [this] {
    SetCaption(App().Module1.FileFormMode + " " + LabelPath.Caption());
  };
  C_File.onClick = [this] { C_File_Click(); };
  Command1.onClick = [this] { Unload(); };
}

bool F_FileIO::IsSaving() const { return App().Module1.FileFormMode == "Save"; }

std::string F_FileIO::PathOf(const std::string &name) const {
  const char separator = App().System().files.Separator();
  const std::string &folder = Dir1.Path();
  return folder.ends_with(separator) ? folder + name : folder + separator + name;
}

void F_FileIO::Form_Load() {
  try {
    LoadByMode();
  } catch (const Failure &failure) {
    if (failure.Number() == FailureCode::DeviceUnavailable)
      App().MsgBox("The selected drive could not be found. (Maybe you removed the disk?)\n\rInsert "
                   "the disk or select a different drive.",
                   MsgBoxFlags::Exclamation, "Device Error");
    else
      ShowFileFailure(failure);
  }
}

void F_FileIO::LoadByMode() {
  const Module1 &globals = App().Module1;
  if (IsSaving()) {
    SetCaption("Save:");
    C_File.SetCaption("&Save file");
    TextFilename.SetText(globals.SoundFileName + std::string(Extension));
  } else {
    SetCaption("Open:");
    C_File.SetCaption("&Load file");
  }
  if (globals.SoundFolder != "?") {
    Drive1.SetDrive(globals.SoundFolder.substr(0, 2));
    // Another drive has set the folder anew by now.
    Dir1.SetPath(globals.SoundFolder);
  }
}

void F_FileIO::TextFilename_Change() {
  Module1 &globals = App().Module1;
  if (IsSaving()) {
    globals.SoundFileName = WithoutExtension(TextFilename.Text());
    LabelPath.SetCaption(PathOf(globals.SoundFileName + std::string(Extension)));
  } else {
    LabelPath.SetCaption(PathOf(TextFilename.Text()));
  }
}

void F_FileIO::ShowPathOfBox() {
  LabelPath.SetCaption(PathOf(WithoutExtension(TextFilename.Text()) + std::string(Extension)));
}

void F_FileIO::Dir1_Change() {
  Trap([this] { File1.SetPath(Dir1.Path()); },
       [this](const Failure &failure) { ShowSelectionFailure(failure); });
  ShowPathOfBox();
  App().Module1.SoundFolder = Dir1.Path();
}

void F_FileIO::Drive1_Change() {
  Trap([this] { Dir1.SetPath(Drive1.Drive()); },
       [this](const Failure &failure) {
         ShowSelectionFailure(failure);
         Drive1.SetDrive("");
       });
  ShowPathOfBox();
}

void F_FileIO::ShowSelectionFailure(const Failure &failure) {
  App().MsgBox(failure.Text(), MsgBoxFlags::Critical, "Invalid selection " + Drive1.Drive());
}

void F_FileIO::ShowFileFailure(const Failure &failure) {
  App().MsgBox(SignedNumberText(failure.Number()) + ": " + failure.Text(), MsgBoxFlags::Critical,
               "Error writing/reading file: " + LabelPath.Caption());
}

} // namespace Tessoro
