// One run of the editor in windows.
#pragma once

#include "face/qt/QtClock.hpp"
#include "face/qt/QtScreen.hpp"
#include "files/StandardFileSystem.hpp"
#include "shell/Application.hpp"
#include "sound/RandomNumbers.hpp"

#include <memory>
#include <string>

namespace Tessoro {

// Gives the QApplication of this process the look of the editor.
void DressApplication();

// The directory of the executable where the user may write there, else a folder of the user's own,
// which is made if needed.
std::string ProgramPath();

// Needs a QApplication.
class Program {
public:
  Program(MidiService &midi, const std::string &programPath,
          std::unique_ptr<FileSystem> seenFiles = std::make_unique<StandardFileSystem>());

  // Returns the exit status when the editor has ended.
  int Run();

  Application &Editor() { return editor; }
  QtScreen &Windows() { return screen; }

private:
  QtScreen screen;
  QtClock clock{screen.Entrance()};
  std::unique_ptr<FileSystem> files;
  StandardRandomNumbers random;
  Application editor;
};

} // namespace Tessoro
