#include "face/microq/BufferModel.hpp"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Tessoro::Tests {
namespace {

using namespace std::chrono_literals;

constexpr BufferModel::Time Noon{};

int RowOf(const BufferModel &model, const QString &number) {
  for (int row = 0; row < model.rowCount(); ++row)
    if (model.index(row, BufferModel::Number).data().toString() == number)
      return row;
  return -1;
}

QStringList RowTexts(const QAbstractItemModel &model, int row) {
  QStringList texts;
  for (int column = 0; column < model.columnCount(); ++column)
    texts << model.index(row, column).data().toString();
  return texts;
}

TEST(BufferModelTest, KnowsNothingAtFirst) {
  const BufferModel model;
  EXPECT_EQ(RowTexts(model, RowOf(model, QStringLiteral("78"))),
            (QStringList{QStringLiteral("78"), QStringLiteral("Filter 1 cutoff"), QString(),
                         QStringLiteral("?")}));
}

TEST(BufferModelTest, HasEachNumberOnceButTheGap) {
  const BufferModel model;
  EXPECT_EQ(RowOf(model, QStringLiteral("256")), -1);
  EXPECT_GE(RowOf(model, QStringLiteral("383")), 0);
  EXPECT_EQ(model.rowCount(), 383); // 382 numbers, and filter 1's type that has none
}

TEST(BufferModelTest, ShowsAValueAsTheFormsDo) {
  BufferModel model;
  MicroQState state;
  state.parameters[2] = 70;
  model.Take(state, Noon);
  const int row = RowOf(model, QStringLiteral("2"));
  EXPECT_EQ(RowTexts(model, row),
            (QStringList{QStringLiteral("2"), QStringLiteral("OSC 1 semitone"),
                         QStringLiteral("70"), QStringLiteral("+6")}));
}

TEST(BufferModelTest, FilterOnesTypeStandsBeforeItsCutoffByItsController) {
  BufferModel model;
  MicroQState state;
  state.controllers[3][68] = 1;
  model.Take(state, Noon);
  const int row = RowOf(model, QStringLiteral("78")) - 1;
  EXPECT_EQ(RowTexts(model, row),
            (QStringList{QStringLiteral("CC 68"), QStringLiteral("Filter 1 type"),
                         QStringLiteral("1"), QStringLiteral("\\_ Lowpass 24 dB")}));
}

TEST(BufferModelTest, AChangedValueIsMarkedForAMoment) {
  BufferModel model;
  const int cutoff = RowOf(model, QStringLiteral("78"));
  MicroQState state;
  state.parameters[78] = 64;
  model.Take(state, Noon);
  EXPECT_TRUE(model.IsMarked(cutoff));
  EXPECT_FALSE(model.IsMarked(cutoff + 1));
  model.Fade(Noon + BufferModel::MarkTime - 1ms);
  EXPECT_TRUE(model.IsMarked(cutoff));
  model.Fade(Noon + BufferModel::MarkTime);
  EXPECT_FALSE(model.IsMarked(cutoff));
}

TEST(BufferModelTest, TheSameValueChangesNothing) {
  BufferModel model;
  MicroQState state;
  state.parameters[78] = 64;
  model.Take(state, Noon);
  const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
  model.Take(state, Noon);
  EXPECT_EQ(changes.size(), 0);
}

TEST(BufferFilterTest, AnUnknownParameterIsShownOnceSomebodySetsIt) {
  BufferModel model;
  BufferFilter filter(model);
  filter.Search(QStringLiteral("parameter 14"));
  EXPECT_EQ(filter.rowCount(), 0);
  MicroQState state;
  state.parameters[14] = 5;
  model.Take(state, Noon);
  ASSERT_EQ(filter.rowCount(), 1);
  EXPECT_EQ(RowTexts(filter, 0)[1], QStringLiteral("Parameter 14"));
}

TEST(BufferFilterTest, FindsAllWordsInAnyOrderAndNumbers) {
  BufferModel model;
  BufferFilter filter(model);
  const int all = filter.rowCount();
  filter.Search(QStringLiteral("CUTOFF filter 2"));
  EXPECT_GT(filter.rowCount(), 0);
  EXPECT_LT(filter.rowCount(), 20);
  for (int row = 0; row < filter.rowCount(); ++row)
    EXPECT_TRUE(RowTexts(filter, row)[1].startsWith(QStringLiteral("Filter 2 cutoff")));
  filter.Search(QStringLiteral("364"));
  ASSERT_EQ(filter.rowCount(), 1);
  EXPECT_EQ(RowTexts(filter, 0)[1], QStringLiteral("Sound name character 1"));
  filter.Search(QStringLiteral("filter 1"));
  for (int row = 0; row < filter.rowCount(); ++row)
    EXPECT_TRUE(RowTexts(filter, row)[1].contains(QLatin1Char('1'))) << "not a piece of a number";
  filter.Search(QStringLiteral("68"));
  EXPECT_EQ(RowTexts(filter, 0)[0], QStringLiteral("68"));
  filter.Search(QStringLiteral("cc 68"));
  ASSERT_EQ(filter.rowCount(), 1);
  EXPECT_EQ(RowTexts(filter, 0)[1], QStringLiteral("Filter 1 type"));
  filter.Search(QString());
  EXPECT_EQ(filter.rowCount(), all);
}

} // namespace
} // namespace Tessoro::Tests
