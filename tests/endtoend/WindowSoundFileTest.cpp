// A sound that is made by hand, saved under a new name, and loaded by the next run of the program.
#include "tests/endtoend/PluggedEditorTest.hpp"

#include "service/builtin/BuiltinMicroQ.hpp"

#include <gmock/gmock.h>

#include <array>

namespace Tessoro::Tests {
namespace {

// Parameters that an init sets and a load doesn't: the general ones, which wait for their form, and
// those without a line in the file.
constexpr std::array LeftOut{53,  56,  57,  58,  71,  72,  75,  76,  94,  95,
                             114, 115, 125, 196, 200, 203, 204, 208, 212, 215,
                             216, 220, 224, 227, 228, 232, 236, 239, 240};

// A load says them with 8 more than an init does: the second bytes of the arpeggiator's steps.
constexpr int FirstRaised = 344;
constexpr int LastRaised = 359;

constexpr const char *FileFormTitle = "^(Save|Open)[: ]";

class WindowSoundFileTest : public PluggedEditorTest {
protected:
  const F_Tessoro &Main() const { return editor->Design().F_Tessoro; }

  ShownForm FileForm() const { return {display, FileFormTitle, editor->Design().F_FileIO}; }

  // On each section something else than an init leaves there.
  void MakeSound() const {
    const ShownForm form = editor->MainForm();
    form.Click(Main().InitSnd);
    display.WaitForWindow("^Tessoro v1.3.1$");
    form.Pick(Main().ComboOSC2shape, 5);
    form.Pick(Main().ComboOSC3oct, 6);
    form.Type(Main().TextOSC1semi, "minus 7");
    form.Type(Main().TextOSC2detune, "1 1");
    form.Type(Main().TextOSC3keytrack, "minus 2 0");
    form.Click(Main().C_OSC1bendPlus);
    form.Click(Main().CheckSyncOn);
    form.Click(Main().VScrollOSC3vol, {.y = 0.4});
    form.Click(Main().VScrollOSC2vol, {.y = 0.4});
    form.Click(Main().CheckOSC1mute);
    form.Type(Main().TextNoisefbalance, "9");
    form.Pick(Main().ComboFilter2, 9);
    form.Type(Main().TextF1_cutoff, "6 4");
    form.DoubleClick(Main().knobOSC1pw);
    form.Click(Main().ImageParallel);
    form.Pick(Main().ComboEnv1, 3);
    form.Pick(Main().ComboEnvFilter, 6);
    form.Type(Main().TextAmpVelocity, "3 3");
  }

  // Into a folder inside of the one that the form begins in.
  void SaveSound() const {
    editor->MainForm().PressKeys("ctrl+s");
    const F_FileIO &design = editor->Design().F_FileIO;
    const ShownForm form = FileForm();
    form.Click(design.Dir1);
    form.PressKeys("End Return");
    display.WaitForWindow("^Save .*/sounds/.*[.]tss$");
    form.Type(design.TextFilename, "b a s s");
    form.Click(design.C_File);
    form.WaitUntilGone();
    display.WaitForWindow("^Tessoro v1.3.1 - bass.tss$");
  }

  void LoadSound() const {
    editor->MainForm().PressKeys("ctrl+o");
    const ShownForm form = FileForm();
    constexpr Share firstRow{.y = 0.1};
    form.DoubleClick(editor->Design().F_FileIO.File1, firstRow);
    form.WaitUntilGone();
    display.WaitForWindow("^Tessoro v1.3.1 - bass.tss$");
  }

  // What a microQ at the cable knows after all that this run has sent. A note ends it.
  MicroQState StateAfterThisRun() {
    const std::size_t before = synth->Count();
    editor->MainForm().Click(Main().NoteC1);
    WaitFor("the last note",
            [&] { return synth->Count() > before && synth->Messages().back() == Note(36, 0); });
    BuiltinMicroQ microQ;
    for (const Bytes &message : Hear(0))
      microQ.Receive(message);
    editor->CloseMainWindow();
    EXPECT_EQ(editor->ExitStatus(), 0);
    return microQ.State();
  }
};

TEST_F(WindowSoundFileTest, ASoundMadeByHandIsTheSameInTheEditBufferAfterSaveRestartAndLoad) {
  std::filesystem::create_directory(place.Path() / "sounds");
  place.WriteSettings(SettingsWithPorts(PlaceOfSynth(), PlaceOfKeyboard(), place.Path().string()));
  editor = std::make_unique<WindowedEditor>(display, place);
  MakeSound();
  SaveSound();
  const MicroQState made = StateAfterThisRun();
  EXPECT_EQ(made.parameters[78], 64) << "cutoff of filter 1";
  EXPECT_EQ(made.parameters[24], 5) << "shape of oscillator 2";
  EXPECT_EQ(made.parameters[2], 57) << "semitone of oscillator 1";

  // One that knows nothing yet hears the load.
  editor = std::make_unique<WindowedEditor>(display, place);
  LoadSound();
  const MicroQState loaded = StateAfterThisRun();
  std::vector<int> different;
  for (int number = 1; number <= static_cast<int>(MicroQState::HighestParameter); ++number) {
    const auto index = static_cast<std::size_t>(number);
    const bool isRaised = number >= FirstRaised && number <= LastRaised;
    if (loaded.parameters[index] != made.parameters[index] + (isRaised ? 8 : 0))
      different.push_back(number);
  }
  EXPECT_THAT(different, testing::ElementsAreArray(LeftOut));
}

} // namespace
} // namespace Tessoro::Tests
