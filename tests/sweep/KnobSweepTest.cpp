// Every knob: a drag over its whole range in both branches, up and down.
#include "tests/sweep/SweepFixture.hpp"

namespace Tessoro::Sweep {
namespace {

constexpr int ShiftKey = 16;
// Moves of a standard drag that go by 1, and the step of all later ones.
constexpr int Ramp = 6;
constexpr int FastStep = 3;
// One fine step in so many moves.
constexpr int FineMoves = 4;
// Enough moves to come from one end to the other at a step of 1, and to press on beyond it.
constexpr int Moves = 140;

class Knobs : public SweepTest<KnobRow> {
protected:
  Knobs() {
    ExpectReach(knob, [](Image &tried) { return tried.UserMouseDown({}); });
    box.SetEnabled(true);
  }

  void StartAt(int number) {
    box.SetText(std::to_string(number));
    TakeMessages();
    shown = number;
  }

  // What a step from what the box shows is to send; the limits stop it only beforehand.
  Messages Step(int step, bool isAllowed) {
    if (!isAllowed || step == 0)
      return {};
    const int kept = boxRow.Kept(shown + step);
    Messages messages(kept == shown + step ? 1 : 2, boxRow.road.Message(boxRow.Wire(kept)));
    shown = kept;
    return messages;
  }
  Messages StepUp(int step) { return Step(step, shown < row.upper); }
  Messages StepDown(int step) { return Step(-step, shown > row.lower); }

  void Press() {
    y = 0;
    EXPECT_EQ(knob.UserMouseDown({.y = y}), Reach::Done);
  }
  void Release() { knob.UserMouseUp({.y = y}); }
  void Move(float twips) { knob.UserMouseMove({.y = y += twips}); }

  // Expects the claim's messages from each move of a drag that goes by so many twips.
  template <typename Claim> void Drag(float twips, int moves, const Claim &claim) {
    Press();
    for (int move = 0; move < moves; ++move) {
      SCOPED_TRACE(move);
      Move(twips);
      EXPECT_EQ(TakeMessages(), claim(move));
      EXPECT_EQ(box.Text(), std::to_string(shown));
    }
    Release();
  }

  static int StandardStep(int move) { return move < Ramp ? 1 : FastStep; }

  Image &knob = Find<Image>(row.form, row.name);
  TextBox &box = Find<TextBox>(row.form, row.box);
  const BoxRow &boxRow = Controls().Box(row.form, row.box);
  int shown = 0;
  float y = 0;
};

TEST_P(Knobs, RaiseTheirBoxInAStandardDrag) {
  StartAt(boxRow.lower);
  Drag(-1, Moves, [this](int move) { return StepUp(StandardStep(move)); });
}

TEST_P(Knobs, LowerTheirBoxInAStandardDrag) {
  StartAt(boxRow.upper);
  Drag(1, Moves, [this](int move) { return StepDown(StandardStep(move)); });
  EXPECT_EQ(box.Text(), std::to_string(boxRow.lower));
}

TEST_P(Knobs, RaiseTheirBoxInAFineDrag) {
  run.app.F_Tessoro.UserKeyDown(ShiftKey);
  StartAt(boxRow.lower);
  Drag(-1, FineMoves * Moves,
       [this](int move) { return move % FineMoves == 0 ? StepUp(row.fineUp) : Messages(); });
  EXPECT_EQ(box.Text(), std::to_string(row.fineUp == 0 ? boxRow.lower : row.upper));
}

TEST_P(Knobs, LowerTheirBoxInAFineDrag) {
  run.app.F_Tessoro.UserKeyDown(ShiftKey);
  StartAt(boxRow.upper);
  Drag(1, FineMoves * Moves,
       [this](int move) { return move % FineMoves == 0 ? StepDown(1) : Messages(); });
  EXPECT_EQ(box.Text(), std::to_string(boxRow.lower));
}

TEST_P(Knobs, DoNothingWithoutAPressOrSideways) {
  StartAt(5);
  Move(-1);
  Press();
  knob.UserMouseMove({.x = 100, .y = y});
  Release();
  Move(-1);
  EXPECT_EQ(TakeMessages(), Messages());
}

TEST_P(Knobs, WriteTheirDefaultOnADoubleClickIfTheyHaveOne) {
  StartAt(5);
  knob.UserDblClick();
  if (row.doubleClick) {
    EXPECT_EQ(TakeMessages(), Messages{boxRow.road.Message(boxRow.Wire(*row.doubleClick))});
  }
  knob.UserDblClick();
  EXPECT_EQ(TakeMessages(), Messages());
  EXPECT_EQ(box.Text(), std::to_string(row.doubleClick.value_or(5)));
}

TEST_P(Knobs, LookAndTellTheSame) {
  EXPECT_EQ(knob.ToolTipText(), row.hasTip ? "Press [Shift] for finetuning" : "");
  EXPECT_EQ(knob.DesignPlace().width, 600);
  EXPECT_EQ(knob.DesignPlace().height, 660);
}

INSTANTIATE_TEST_SUITE_P(Sweep, Knobs, testing::ValuesIn(Controls().knobs), NameOfRow());

} // namespace
} // namespace Tessoro::Sweep
