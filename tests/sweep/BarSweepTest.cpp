// Every bar through every value, and every check box; and that the table leaves no control out.
#include "tests/sweep/SweepFixture.hpp"

#include <algorithm>
#include <set>

namespace Tessoro::Sweep {
namespace {

class Bars : public SweepTest<BarRow> {
protected:
  int Lowest() const { return std::min(row.min, row.max); }
  int Highest() const { return std::max(row.min, row.max); }
  Messages Once(int value) const {
    return row.road.kind == '-' ? Messages() : Messages{row.road.Message(value + row.added)};
  }
  void GoElsewhere(int value) {
    bar.SetValue(value == Lowest() ? Highest() : Lowest());
    TakeMessages();
  }
  void ExpectPartnerShows(int value) {
    if (auto *box = TryFind<TextBox>(row.form, row.partner)) {
      EXPECT_EQ(box->Text(), std::to_string(value));
    }
  }

  ScrollBar &bar = Find<ScrollBar>(row.form, row.name);
  CheckBox *mute = TryFind<CheckBox>(row.form, row.partner);
};

TEST_P(Bars, SendEachValueOnce) {
  EXPECT_EQ(bar.Min(), row.min);
  EXPECT_EQ(bar.Max(), row.max);
  EXPECT_EQ(bar.LargeChange(), row.largeChange);
  for (int value = Lowest(); value <= Highest(); ++value) {
    SCOPED_TRACE(value);
    GoElsewhere(value);
    EXPECT_EQ(bar.UserScroll(value), Reach::Done);
    EXPECT_EQ(TakeMessages(), Once(value));
    ExpectPartnerShows(value);
    GoElsewhere(value);
    bar.SetValue(value);
    EXPECT_EQ(TakeMessages(), Once(value));
    bar.SetValue(value);
    EXPECT_EQ(TakeMessages(), Messages());
  }
}

TEST_P(Bars, RefuseWhatLiesOutside) {
  EXPECT_THROW(bar.SetValue(Lowest() - 1), Failure);
  EXPECT_THROW(bar.SetValue(Highest() + 1), Failure);
  EXPECT_EQ(TakeMessages(), Messages());
}

TEST_P(Bars, EndTheirMuteAndSendTwice) {
  if (mute == nullptr)
    return;
  for (int value = Lowest(); value <= Highest(); ++value) {
    SCOPED_TRACE(value);
    GoElsewhere(value);
    mute->SetValue(1);
    EXPECT_EQ(TakeMessages(), Once(0));
    bar.SetValue(value);
    EXPECT_EQ(TakeMessages(), Messages(2, row.road.Message(value)));
    EXPECT_EQ(mute->Value(), 0);
  }
}

INSTANTIATE_TEST_SUITE_P(Sweep, Bars, testing::ValuesIn(Controls().bars), NameOfRow());

class Checks : public SweepTest<CheckRow> {
protected:
  // What the check box stands for while the bar that it mutes is at that volume.
  int Sent(int value, int volume) const {
    if (row.bar.empty())
      return value;
    return value == 1 ? 0 : volume;
  }
  void ExpectSent(int value, int volume) {
    EXPECT_EQ(check.Value(), value);
    EXPECT_EQ(TakeMessages(), Messages{row.road.Message(Sent(value, volume))});
  }

  CheckBox &check = Find<CheckBox>(row.form, row.name);
};

TEST_P(Checks, SendBothValues) {
  for (const int volume : {1, 64, 127}) {
    if (auto *bar = TryFind<ScrollBar>(row.form, row.bar))
      bar->SetValue(volume);
    TakeMessages();
    for (const int value : {1, 0}) {
      EXPECT_EQ(check.UserClick(), Reach::Done);
      ExpectSent(value, volume);
    }
    for (const int value : {1, 0}) {
      check.SetValue(value);
      ExpectSent(value, volume);
      check.SetValue(value);
      EXPECT_EQ(TakeMessages(), Messages());
    }
  }
  EXPECT_THROW(check.SetValue(2), Failure);
}

INSTANTIATE_TEST_SUITE_P(Sweep, Checks, testing::ValuesIn(Controls().checks), NameOfRow());

class Table : public EditorRun, public testing::Test {};

template <typename Rows> void AddNames(std::set<std::string> &names, const Rows &rows) {
  for (const Row &row : rows)
    names.insert(row.form + "." + row.name);
}

bool IsSwept(const Control &control) {
  switch (control.Type()) {
  case ControlType::TextBox:
  case ControlType::ComboBox:
  case ControlType::CheckBox:
  case ControlType::HScrollBar:
  case ControlType::VScrollBar:
    return true;
  case ControlType::Image:
    return dynamic_cast<const Image &>(control).Picture() == "knob";
  default:
    return false;
  }
}

TEST_F(Table, LeavesNoControlOfTheSoundOut) {
  std::set<std::string> names;
  AddNames(names, Controls().boxes);
  AddNames(names, Controls().lists);
  AddNames(names, Controls().presets);
  AddNames(names, Controls().bars);
  AddNames(names, Controls().checks);
  AddNames(names, Controls().knobs);
  for (const char *form : {"F_Tessoro", "F_LFO", "F_General"})
    for (const Control *control : run.app.FindForm(form)->Controls())
      if (IsSwept(*control)) {
        EXPECT_TRUE(names.contains(std::string(form) + "." + control->Name()))
            << control->Name() << " has no claim in controls.txt";
      }
}

} // namespace
} // namespace Tessoro::Sweep
