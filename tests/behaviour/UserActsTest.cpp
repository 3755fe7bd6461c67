// What the driver's user does to types of controls that stand on a form made here.
#include "face/headless/Script.hpp"
#include "face/headless/Session.hpp"
#include "surface/Controls.hpp"
#include "surface/Form.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <unistd.h>

namespace Tessoro {

namespace {

class TestForm : public Form {
public:
  TestForm(Application &app, Tessoro::Trace &destination)
      : Form(app, "F_Test", {.caption = "Test"}), trace(destination) {
    Tell(Knob, "Knob");
    Tell(Key, "Key");
    Knob.onClick = [this] { trace.Line("Knob Click"); };
    Knob.onDblClick = [this] { trace.Line("Knob DblClick"); };
    Ground.onClick = [this] { trace.Line("Ground Click"); };
    Text.onClick = [this] { trace.Line("Text Click"); };
    Text.onDblClick = [this] { trace.Line("Text DblClick"); };
    Text.onKeyPress = [this](int key) { trace.Line("Text KeyPress " + std::to_string(key)); };
    Folders.onChange = [this] { trace.Line("Folders Change"); };
    Files.onClick = [this] { trace.Line("Files Click " + Files.FileName()); };
    Files.onDblClick = [this] { trace.Line("Files DblClick"); };
    Slow.onTimer = [this] { trace.Line("Slow"); };
    Fast.onTimer = [this] {
      trace.Line("Fast");
      if (restartsFast)
        Fast.SetInterval(300);
    };
  }

  Image Knob{*this, "Knob", {0, 0, 100, 100}, {}};
  Image Other{*this, "Other", {0, 0, 100, 100}, {}};
  NoteKey Key{*this, "Key", {0, 0, 100, 100}, {}};
  Frame Ground{*this, "Ground", {0, 0, 100, 100}};
  TextBox Text{*this, "Text", {0, 0, 100, 100}};
  ComboBox List{*this, "List", {0, 0, 100, 100}, {}};
  DriveListBox Drives{*this, "Drives", {0, 0, 100, 100}};
  DirListBox Folders{*this, "Folders", {0, 0, 100, 100}};
  FileListBox Files{*this, "Files", {0, 0, 100, 100}, {.pattern = "*.tss"}};
  Timer Slow{*this, "Slow", {.interval = 500}};
  Timer Fast{*this, "Fast", {.interval = 250}};
  bool restartsFast = false;

protected:
  void Form_Click() override { trace.Line("Form Click"); }
  void Form_KeyDown(int keyCode, int /*shift*/) override { TellKey("KeyDown", keyCode); }
  void Form_KeyUp(int keyCode, int /*shift*/) override { TellKey("KeyUp", keyCode); }
  void Form_KeyPress(int keyAscii) override { TellKey("KeyPress", keyAscii); }

private:
  void TellKey(const std::string &event, int key) { trace.Line(event + " " + std::to_string(key)); }

  void Tell(MouseControl &control, const std::string &name) {
    const auto teller = [this, name](const std::string &event) {
      return [this, name, event](const MouseEvent &mouse) {
        std::ostringstream line;
        line << name << ' ' << event << ' ' << mouse.button << ' ' << mouse.x << ' ' << mouse.y;
        trace.Line(line.str());
      };
    };
    control.onMouseDown = teller("MouseDown");
    control.onMouseMove = teller("MouseMove");
    control.onMouseUp = teller("MouseUp");
  }

  Tessoro::Trace &trace;
};

class UserActs : public testing::Test {
protected:
  UserActs() {
    session.App.Event([this] { form.Show(); });
  }

  // What the lines leave in the trace.
  std::string Play(const std::string &lines) {
    trace.str("");
    std::istringstream script(lines);
    status = PlayScript(session, script, errors);
    return trace.str();
  }

  std::ostringstream trace;
  std::ostringstream errors;
  Session session{"no-such-folder", trace};
  TestForm form{session.App, session.Trace};
  int status = ExitStatus::Played;
};

TEST_F(UserActs, AClickOnAnImageIsPressReleaseClick) {
  EXPECT_EQ(Play("click F_Test.Knob"), "Knob MouseDown 1 0 0\nKnob MouseUp 1 0 0\nKnob Click\n");
}

TEST_F(UserActs, ADoubleClickOnAnImageEndsWithASecondRelease) {
  EXPECT_EQ(Play("dblclick F_Test.Knob"), "Knob MouseDown 1 0 0\nKnob MouseUp 1 0 0\nKnob Click\n"
                                          "Knob DblClick\nKnob MouseUp 1 0 0\n");
}

TEST_F(UserActs, AClickOnANoteKeyIsPressAndRelease) {
  EXPECT_EQ(Play("click F_Test.Key"), "Key MouseDown 1 0 0\nKey MouseUp 1 0 0\n");
  EXPECT_EQ(Play("dblclick F_Test.Key"), "");
  EXPECT_EQ(status, ExitStatus::NotUnderstood);
}

TEST_F(UserActs, OtherControlsHearTheirClickAlone) {
  EXPECT_EQ(Play("click F_Test.Text\ndblclick F_Test.Text\nclick F_Test.Ground\nclick F_Test\n"),
            "Text Click\nText DblClick\nGround Click\nForm Click\n");
}

TEST_F(UserActs, EnterIsAKeyOfTheBox) {
  EXPECT_EQ(Play("enter F_Test.Text"), "Text KeyPress 13\n");
}

TEST_F(UserActs, ADragHasNoClick) {
  EXPECT_EQ(Play("mouse move F_Test.Knob 1 2\n"
                 "mouse down F_Test.Knob 3 4.5\n"
                 "mouse move F_Test.Knob -3000 1e3\n"
                 "mouse up F_Test.Knob 0 0\n"
                 "mouse move F_Test.Key 0 0\n"),
            "Knob MouseMove 0 1 2\nKnob MouseDown 1 3 4.5\nKnob MouseMove 1 -3000 1000\n"
            "Knob MouseUp 1 0 0\nKey MouseMove 0 0 0\n");
}

TEST_F(UserActs, TheControlThatWasPressedIsNamedUntilItIsLetGo) {
  for (const char *second : {"mouse move F_Test.Other 0 0", "mouse up F_Test.Other 0 0",
                             "mouse down F_Test.Other 0 0", "mouse down F_Test.Knob 0 0"}) {
    Play(std::string("mouse down F_Test.Knob 0 0\n") + second);
    EXPECT_EQ(status, ExitStatus::NotUnderstood) << second;
    Play("mouse up F_Test.Knob 0 0");
  }
  Play("mouse up F_Test.Knob 0 0");
  EXPECT_EQ(status, ExitStatus::NotUnderstood);
}

TEST_F(UserActs, APressThatIsNotPerformedIsNone) {
  form.Knob.SetEnabled(false);
  EXPECT_EQ(Play("mouse down F_Test.Knob 0 0\nmouse up F_Test.Knob 0 0\nmouse down F_Test.Key 0 0"),
            "cannot disabled\ncannot disabled\nKey MouseDown 1 0 0\n");
}

TEST_F(UserActs, AControlThatIsHiddenMeanwhileIsLetGoUnheard) {
  EXPECT_EQ(Play("mouse down F_Test.Knob 0 0\nset F_Test.Knob.Visible False\n"
                 "mouse move F_Test.Knob 0 0\nmouse up F_Test.Knob 0 0\n"
                 "mouse down F_Test.Key 0 0"),
            "Knob MouseDown 1 0 0\ncannot hidden\ncannot hidden\nKey MouseDown 1 0 0\n");
}

TEST_F(UserActs, OneWithoutWidthCountsAsHidden) {
  TextBox narrow(form, "Narrow", {0, 0, 0, 300});
  EXPECT_EQ(Play("type F_Test.Narrow \"1\""), "cannot hidden\n");
}

TEST_F(UserActs, AKeyWithACharacterIsAlsoPressed) {
  EXPECT_EQ(Play("keydown F_Test 13\nkeydown F_Test 16\nkeydown F_Test 65\nkeyup F_Test 65\n"),
            "KeyDown 13\nKeyPress 13\nKeyDown 16\nKeyDown 65\nKeyPress 65\nKeyUp 65\n");
}

TEST_F(UserActs, DrivesFoldersAndFilesAreChosenByName) {
  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("tessoro-choose-" + std::to_string(getpid()));
  std::filesystem::create_directories(folder);
  std::ofstream(folder / "bell.tss") << "x";
  std::ofstream(folder / "bell.txt") << "x";
  const std::string name = folder.string();
  EXPECT_EQ(Play("choose F_Test.Folders \"" + name + "\"\nget F_Test.Folders.Path\n" +
                 "choose F_Test.Folders \"" + name + "\"\n" + "set F_Test.Files.Path \"" + name +
                 "\"\nitems F_Test.Files\nchoose F_Test.Files \"bell.tss\"\n" +
                 "choose F_Test.Files \"bell.tss\"\nget F_Test.Files.FileName\n" +
                 "dblclick F_Test.Files\nchoose F_Test.Drives \"/\"\nget F_Test.Drives.Drive\n"),
            "Folders Change\nF_Test.Folders.Path = \"" + name + "\"\n" +
                "F_Test.Files.List(0) = \"bell.tss\"\nFiles Click bell.tss\n" +
                "Files Click bell.tss\nF_Test.Files.FileName = \"bell.tss\"\nFiles DblClick\n" +
                "F_Test.Drives.Drive = \"/\"\n");
  for (const std::string line :
       {"choose F_Test.Files \"bell.txt\"", "choose F_Test.Files \"\"",
        "choose F_Test.Folders \"/no/such/folder\"", "choose F_Test.Folders \".\"",
        "choose F_Test.Folders \"\"", "choose F_Test.Drives \"/tmp\"",
        "set F_Test.Files.FileName \"bell.tss\""}) {
    EXPECT_EQ(Play(line), "") << line;
    EXPECT_EQ(status, ExitStatus::NotUnderstood) << line;
  }
  std::filesystem::remove_all(folder);
}

TEST_F(UserActs, AFileListThatIsOutOfReachIsNotLookedInto) {
  form.Files.SetEnabled(false);
  EXPECT_EQ(Play("choose F_Test.Files \"none\""), "cannot disabled\n");
}

TEST_F(UserActs, ABoxIsAnsweredWithTheFirstAnswerThatItOffers) {
  Play("answer OK No Yes Cancel Yes");
  const auto ask = [this](int flags) { return session.App.MsgBox("text", flags, "title"); };
  EXPECT_EQ(ask(MsgBoxFlags::YesNo | MsgBoxFlags::Question), MsgBoxButton::No);
  EXPECT_EQ(ask(MsgBoxFlags::OkCancel), MsgBoxButton::Cancel);
  EXPECT_EQ(ask(MsgBoxFlags::YesNo), MsgBoxButton::Yes);
  EXPECT_EQ(ask(MsgBoxFlags::YesNo), MsgBoxButton::Yes) << "none is queued any more";
  EXPECT_EQ(ask(MsgBoxFlags::OkCancel), MsgBoxButton::Ok);
  EXPECT_EQ(trace.str(), "MsgBox 36 \"title\" \"text\" -> No\n"
                         "MsgBox 1 \"title\" \"text\" -> Cancel\n"
                         "MsgBox 4 \"title\" \"text\" -> Yes\n"
                         "MsgBox 4 \"title\" \"text\" -> Yes\n"
                         "MsgBox 1 \"title\" \"text\" -> OK\n");
}

TEST_F(UserActs, TimersFireInTheOrderInWhichTheyFallDue) {
  EXPECT_EQ(Play("tick 249"), "");
  EXPECT_EQ(Play("tick 1"), "Fast\n");
  // Both are due at 500: the one that has waited from earlier on comes first.
  EXPECT_EQ(Play("tick 500"), "Slow\nFast\nFast\n");
}

TEST_F(UserActs, AHandlerThatRestartsItsTimerCountsFromThen) {
  form.restartsFast = true;
  EXPECT_EQ(Play("tick 549"), "Fast\nSlow\n");
  EXPECT_EQ(Play("tick 1"), "Fast\n");
  EXPECT_EQ(Play("tick 300\nget F_Test.Fast.Interval"), "Fast\nF_Test.Fast.Interval = 300\n");
}

TEST_F(UserActs, ATimerOfAFormThatHasGoneIsStill) {
  session.App.Event([this] { session.App.F_InfoPopUp.Load(); });
  EXPECT_EQ(Play("close F_Test\ntick 10000"), "unload F_Test\n");
}

TEST_F(UserActs, WhatStandsForLooksAloneIsNotDumped) {
  const std::string dump = Play("dump F_Test");
  EXPECT_EQ(dump, "F_Test.Knob.Enabled = True\nF_Test.Knob.Visible = True\n"
                  "F_Test.List.Enabled = True\nF_Test.List.ListIndex = -1\n"
                  "F_Test.List.Text = \"?\"\nF_Test.Other.Enabled = True\n"
                  "F_Test.Other.Visible = True\nF_Test.Text.Enabled = True\n"
                  "F_Test.Text.Text = \"?\"\n");
}

} // namespace

} // namespace Tessoro
