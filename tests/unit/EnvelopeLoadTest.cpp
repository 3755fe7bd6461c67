// A load stores and sends both envelopes of the third panel, and shows the one of the caption.
#include "files/SoundFiles.hpp"
#include "tests/support/TestRun.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Tessoro {
namespace {

using testing::ElementsAre;

class EnvelopeLoad : public testing::Test {
protected:
  EnvelopeLoad() {
    run.StartWithOpenPorts();
    SaveSoundWithEnvelopes();
  }

  void SaveSoundWithEnvelopes() {
    run.app.F_Tessoro.InitPanelParams();
    Module1 &globals = run.app.Module1;
    int value = 0;
    for (Shadow *shadow :
         {&globals.Env3Attack, &globals.Env3Decay, &globals.Env3Sustain, &globals.Env3Release,
          &globals.Env4Attack, &globals.Env4Decay, &globals.Env4Sustain, &globals.Env4Release})
      shadow->SetNumber(++value);
    WriteSound(run.app, "/sound.tss");
  }

  // Loads into an editor that shows an envelope after an init.
  void LoadWhileShowing(std::string_view caption) {
    run.app.F_Tessoro.C_Envelope34.SetCaption(caption);
    run.app.F_Tessoro.InitPanelParams();
    run.Forget();
    ReadSoundV15(run.app, "/sound.tss");
  }

  // What went out to the stages of envelopes 3 and 4.
  std::vector<std::string> StageMessages() const {
    std::vector<std::string> found;
    for (const std::string &message : run.midi.messages)
      for (const char *stage :
           {"01 5F", "01 61", "01 62", "01 65", "01 6B", "01 6D", "01 6E", "01 71"})
        if (message.starts_with(std::string("F0 3E 10 00 20 00 ") + stage))
          found.push_back(message);
    return found;
  }

  // The messages of all stages in order; those of the envelope shown go out twice.
  static std::vector<std::string> Expected(bool showsThird) {
    constexpr int lowParts[] = {223 - 128, 225 - 128, 226 - 128, 229 - 128,
                                235 - 128, 237 - 128, 238 - 128, 241 - 128};
    std::vector<std::string> messages;
    int value = 0;
    for (const int low : lowParts) {
      const bool isThird = value < 4;
      messages.insert(messages.end(), isThird == showsThird ? 2 : 1,
                      ParameterMessage(1, low, ++value));
    }
    return messages;
  }

  std::vector<std::string> BoxTexts() const {
    const F_Tessoro &form = run.app.F_Tessoro;
    return {form.TextEnv3_A.Text(), form.TextEnv3_D.Text(), form.TextEnv3_S.Text(),
            form.TextEnv3_R.Text()};
  }

  TestRun run;
};

TEST_F(EnvelopeLoad, WritesTheBoxesFromEnvelope3UnderItsCaption) {
  LoadWhileShowing("3");
  EXPECT_EQ(StageMessages(), Expected(true));
  EXPECT_THAT(BoxTexts(), ElementsAre("1", "2", "3", "4"));
  EXPECT_EQ(run.app.Module1.Env4Release.Number('.'), 8);
}

TEST_F(EnvelopeLoad, WritesTheBoxesFromEnvelope4UnderItsCaption) {
  LoadWhileShowing("4");
  EXPECT_EQ(StageMessages(), Expected(false));
  EXPECT_THAT(BoxTexts(), ElementsAre("5", "6", "7", "8"));
  EXPECT_EQ(run.app.Module1.Env3Release.Number('.'), 4);
}

} // namespace
} // namespace Tessoro
