#include "face/qt/Desk.hpp"

#include <gtest/gtest.h>

namespace Tessoro::Tests {
namespace {

const QRect Screen(0, 0, 1920, 1050);
const QSize MainSize(811, 593);

TEST(Desk, AWindowOpensAtTheLargestWholeNumberThatFits) {
  EXPECT_EQ(Desk::OpeningZoom(MainSize, {1620, 1300}), 1);
  EXPECT_EQ(Desk::OpeningZoom(MainSize, {1622, 1186}), 2);
  EXPECT_EQ(Desk::OpeningZoom(MainSize, {3840, 2100}), 3);
}

TEST(Desk, OnASmallScreenItOpensAtAStepThatFits) {
  EXPECT_EQ(Desk::OpeningZoom(MainSize, {1024, 560}), 0.75);
  EXPECT_EQ(Desk::OpeningZoom(MainSize, {100, 100}), Desk::SmallestZoom);
}

TEST(Desk, TheKeysGoByQuarters) {
  EXPECT_EQ(Desk::NextZoom(1, 1), 1.25);
  EXPECT_EQ(Desk::NextZoom(1, -1), 0.75);
  EXPECT_EQ(Desk::NextZoom(1.1, 1), 1.25);
  EXPECT_EQ(Desk::NextZoom(1.1, -1), 1);
  EXPECT_EQ(Desk::NextZoom(0.5, -1), Desk::SmallestZoom);
}

TEST(Desk, AFormStandsAtTheRightOfTheMainWindow) {
  const QRect main(100, 80, 811, 593);
  const QRect form(Desk::PlaceBeside({main}, {530, 202}, Screen), QSize(530, 202));
  EXPECT_FALSE(form.intersects(main));
  EXPECT_EQ(form.top(), main.top());
  EXPECT_GT(form.left(), main.right());
}

TEST(Desk, WithoutRoomAtTheRightItStandsWhereThereIsSome) {
  for (const QRect main :
       {QRect(1000, 80, 811, 593), QRect(560, 10, 811, 593), QRect(560, 400, 811, 593)}) {
    const QRect form(Desk::PlaceBeside({main}, {600, 220}, Screen), QSize(600, 220));
    EXPECT_FALSE(form.intersects(main));
    EXPECT_TRUE(Screen.contains(form));
  }
}

TEST(Desk, WithNoRoomAtAllItCoversAsLittleAsItCan) {
  const QRect screen(0, 0, 1000, 600);
  const QRect main(0, 0, 811, 593);
  const QRect form(Desk::PlaceBeside({main}, {400, 200}, screen), QSize(400, 200));
  EXPECT_TRUE(screen.contains(form));
  EXPECT_EQ(form.right(), screen.right());
}

TEST(Desk, ASecondFormKeepsOffTheFirst) {
  const QRect main(0, 0, 811, 593);
  const QRect first(Desk::PlaceBeside({main}, {400, 200}, Screen), QSize(400, 200));
  const QRect second(Desk::PlaceBeside({main, first}, {300, 180}, Screen), QSize(300, 180));
  EXPECT_FALSE(second.intersects(main));
  EXPECT_FALSE(second.intersects(first));
}

TEST(Desk, WhatComesBeforeTheMainWindowStandsAtTheRight) {
  const QRect form(Desk::PlaceBeside({}, {400, 200}, Screen), QSize(400, 200));
  EXPECT_EQ(form.right(), Screen.right());
  EXPECT_TRUE(Screen.contains(form));
}

// As the window of the built-in microQ.
const QSize Wished(1080, 560);
const QSize Least(740, 380);

TEST(Desk, WhatHasRoomBesideTheOthersKeepsItsSize) {
  EXPECT_EQ(Desk::SizeBeside({}, Wished, Least, Screen), Wished);
  EXPECT_EQ(Desk::SizeBeside({QRect(0, 0, 811, 593)}, Wished, Least, Screen), Wished);
}

TEST(Desk, WhatMayBeSmallerIsAsMuchSmallerAsItTakesToCoverNothing) {
  struct Case {
    QRect main;
    QRect screen;
  };
  for (const Case &each :
       {Case{{0, 0, 1622, 1186}, {0, 0, 2560, 1440}},
        Case{{930, 0, 1622, 1186}, {0, 0, 2560, 1440}}, Case{{0, 0, 811, 593}, {0, 0, 1280, 1024}},
        Case{{200, 420, 811, 593}, {0, 0, 1280, 1024}}}) {
    const QSize size = Desk::SizeBeside({each.main}, Wished, Least, each.screen);
    const QRect window(Desk::PlaceBeside({each.main}, size, each.screen), size);
    EXPECT_FALSE(window.intersects(each.main)) << each.screen.width();
    EXPECT_TRUE(each.screen.contains(window)) << each.screen.width();
    EXPECT_TRUE(size.width() == Wished.width() || size.height() == Wished.height());
  }
}

TEST(Desk, WhatWouldBeTooSmallKeepsItsSize) {
  EXPECT_EQ(Desk::SizeBeside({QRect(0, 0, 811, 593)}, Wished, Least, {0, 0, 1100, 800}), Wished);
}

} // namespace
} // namespace Tessoro::Tests
