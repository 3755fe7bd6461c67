// The real program in a real window, worked by real events.
#pragma once

#include "tests/endtoend/ChildProcess.hpp"
#include "tests/endtoend/ShownForm.hpp"
#include "tests/endtoend/VirtualDisplay.hpp"
#include "tests/support/TestRun.hpp"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Tessoro::Tests {

// What Tessoro.ini holds with these ports, and without the hint.
std::string SettingsWithPorts(int outPort, int inPort, const std::string &soundFolder = "?");

// A directory that holds the program and nothing else, as after an installation by hand.
class EditorDirectory {
public:
  EditorDirectory();
  ~EditorDirectory();
  EditorDirectory(const EditorDirectory &) = delete;
  EditorDirectory &operator=(const EditorDirectory &) = delete;

  const std::filesystem::path &Path() const { return path; }
  std::filesystem::path Settings() const { return path / "Tessoro.ini"; }
  void WriteSettings(const std::string &content) const;

private:
  const std::filesystem::path path;
};

// One run of the program, from start to end.
class WindowedEditor {
public:
  WindowedEditor(const VirtualDisplay &shownOn, const EditorDirectory &place,
                 const std::vector<std::string> &environment = {});
  // Ends it.
  ~WindowedEditor();
  WindowedEditor(const WindowedEditor &) = delete;
  WindowedEditor &operator=(const WindowedEditor &) = delete;

  // Where the controls are; the forms wait for theirs.
  const Application &Design() const { return design.app; }
  ShownForm MainForm() const;
  ShownForm PortForm() const;
  // That of opening.
  ShownForm FileForm() const;
  ShownForm Hint() const;

  // Waits for a message box of exactly that title, presses the key, and waits until it has gone.
  void AnswerBox(const std::string &title, const std::string &key = "Return") const;
  bool ShowsBox(const std::string &title) const;
  // The hint comes up half a second after the start, over all else.
  void CloseHint() const;
  void OpenPortFormByMenu() const;
  // In the port form, from lists that show nothing yet, and closes it by its button.
  void ChoosePorts(int outPort, int inPort) const;
  // Ends without writing the settings.
  void QuitByMenu() const;
  // As the close control of the window does.
  void CloseMainWindow() const;
  // Nothing if it goes on running.
  std::optional<int> ExitStatus();

private:
  ShownForm Shown(const std::string &title, const Form &form) const;

  const VirtualDisplay &display;
  const TestRun design;
  std::unique_ptr<ChildProcess> program;
};

} // namespace Tessoro::Tests
