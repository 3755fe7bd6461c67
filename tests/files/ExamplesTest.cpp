// The sounds that come with the program.
#include "files/SoundFiles.hpp"
#include "tests/support/TestRun.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

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

} // namespace
} // namespace Tessoro::Tests
