#include "face/microq/MessageModel.hpp"
#include "face/microq/MicroQLook.hpp"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Tessoro::Tests {
namespace {

// Told apart by their program.
std::vector<LoggedMessage> Programs(int first, int count) {
  std::vector<LoggedMessage> messages;
  for (int i = 0; i < count; ++i) {
    LoggedMessage message;
    message.time = std::chrono::milliseconds(first + i);
    message.firstBytes = {0xC0, 5};
    message.length = 2;
    message.meaning.kind = MicroQMessageKind::Program;
    message.meaning.number = static_cast<std::uint16_t>(first + i);
    messages.push_back(message);
  }
  return messages;
}

int NumberIn(const MessageModel &model, int row) { return model.At(row).meaning.number; }

QString TextIn(const MessageModel &model, int row, int column) {
  return model.data(model.index(row, column), Qt::DisplayRole).toString();
}

TEST(MessageModelTest, ShowsTimeBytesAndMeaning) {
  MessageModel model;
  model.Append(Programs(1234, 1));
  EXPECT_EQ(TextIn(model, 0, MessageModel::Time), QStringLiteral("1.234"));
  EXPECT_EQ(TextIn(model, 0, MessageModel::Bytes), QStringLiteral("C0 05"));
  EXPECT_EQ(TextIn(model, 0, MessageModel::Meaning), QStringLiteral("Program change to 1234"));
}

TEST(MessageModelTest, ABatchIsOneInsertionAtTheBottom) {
  MessageModel model;
  model.Append(Programs(0, 3));
  const QSignalSpy insertions(&model, &QAbstractItemModel::rowsInserted);
  model.Append(Programs(3, 310));
  ASSERT_EQ(insertions.size(), 1);
  EXPECT_EQ(insertions[0][1].toInt(), 3);
  EXPECT_EQ(insertions[0][2].toInt(), 312);
  EXPECT_EQ(NumberIn(model, 312), 312);
}

TEST(MessageModelTest, TheOldestLinesGoBeyondTenThousand) {
  MessageModel model;
  model.Append(Programs(0, 9990));
  model.Append(Programs(9990, 25));
  ASSERT_EQ(model.rowCount(), 10000);
  EXPECT_EQ(NumberIn(model, 0), 15);
  EXPECT_EQ(NumberIn(model, 9999), 10014);
}

TEST(MessageModelTest, OfABatchAboveTheLimitTheEndIsKept) {
  MessageModel model;
  model.Append(Programs(0, 5));
  model.Append(Programs(5, 12000));
  ASSERT_EQ(model.rowCount(), 10000);
  EXPECT_EQ(NumberIn(model, 0), 2005);
  EXPECT_EQ(NumberIn(model, 9999), 12004);
}

TEST(MessageModelTest, MalformedAndUnknownMessagesStandOutEachInItsWay) {
  MessageModel model;
  auto messages = Programs(0, 3);
  messages[1].meaning.kind = MicroQMessageKind::Malformed;
  messages[2].meaning.kind = MicroQMessageKind::OtherSysEx;
  model.Append(messages);
  const auto colorIn = [&model](int row) {
    return model.data(model.index(row, 2), Qt::ForegroundRole).value<QColor>();
  };
  EXPECT_FALSE(colorIn(0).isValid());
  EXPECT_EQ(colorIn(1), MicroQLook::Fault());
  EXPECT_EQ(colorIn(2), MicroQLook::Unknown());
}

TEST(MessageModelTest, ClearLeavesNothing) {
  MessageModel model;
  model.Append(Programs(0, 7));
  model.Clear();
  EXPECT_EQ(model.rowCount(), 0);
}

} // namespace
} // namespace Tessoro::Tests
