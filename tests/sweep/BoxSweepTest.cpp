// Every box: each integer in and around its range, written by code and typed by the user.
#include "tests/sweep/SweepFixture.hpp"

namespace Tessoro::Sweep {
namespace {

constexpr int Around = 15;

// What a box shows and what goes out, key by key.
class TypedBox {
public:
  TypedBox(const BoxRow &boxRow, std::string text, int number)
      : row(boxRow), shown(std::move(text)), bar(number) {}

  const std::string &Text() const { return shown; }

  Messages Write(const std::string &text) {
    if (text == shown)
      return {};
    shown = text;
    if ((text.empty() && row.WaitsEmpty()) || (text == "-" && row.IsBipolar()))
      return {};
    const int number = text.empty() || text == "-" ? 0 : std::stoi(text);
    const int kept = row.Kept(number);
    const bool isPlain = text == std::to_string(kept);
    const bool isMadePlainByBar = !isPlain && !row.bar.empty() && kept != bar;
    const bool isRewritten = kept != number || (kept == 0 && !isPlain) || isMadePlainByBar;
    if (isRewritten)
      shown = std::to_string(kept);
    bar = kept;
    return Messages(isRewritten ? 2 : 1, row.road.Message(row.Wire(kept)));
  }

private:
  const BoxRow &row;
  std::string shown;
  int bar;
};

class Boxes : public SweepTest<BoxRow> {
protected:
  Boxes() {
    if (!row.envelope.empty())
      Find<CommandButton>("F_Tessoro", "C_Envelope34").SetCaption(row.envelope);
  }

  int First() const { return row.lower - Around; }
  int Last() const { return row.upper + Around; }
  // Takes the box to a text from which a write of the number is a change.
  void GoElsewhere(int number) { box.SetText(number == 1 ? "0" : "1"); }

  TextBox &box = Find<TextBox>(row.form, row.name);
  ScrollBar *bar = TryFind<ScrollBar>(row.form, row.bar);
};

TEST_P(Boxes, TakeEachIntegerThatIsWritten) {
  ASSERT_EQ(bar != nullptr, !row.bar.empty());
  for (int number = First(); number <= Last(); ++number) {
    SCOPED_TRACE(number);
    GoElsewhere(number);
    TakeMessages();
    box.SetText(std::to_string(number));
    const int kept = row.Kept(number);
    const std::string message = row.road.Message(row.Wire(kept));
    EXPECT_EQ(TakeMessages(), kept == number ? Messages{message} : Messages(2, message));
    EXPECT_EQ(box.Text(), std::to_string(kept));
    if (bar != nullptr) {
      EXPECT_EQ(bar->Value(), kept);
    }
    box.SetText(std::to_string(kept));
    EXPECT_EQ(TakeMessages(), Messages());
  }
  EXPECT_TRUE(TakeBoxes().empty());
}

TEST_P(Boxes, TakeEachIntegerThatIsTyped) {
  ExpectReach(box, [](TextBox &tried) { return tried.UserType("1"); });
  if (row.reach == "hidden")
    return;
  box.SetText("1");
  TakeMessages();
  TypedBox expected(row, "1", 1);
  for (int number = First(); number <= Last(); ++number) {
    SCOPED_TRACE(number);
    box.UserErase();
    EXPECT_EQ(TakeMessages(), expected.Write(""));
    for (const char key : std::to_string(number)) {
      box.UserType(std::string(1, key));
      EXPECT_EQ(TakeMessages(), expected.Write(expected.Text() + key));
    }
    EXPECT_EQ(box.Text(), expected.Text());
  }
  EXPECT_FALSE(run.app.HasEnded());
}

TEST_P(Boxes, WriteTheirDefaultOnADoubleClick) {
  box.SetEnabled(true);
  box.SetText("1");
  TakeMessages();
  if (row.reach != "hidden") {
    EXPECT_EQ(box.UserDblClick(), Reach::Done);
  }
  if (!row.doubleClick) {
    EXPECT_EQ(TakeMessages(), Messages());
    return;
  }
  const std::string message = row.road.Message(row.Wire(*row.doubleClick));
  EXPECT_EQ(TakeMessages(), row.sendsItself ? Messages(2, message) : Messages{message});
  EXPECT_EQ(box.Text(), std::to_string(*row.doubleClick));
  box.UserDblClick();
  EXPECT_EQ(TakeMessages(), row.sendsItself ? Messages{message} : Messages());
}

INSTANTIATE_TEST_SUITE_P(Sweep, Boxes, testing::ValuesIn(Controls().boxes), [](const auto &tested) {
  return NameOfRow()(tested) + (tested.param.envelope.empty() ? "" : "_" + tested.param.envelope);
});

} // namespace
} // namespace Tessoro::Sweep
