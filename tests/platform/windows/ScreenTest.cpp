// SPDX-License-Identifier: MIT
#include "platform/windows/Screen.h"

#include <gtest/gtest.h>

namespace {

/// A low screen, a high one to its right and one below it.
constexpr QRect kLow(0, 0, 1000, 600);
constexpr QRect kHigh(1000, 0, 1000, 1200);
constexpr QRect kBelow(0, 600, 1000, 600);

} // namespace

TEST(ScreenTest, BarsTakeFromTheirOwnScreen) {
    const std::vector<Screen::Strut> struts{
        {Qt::LeftEdge, QRect(0, 0, 30, 600)},
        {Qt::TopEdge, QRect(1000, 0, 1000, 28)},
        {Qt::RightEdge, QRect(1960, 0, 40, 1200)},
        {Qt::BottomEdge, QRect(0, 1180, 1000, 20)},
    };
    EXPECT_EQ(Screen::without(struts, kLow), QRect(QPoint(30, 0), kLow.bottomRight()));
    EXPECT_EQ(Screen::without(struts, kHigh), QRect(QPoint(1000, 28), QPoint(1959, 1199)));
    EXPECT_EQ(Screen::without(struts, kBelow), QRect(QPoint(0, 600), QPoint(999, 1179)));
    EXPECT_EQ(Screen::without({}, kHigh), kHigh);
}

TEST(ScreenTest, WhatReachesOverAnotherScreenLeavesThatAlone) {
    // Bars at the inner edges, which struts can't name but from the desktop's edge on.
    const Screen::Strut bottomOfLow{Qt::BottomEdge, QRect(0, 580, 1000, 620)};
    const Screen::Strut leftOfHigh{Qt::LeftEdge, QRect(0, 0, 1030, 1200)};
    EXPECT_EQ(Screen::without({bottomOfLow}, kLow), QRect(QPoint(0, 0), QPoint(999, 579)));
    EXPECT_EQ(Screen::without({bottomOfLow}, kBelow), kBelow);
    EXPECT_EQ(Screen::without({leftOfHigh}, kHigh), QRect(QPoint(1030, 0), QPoint(1999, 1199)));
    EXPECT_EQ(Screen::without({leftOfHigh}, kLow), kLow);
}
