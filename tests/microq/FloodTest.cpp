// Far more messages than anybody can read, as fast as they can be sent.
#include "tests/microq/MessageList.hpp"

#include <QStyledItemDelegate>
#include <QTest>

#include <gtest/gtest.h>

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <thread>

namespace Tessoro::Tests {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr int Flood = 100'000;
constexpr int MostLines = static_cast<int>(MessageModel::MostLines);

// Can be told apart over a stretch longer than the list.
Bytes MessageAt(int i) {
  return {0xB0, static_cast<std::uint8_t>(i / 128 % 128), static_cast<std::uint8_t>(i % 128)};
}

class CountingDelegate : public QStyledItemDelegate {
public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter *painter, const QStyleOptionViewItem &option,
             const QModelIndex &index) const override {
    ++painted;
    QStyledItemDelegate::paint(painter, option, index);
  }
  QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override {
    ++measured;
    return QStyledItemDelegate::sizeHint(option, index);
  }

  mutable int painted = 0;
  mutable int measured = 0;
};

class FloodTest : public testing::Test {
protected:
  FloodTest() {
    microQ.AddListener(inbox);
    QObject::connect(&window.Messages(), &QAbstractItemModel::rowsInserted, &window,
                     [this](const QModelIndex & /*parent*/, int first, int last) {
                       ++insertions;
                       mostInserted = std::max(mostInserted, last - first + 1);
                     });
    window.show();
  }

  void Send(int count) {
    for (int i = 0; i < count; ++i)
      microQ.Receive(MessageAt(sent++));
  }

  // The list holds the last of all that were sent, in their order.
  void ExpectTheLastLines() {
    EXPECT_EQ(inbox.Total(), static_cast<std::uint64_t>(sent));
    ASSERT_EQ(window.Messages().rowCount(), MostLines);
    for (int row = 0; row < MostLines; ++row) {
      const Bytes expected = MessageAt(sent - MostLines + row);
      const MidiBytes kept = window.Messages().At(row).KeptBytes();
      ASSERT_TRUE(std::equal(kept.begin(), kept.end(), expected.begin(), expected.end())) << row;
    }
  }

  BuiltinMicroQ microQ;
  MessageInbox inbox{MessageModel::MostLines};
  MicroQWindow window{microQ, inbox, QStringLiteral("microQ")};
  std::atomic<int> sent = 0;
  int insertions = 0;
  int mostInserted = 0;
};

TEST_F(FloodTest, HoweverMuchHasPiledUpOneLookTakesItInOneGoAndMeasuresNoLine) {
  QTreeView &list = MessageListOf(window);
  CountingDelegate delegate;
  list.setItemDelegate(&delegate);
  Send(Flood);
  window.Refresh();
  QCoreApplication::processEvents();
  EXPECT_EQ(insertions, 1);
  EXPECT_EQ(mostInserted, MostLines);
  const int lineHeight = list.visualRect(list.model()->index(MostLines - 1, 0)).height();
  const int cellsInSight = (list.viewport()->height() / lineHeight + 2) * MessageModel::ColumnCount;
  EXPECT_GT(delegate.painted, 0);
  EXPECT_LE(delegate.painted, 2 * cellsInSight);
  EXPECT_LE(delegate.measured, 2 * cellsInSight);
  ExpectTheLastLines();
}

// The flood doesn't stop before enough clicks have been answered, so all of them are answered in
// the midst of it.
TEST_F(FloodTest, ClicksAreAnsweredWhileMessagesPourIn) {
  constexpr int enoughClicks = 100;
  constexpr int enoughLooks = 20;
  constexpr int sentInVain = 500'000'000;
  QTreeView &list = MessageListOf(window);
  int answers = 0;
  QObject::connect(&list, &QTreeView::pressed, &window, [&answers] { ++answers; });
  Send(Flood);
  window.Refresh();
  std::atomic<bool> isEnough = false;
  std::thread sender([&] {
    while (!isEnough && sent < sentInVain)
      Send(1);
  });
  int clicks = 0;
  while (clicks < enoughClicks || insertions < enoughLooks) {
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                      list.viewport()->mapTo(&window, list.viewport()->rect().center()));
    ++clicks;
    const int insertionsBefore = insertions;
    window.Refresh();
    EXPECT_LE(insertions, insertionsBefore + 1);
  }
  isEnough = true;
  sender.join();
  EXPECT_EQ(answers, clicks);
  EXPECT_LT(sent, sentInVain) << "the window looked at messages and at nothing else";
  EXPECT_LE(mostInserted, MostLines);
  window.Refresh();
  ExpectTheLastLines();
}

std::size_t BytesInUse() {
  const struct mallinfo2 heap = mallinfo2();
  return heap.uordblks + heap.hblkhd;
}

TEST_F(FloodTest, OnceTheListIsFullMoreMessagesTakeNoMoreMemory) {
  constexpr std::size_t slack = 65'536;
  Bytes dump(1000, 0x01);
  dump.front() = 0xF0;
  dump.back() = 0xF7;
  const auto mostBytesWhile = [&](int count, int messagesBetweenLooks) {
    std::size_t most = 0;
    for (int i = 1; i <= count; ++i) {
      microQ.Receive(dump);
      if (i % messagesBetweenLooks == 0) {
        most = std::max(most, BytesInUse());
        window.Refresh();
        QCoreApplication::processEvents();
      }
    }
    return std::max(most, BytesInUse());
  };
  mostBytesWhile(Flood, Flood);
  const std::size_t full = mostBytesWhile(Flood, Flood);
  EXPECT_LE(mostBytesWhile(3 * Flood, 3 * Flood), full + slack);
  EXPECT_LE(mostBytesWhile(Flood, Flood / 100), full + slack);
  EXPECT_EQ(window.Messages().rowCount(), MostLines);
}

} // namespace
} // namespace Tessoro::Tests
