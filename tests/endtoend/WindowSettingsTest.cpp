// Whatever stands in the place of the settings file, there is a box that says so and a window that
// can be worked.
#include "tests/endtoend/PluggedEditorTest.hpp"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>

namespace Tessoro::Tests {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

constexpr const char *LoadError = "Error loading INI";
constexpr const char *WriteError = "Error writing INI file[.]";

class WindowSettingsTest : public PluggedEditorTest {
protected:
  void Start(std::vector<std::string> environment = {}) {
    outPlace = PlaceOfSynth();
    inPlace = PlaceOfKeyboard();
    environment.push_back("XDG_CONFIG_HOME=" + ConfigHome().string());
    editor = std::make_unique<WindowedEditor>(display, place, environment);
  }

  fs::path ConfigHome() const { return place.Path() / "config"; }
  fs::path SettingsOfUser() const { return ConfigHome() / "Tessoro" / "Tessoro.ini"; }

  void ExpectUsable() {
    editor->MainForm().Type(editor->Design().F_Tessoro.TextF1_cutoff, "6 4");
    EXPECT_THAT(Hear(2), ElementsAre(Parameter(78, 6), Parameter(78, 64)));
  }

  void ChoosePortsAndExpectUsable() {
    editor->ChoosePorts(outPlace, inPlace);
    ExpectUsable();
  }

  // What can't be read can't be written either.
  void ExpectFailuresAndUsable() {
    Start();
    editor->AnswerBox(LoadError);
    editor->CloseHint();
    editor->OpenPortFormByMenu();
    ChoosePortsAndExpectUsable();
    editor->CloseMainWindow();
    editor->AnswerBox(WriteError);
    ExpectEnd();
  }

  void ExpectEnd() { EXPECT_EQ(editor->ExitStatus(), 0); }

  static void Forbid(const fs::path &path, fs::perms right) {
    fs::permissions(path, right, fs::perm_options::remove);
  }

  static std::string Content(const fs::path &file) {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  int outPlace = 0;
  int inPlace = 0;
};

constexpr fs::perms Writing =
    fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
constexpr fs::perms Reading =
    fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;

TEST_F(WindowSettingsTest, WithoutAFileThePortsAreAskedForOnceAndKept) {
  Start();
  editor->CloseHint();
  ChoosePortsAndExpectUsable();
  editor->CloseMainWindow();
  ExpectEnd();

  Start();
  editor->CloseHint();
  ExpectUsable();
}

TEST_F(WindowSettingsTest, AFileThatMayNotBeReadIsToldAndAFileThatMayNotBeWrittenAgain) {
  place.WriteSettings(SettingsWithPorts(PlaceOfSynth(), PlaceOfKeyboard()));
  Forbid(place.Settings(), Reading | Writing);
  ExpectFailuresAndUsable();
}

TEST_F(WindowSettingsTest, OfATruncatedFileWhatWasReadIsKept) {
  const std::string whole = SettingsWithPorts(PlaceOfSynth(), PlaceOfKeyboard());
  place.WriteSettings(whole.substr(0, whole.find("\"No\"")));
  Start();
  editor->AnswerBox(LoadError);
  editor->CloseHint();
  editor->OpenPortFormByMenu();
  const ShownForm portForm = editor->PortForm();
  portForm.Click(editor->Design().F_Midi.Command1); // with the ports of the file
  portForm.WaitUntilGone();
  ExpectUsable();
}

TEST_F(WindowSettingsTest, AFolderInThePlaceOfTheFileIsToldBothWays) {
  fs::create_directory(place.Settings());
  ExpectFailuresAndUsable();
}

TEST_F(WindowSettingsTest, BesideAProgramThatOthersInstalledTheUsersOwnFolderIsTaken) {
  fs::create_directory(ConfigHome());
  Forbid(place.Path(), Writing);
  Start();
  editor->CloseHint();
  ChoosePortsAndExpectUsable();
  editor->CloseMainWindow();
  ExpectEnd();
  EXPECT_THAT(Content(SettingsOfUser()), testing::StartsWith("\"Tessoro v1.3.1\"\r\n"));
  EXPECT_FALSE(fs::exists(place.Settings()));
}

// As it is for the superuser in /usr/bin, whose data stand in /usr/share.
TEST_F(WindowSettingsTest, OfAnInstallationForTheWholeMachineNobodyTakesTheProgramsFolder) {
  fs::create_directory(ConfigHome());
  Start({"XDG_DATA_DIRS=" + (place.Path().parent_path() / "share").string() + ":/usr/share"});
  editor->CloseHint();
  ChoosePortsAndExpectUsable();
  editor->CloseMainWindow();
  ExpectEnd();
  EXPECT_TRUE(fs::exists(SettingsOfUser()));
  EXPECT_FALSE(fs::exists(place.Settings()));
}

TEST_F(WindowSettingsTest, WhereNoFolderMayBeWrittenThatIsToldAtTheEnd) {
  fs::create_directories(SettingsOfUser().parent_path());
  Forbid(SettingsOfUser().parent_path(), Writing);
  Forbid(place.Path(), Writing);
  Start();
  editor->CloseHint();
  ChoosePortsAndExpectUsable();
  editor->CloseMainWindow();
  editor->AnswerBox(WriteError);
  ExpectEnd();
}

} // namespace
} // namespace Tessoro::Tests
