#include "tests/endtoend/WindowedEditor.hpp"

#include "tests/endtoend/Waiting.hpp"

#include <unistd.h>

#include <fstream>

namespace Tessoro::Tests {
namespace {

using namespace std::chrono_literals;
namespace fs = std::filesystem;

constexpr const char *MainTitle = "^Tessoro (freeware )?v[0-9]";

// The rights of files don't bind the superuser, who may be the one that runs the tests.
std::vector<std::string> AsUser(const fs::path &executable) {
  if (geteuid() != 0)
    return {executable.string()};
  return {"setpriv", "--bounding-set=-dac_override,-dac_read_search", executable.string()};
}

std::vector<std::string> WithDisplay(std::vector<std::string> environment,
                                     const VirtualDisplay &display) {
  environment.push_back("DISPLAY=" + display.Name());
  environment.emplace_back("QT_QPA_PLATFORM=xcb");
  return environment;
}

} // namespace

std::string SettingsWithPorts(int outPort, int inPort, const std::string &soundFolder) {
  return "\"Tessoro v1.3.1\"\r\n\"\",\"\"\r\n3,3\r\n" + std::to_string(inPort) + ",0\r\n" +
         std::to_string(outPort) + ",0\r\n\"" + soundFolder + "\"\r\n\"No\"\r\n";
}

EditorDirectory::EditorDirectory() : path(NewTestDirectory()) {
  fs::copy_file(TESSORO_PROGRAM, path / "tessoro");
}

// A test may have taken rights away.
EditorDirectory::~EditorDirectory() {
  std::error_code ignored;
  fs::permissions(path, fs::perms::owner_all, ignored);
  fs::remove_all(path, ignored);
}

void EditorDirectory::WriteSettings(const std::string &content) const {
  std::ofstream(Settings(), std::ios::binary) << content;
}

WindowedEditor::WindowedEditor(const VirtualDisplay &shownOn, const EditorDirectory &place,
                               const std::vector<std::string> &environment)
    : display(shownOn), program(std::make_unique<ChildProcess>(AsUser(place.Path() / "tessoro"),
                                                               WithDisplay(environment, display))) {
}

// A client that is killed may hold up a JACK server for good, so the program is asked to end.
WindowedEditor::~WindowedEditor() {
  try {
    if (!program->ExitStatusWithin(0s)) {
      QuitByMenu();
      program->ExitStatusWithin(5s);
    }
  } catch (const std::runtime_error &) {
    // It has no window any more; its process is ended all the same.
  }
}

ShownForm WindowedEditor::MainForm() const { return Shown(MainTitle, Design().F_Tessoro); }

ShownForm WindowedEditor::PortForm() const { return Shown("^MIDI settings$", Design().F_Midi); }

ShownForm WindowedEditor::FileForm() const { return Shown("^Open", Design().F_FileIO); }

ShownForm WindowedEditor::Hint() const { return Shown("^Tessoro info$", Design().F_InfoPopUp); }

ShownForm WindowedEditor::Shown(const std::string &title, const Form &form) const {
  return {display, title, form, program->Id()};
}

void WindowedEditor::AnswerBox(const std::string &title, const std::string &key) const {
  const std::string pattern = "^" + title + "$";
  const std::string box = display.WaitForWindow(pattern, program->Id());
  display.Focus(box);
  display.PressKeys(key);
  WaitFor("the end of the box " + title, [&] {
    const std::string next = display.WindowCalled(pattern, program->Id());
    return next != box;
  });
}

bool WindowedEditor::ShowsBox(const std::string &title) const {
  return !display.WindowCalled("^" + title + "$", program->Id()).empty();
}

void WindowedEditor::CloseHint() const {
  const ShownForm hint = Hint();
  hint.Click(Design().F_InfoPopUp.InfoText);
  hint.WaitUntilGone();
}

void WindowedEditor::OpenPortFormByMenu() const { MainForm().PressKeys("alt+m Up Return"); }

void WindowedEditor::ChoosePorts(int outPort, int inPort) const {
  const F_Midi &ports = Design().F_Midi;
  const ShownForm form = PortForm();
  form.Step(ports.AuswahlMIDIPort, outPort + 1);
  form.Step(ports.AuswahlMIDIinPort, inPort + 1);
  form.Click(ports.Command1);
  form.WaitUntilGone();
}

void WindowedEditor::CloseMainWindow() const {
  display.Close(display.WaitForWindow(MainTitle, program->Id()));
}

void WindowedEditor::QuitByMenu() const { MainForm().PressKeys("alt+f q"); }

std::optional<int> WindowedEditor::ExitStatus() { return program->ExitStatusWithin(5s); }

} // namespace Tessoro::Tests
