// The button of F_FileIO: saves and loads a sound, and traps every failure of either.
#include "files/F_FileIO.hpp"
#include "files/FieldReader.hpp"
#include "files/FileSystem.hpp"
#include "files/SoundFiles.hpp"
#include "shell/Application.hpp"

namespace Tessoro {

namespace {

constexpr std::size_t ExtensionLength = 4;
constexpr std::size_t FormatLength = 5;

std::string LastCharacters(const std::string &text, std::size_t count) {
  return text.size() <= count ? text : text.substr(text.size() - count);
}

} // namespace

void F_FileIO::C_File_Click() {
  Module1 &globals = App().Module1;
  try {
    globals.ErrorPhase = "general";
    if (IsSaving())
      SaveSound();
    else
      LoadSound();
    globals.ErrorPhase = "general";
    Unload();
  } catch (const Failure &failure) {
    if (failure.Number() == FailureCode::InputPastEndOfFile)
      App().MsgBox("File corrupt or wrong version! The file seems to be shorter than expected.",
                   MsgBoxFlags::Critical, "Error reading file");
    else if (failure.Number() == FailureCode::TypeMismatch && globals.FileFormMode == "Open")
      App().MsgBox("File corrupt or wrong version! A value () in the soundfile does not fit to the "
                   "parameter! Loading aborted - some parameters not loaded.",
                   MsgBoxFlags::Critical, "Error reading file");
    else
      ShowFileFailure(failure);
  }
}

// The answer no writes nothing.
void F_FileIO::SaveSound() {
  Module1 &globals = App().Module1;
  const std::string path = LabelPath.Caption();
  globals.ErrorPhase = "CheckExistingFile";
  try {
    App().System().files.OpenForReading(path);
  } catch (const Failure &failure) {
    if (failure.Number() != FailureCode::FileNotFound)
      throw;
    globals.ErrorPhase = "NoExistingFile";
  }
  MsgBoxButton answer = MsgBoxButton::Yes;
  if (globals.ErrorPhase != "NoExistingFile")
    answer = App().MsgBox("File already exists! Are you sure you want to override it?",
                          MsgBoxFlags::YesNo + MsgBoxFlags::Question, "Confirm file overwrite");
  if (answer != MsgBoxButton::Yes)
    return;
  globals.ErrorPhase = "WritingFile";
  WriteSound(App(), path);
  File1.Refresh();
  App().F_Tessoro.ShowFileTitle();
  globals.SoundChanged = 0;
}

// A file that is refused still counts as opened.
void F_FileIO::LoadSound() {
  Module1 &globals = App().Module1;
  const std::string path = LabelPath.Caption();
  bool read = false;
  if (const std::string extension = LastCharacters(path, ExtensionLength);
      extension == ".syx" || extension == ".SYX") {
    ImportSyxSound(App(), path);
    read = true;
  } else {
    const std::string header = FieldReader(App().System().files.OpenForReading(path)).Read().text;
    const std::string format = LastCharacters(header, FormatLength);
    if (format == "v.0.2") {
      read = true;
      ReadSoundV02(App(), path);
    } else if (format == "v.1.5") {
      read = true;
      ReadSoundV15(App(), path);
    } else {
      App().MsgBox("Fileformat " + format +
                       " not supported.\n\rThis version reads only Tessoro fileformat 0.2 and 1.5",
                   MsgBoxFlags::Exclamation, "Error reading file");
    }
  }
  const std::string &name = TextFilename.Text();
  if (name.size() < ExtensionLength)
    throw Failure(FailureCode::InvalidProcedureCall);
  globals.SoundFileName = name.substr(0, name.size() - ExtensionLength);
  if (read)
    App().F_Tessoro.ShowFileTitle();
  globals.SoundChanged = 0;
  App().F_Tessoro.Menu_General.SetEnabled(true);
  App().F_Tessoro.Menu_SaveSound.SetEnabled(true);
}

} // namespace Tessoro
