#include "tests/support/TestRun.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Tessoro {
namespace {

TEST(NoteSection, AKeySoundsAlikeUnderEachButtonWithAndWithoutShift) {
  TestRun run;
  run.StartWithOpenPorts();
  for (const int button : {1, 2, 4}) {
    for (const int shift : {0, 1, 7}) {
      run.midi.messages.clear();
      const MouseEvent event{.button = button, .shift = shift, .x = 400, .y = -20};
      run.app.F_Tessoro.NoteC3.UserMouseDown(event);
      run.app.F_Tessoro.NoteC3.UserMouseUp(event);
      EXPECT_THAT(run.midi.messages, testing::ElementsAre("00643C90", "00003C90"))
          << button << " " << shift;
    }
  }
}

} // namespace
} // namespace Tessoro
