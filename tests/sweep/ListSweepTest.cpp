// Every list: each item picked, written and typed.
#include "tests/sweep/SweepFixture.hpp"

#include <algorithm>

namespace Tessoro::Sweep {
namespace {

class Lists : public SweepTest<ListRow> {
protected:
  // Whether the list takes the text for a value that it can send.
  bool Knows(std::size_t index) const {
    return index < (row.kind == "text" ? row.known : row.shown);
  }
  int Value(std::size_t index) const {
    constexpr int unisonoStep = 16;
    return row.kind == "index16" ? unisonoStep * row.items[index].value : row.items[index].value;
  }

  void ExpectSent(std::size_t index) {
    EXPECT_EQ(TakeMessages(), Messages{row.road.Message(Value(index))});
    EXPECT_TRUE(TakeBoxes().empty());
  }
  // A list that goes by its index has -1 to send, which the sender tells of and makes 0.
  void ExpectRefused() {
    const bool isByText = row.kind == "text";
    EXPECT_EQ(TakeMessages(), isByText ? Messages() : Messages{row.road.Message(0)});
    const auto boxes = TakeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text,
              isByText ? row.message : "Wrong SysEx value, please report this error!");
    EXPECT_EQ(boxes[0].flags, isByText ? 16 : 64);
    EXPECT_EQ(boxes[0].title, isByText ? "Internal error" : "Error - Application will continue");
  }
  void ExpectAnswerTo(const std::string &text) {
    const auto found = std::ranges::find(row.items, text, &Item::text);
    const auto index = static_cast<std::size_t>(found - row.items.begin());
    if (Knows(index))
      ExpectSent(index);
    else
      ExpectRefused();
    EXPECT_EQ(list.ListIndex(), index < row.shown ? static_cast<int>(index) : -1);
  }
  void GoElsewhere() {
    list.SetText("elsewhere");
    TakeMessages();
    TakeBoxes();
  }

  ComboBox &list = Find<ComboBox>(row.form, row.name);
};

TEST_P(Lists, OfferTheirItems) {
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < row.shown; ++i)
    texts.push_back(row.items[i].text);
  EXPECT_EQ(list.List(), texts);
}

TEST_P(Lists, SendEachItemThatIsPicked) {
  ExpectReach(list, [](ComboBox &tried) { return tried.UserSelect(0); });
  for (std::size_t i = 0; i < row.shown; ++i) {
    SCOPED_TRACE(row.items[i].text);
    for (int time = 0; time < 2; ++time) {
      EXPECT_EQ(list.UserSelect(static_cast<int>(i)), Reach::Done);
      ExpectSent(i);
    }
    EXPECT_EQ(list.Text(), row.items[i].text);
  }
}

TEST_P(Lists, SendEachIndexThatIsWritten) {
  for (std::size_t i = 0; i < row.shown; ++i) {
    SCOPED_TRACE(row.items[i].text);
    GoElsewhere();
    list.SetListIndex(static_cast<int>(i));
    ExpectSent(i);
    list.SetListIndex(static_cast<int>(i));
    EXPECT_EQ(TakeMessages(), Messages());
  }
  EXPECT_THROW(list.SetListIndex(static_cast<int>(row.shown)), Failure);
}

TEST_P(Lists, AnswerToEachTextThatIsWritten) {
  for (const Item &item : row.items) {
    SCOPED_TRACE(item.text);
    GoElsewhere();
    list.SetText(item.text);
    ExpectAnswerTo(item.text);
    list.SetText(item.text);
    EXPECT_EQ(TakeMessages(), Messages());
  }
}

TEST_P(Lists, AnswerToEachKeyThatIsTyped) {
  list.SetEnabled(true);
  for (const Item &item : row.items) {
    SCOPED_TRACE(item.text);
    GoElsewhere();
    list.UserErase();
    ExpectRefused();
    std::string typed;
    for (const char key : item.text) {
      typed += key;
      list.UserType(std::string(1, key));
      ExpectAnswerTo(typed);
    }
    EXPECT_EQ(list.Text(), item.text);
  }
}

INSTANTIATE_TEST_SUITE_P(Sweep, Lists, testing::ValuesIn(Controls().lists), NameOfRow());

class Presets : public SweepTest<PresetRow> {
protected:
  // No preset holds this.
  void GoElsewhere() {
    for (const std::string &name : row.boxes)
      Find<TextBox>(row.form, name).SetText("99");
    TakeMessages();
  }
  ComboBox &list = Find<ComboBox>(row.form, row.name);
};

TEST_P(Presets, WriteTheirFourBoxesInOrder) {
  ASSERT_EQ(list.List().size(), row.presets.size());
  for (std::size_t i = 0; i < row.presets.size(); ++i) {
    const Preset &preset = row.presets[i];
    SCOPED_TRACE(preset.text);
    GoElsewhere();
    EXPECT_EQ(list.List()[i], preset.text);
    list.UserSelect(static_cast<int>(i));
    Messages expected;
    for (std::size_t stage = 0; stage < row.boxes.size(); ++stage) {
      const BoxRow &box = Controls().Box(row.form, row.boxes[stage]);
      expected.push_back(box.road.Message(preset.values[stage]));
      EXPECT_EQ(Find<TextBox>(row.form, box.name).Text(), std::to_string(preset.values[stage]));
    }
    EXPECT_EQ(TakeMessages(), expected);
    list.UserSelect(static_cast<int>(i));
    EXPECT_EQ(TakeMessages(), Messages());
  }
}

TEST_P(Presets, DoNotAnswerToTyping) {
  for (const Preset &preset : row.presets) {
    list.UserErase();
    list.UserType(preset.text);
  }
  EXPECT_EQ(TakeMessages(), Messages());
  EXPECT_TRUE(TakeBoxes().empty());
}

INSTANTIATE_TEST_SUITE_P(Sweep, Presets, testing::ValuesIn(Controls().presets), NameOfRow());

} // namespace
} // namespace Tessoro::Sweep
