// The sounds that come with the program.
#include "files/SoundFiles.hpp"
#include "tests/support/TestRun.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace Tessoro::Tests {
namespace {

std::string Example(const std::string &name) {
  std::ifstream file(std::string(TESSORO_EXAMPLES) + "/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class ExampleSoundsTest : public testing::Test {
protected:
  ExampleSoundsTest() { run.StartWithOpenPorts(); }

  void Open(const std::string &name) {
    run.files.contents["/" + name] = Example(name);
    run.app.F_Tessoro.Menu_OpenSound.UserClick();
    run.app.F_FileIO.TextFilename.UserEdit(name);
    run.app.F_FileIO.C_File.UserClick();
  }

  std::string Saved() {
    WriteSound(run.app, "/saved.tss");
    return run.files.contents["/saved.tss"];
  }

  // What the boxes, lists and bars of the main form hold, by name.
  std::map<std::string, std::string> Shown() const {
    std::map<std::string, std::string> shown;
    for (const Control *control : run.app.F_Tessoro.Controls()) {
      if (const auto *box = dynamic_cast<const TextBox *>(control))
        shown[box->Name()] = box->Text();
      else if (const auto *list = dynamic_cast<const ComboBox *>(control))
        shown[list->Name()] = list->Text();
      else if (const auto *bar = dynamic_cast<const ScrollBar *>(control))
        shown[bar->Name()] = std::to_string(bar->Value());
    }
    return shown;
  }

  TestRun run;
};

class EachExampleTest : public ExampleSoundsTest,
                        public testing::WithParamInterface<const char *> {};

TEST_P(EachExampleTest, IsLoadedWithoutABox) {
  Open(GetParam());
  EXPECT_TRUE(run.screen.boxes.empty());
  EXPECT_FALSE(run.app.F_FileIO.IsLoaded());
}

INSTANTIATE_TEST_SUITE_P(Sounds, EachExampleTest,
                         testing::Values("bass.tss", "pad.tss", "lead.tss", "pad.syx"));

// What a load leaves as texts is saved in quotes, where a dump gives numbers; and a dump knows of
// no mute.
TEST_F(ExampleSoundsTest, DumpOfThePadIsThePad) {
  Open("pad.tss");
  run.app.F_Tessoro.CheckNoisemute.SetValue(0);
  std::string sound = Saved();
  Open("pad.syx");
  std::string import = Saved();
  std::erase(sound, '"');
  std::erase(import, '"');
  EXPECT_EQ(sound, import);
}

// Also what no line of a sound file holds and only a dump and an init set.
TEST_F(ExampleSoundsTest, DumpOfThePadLeavesEachControlAsAnInitAndThePadDo) {
  run.app.F_Tessoro.InitPanelParams();
  Open("pad.tss");
  run.app.F_Tessoro.CheckNoisemute.SetValue(0);
  const std::map<std::string, std::string> sound = Shown();
  Open("pad.syx");
  for (const auto &[control, content] : Shown())
    EXPECT_EQ(content, sound.at(control))
        << control << "; tools/rewrite-examples makes examples/pad.syx anew";
}

} // namespace
} // namespace Tessoro::Tests
