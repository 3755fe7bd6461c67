// What an init leaves in the edit buffer of the built-in microQ.
#include "service/builtin/BuiltinMicroQ.hpp"
#include "sound/Catalogue.hpp"
#include "tests/support/TestMidi.hpp"
#include "tests/support/TestRun.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <set>
#include <vector>

namespace Tessoro {
namespace {

// What the editor sends goes to the microQ at once.
class MidiToMicroQ : public TestMidi {
public:
  explicit MidiToMicroQ(BuiltinMicroQ &microQ) : target(microQ) {}

  MidiResult midiOutShortMsg(MidiHandle /*handle*/, std::uint32_t message) override {
    const std::array<std::uint8_t, 3> bytes{static_cast<std::uint8_t>(message),
                                            static_cast<std::uint8_t>(message >> 8),
                                            static_cast<std::uint8_t>(message >> 16)};
    target.Receive(bytes);
    return MidiResultCode::Success;
  }
  MidiResult midiOutLongMsg(MidiHandle /*handle*/, MIDIHDR &header,
                            std::uint32_t /*size*/) override {
    target.Receive({header.lpData, header.dwBufferLength});
    return MidiResultCode::Success;
  }

private:
  BuiltinMicroQ &target;
};

// A run whose port leads to a microQ.
struct MicroQRun {
  MicroQRun()
      : app({.midi = midi,
             .screen = screen,
             .clock = clock,
             .files = files,
             .random = random,
             .programPath = "/editor",
             .decimalSign = '.'}) {
    files.contents["/editor/Tessoro.ini"] =
        "\"Tessoro v1.3.1\"\r\n\"\",\"\"\r\n3,3\r\n0,0\r\n0,0\r\n\"?\"\r\n\"Yes\"\r\n";
    app.Start();
  }

  BuiltinMicroQ microQ;
  MidiToMicroQ midi{microQ};
  TestScreen screen;
  TestClock clock;
  TestFiles files;
  StandardRandomNumbers random;
  Application app;
};

std::vector<ParameterRow> Catalogue() {
  std::vector<ParameterRow> rows;
  for (const auto half : {SingleParameters(), GroupParameters()})
    rows.insert(rows.end(), half.begin(), half.end());
  return rows;
}

// No init routine sends these. Noise reaches the microQ all the same where its controls change.
const std::set<int> LeftAlone{59, 67, 68};
constexpr std::array<int, 2> NoiseParameters{67, 68};

class ServiceInitBufferTest : public testing::Test {
protected:
  MicroQRun run;
  BuiltinMicroQ &microQ = run.microQ;
};

TEST_F(ServiceInitBufferTest, TheListOfWhatIsLeftAloneIsTheCatalogues) {
  std::set<int> withoutInit;
  for (const ParameterRow &row : Catalogue())
    if (row.init == NoInit)
      withoutInit.insert(row.number);
  EXPECT_EQ(withoutInit, LeftAlone);
}

TEST_F(ServiceInitBufferTest, HoldsTheInitValueOfEveryParameterThatHasOne) {
  run.app.F_Tessoro.InitPanelParams();
  const MicroQState state = microQ.State();
  for (const ParameterRow &row : Catalogue()) {
    if (LeftAlone.contains(row.number))
      continue;
    EXPECT_EQ(state.parameters[static_cast<std::size_t>(row.number)], row.init)
        << row.number << ' ' << row.name;
  }
}

TEST_F(ServiceInitBufferTest, TellsNothingThatTheCatalogueDoesNotName) {
  run.app.F_Tessoro.InitPanelParams();
  const MicroQState state = microQ.State();
  for (int number = 1; number <= static_cast<int>(MicroQState::HighestParameter); ++number)
    if (FindParameter(number) == nullptr) {
      EXPECT_EQ(state.parameters[static_cast<std::size_t>(number)], -1) << number;
    }
}

TEST_F(ServiceInitBufferTest, FirstInitSilencesTheNoiseAndLeavesUnisonoDetune) {
  run.app.F_Tessoro.InitPanelParams();
  const MicroQState state = microQ.State();
  EXPECT_EQ(state.parameters[59], -1);
  EXPECT_EQ(state.parameters[67], 0);
  EXPECT_EQ(state.parameters[68], 64);
}

TEST_F(ServiceInitBufferTest, SecondInitLeavesAloneWhatOnlyItsControlsSend) {
  constexpr std::int16_t elsewhere = 33;
  run.app.F_Tessoro.InitPanelParams();
  for (const int number : NoiseParameters)
    run.app.Module1.SendSoundParam(number, elsewhere);
  run.app.Module1.SendSoundParam(59, elsewhere);
  run.app.F_Tessoro.InitPanelParams();
  const MicroQState state = microQ.State();
  for (const int number : LeftAlone)
    EXPECT_EQ(state.parameters[static_cast<std::size_t>(number)], elsewhere) << number;
}

TEST_F(ServiceInitBufferTest, ControllersAgreeWithTheParametersThatTheyStandFor) {
  run.app.F_Tessoro.InitPanelParams();
  const MicroQState state = microQ.State();
  constexpr int filterOneType = 68;
  for (const ControllerRow &row : Controllers()) {
    const std::int16_t sent = state.controllers[0][static_cast<std::size_t>(row.controller)];
    const ParameterRow *const parameter = FindParameter(row.number);
    EXPECT_EQ(sent, row.controller == filterOneType ? 1 : parameter->init) << row.name;
  }
}

} // namespace
} // namespace Tessoro
