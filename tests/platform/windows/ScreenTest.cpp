// SPDX-License-Identifier: MIT
#include "platform/windows/Screen.h"
#include "platform/windows/LayerShell.h"

#include <gtest/gtest.h>

TEST(ScreenTest, BarsTakeFromTheirOwnScreenAndLeaveThoseAloneThatTheyReachOver) {
    // A low screen, a high one to its right and one below it.
    constexpr QRect low(0, 0, 1000, 600);
    constexpr QRect high(1000, 0, 1000, 1200);
    constexpr QRect below(0, 600, 1000, 600);
    const std::vector<Screen::Strut> struts{
        {Qt::LeftEdge, QRect(0, 0, 30, 600)},
        {Qt::TopEdge, QRect(1000, 0, 1000, 28)},
        {Qt::RightEdge, QRect(1960, 0, 40, 1200)},
        {Qt::BottomEdge, QRect(0, 1180, 1000, 20)},
        // At the inner edges, which struts can't name but from the desktop's edge on.
        {Qt::BottomEdge, QRect(0, 580, 1000, 620)},
        {Qt::LeftEdge, QRect(0, 0, 1030, 1200)},
    };
    EXPECT_EQ(Screen::without(struts, low), QRect(QPoint(30, 0), QPoint(999, 579)));
    EXPECT_EQ(Screen::without(struts, high), QRect(QPoint(1030, 28), QPoint(1959, 1199)));
    EXPECT_EQ(Screen::without(struts, below), QRect(QPoint(0, 600), QPoint(999, 1179)));
}

TEST(LayerShellTest, WhatBarsLeaveLiesBesideTheBarThatWasClicked) {
    constexpr QRect screen(500, 100, 1000, 600);
    const struct {
        QSize free;
        QPoint click;
        QPoint corner; ///< The free part's.
    } cases[]{
        {{1000, 570}, {1480, 110}, {500, 130}},  // a bar above
        {{1000, 570}, {1480, 690}, {500, 100}},  // a bar below
        {{960, 600}, {520, 690}, {540, 100}},    // at the left
        {{960, 600}, {1490, 690}, {500, 100}},   // at the right
        {{960, 570}, {1400, 690}, {540, 100}},   // below, and a dock at the left
        {{1000, 600}, {1480, 690}, {500, 100}},  // one that takes nothing
        {{2000, 1200}, {1480, 690}, {500, 100}}, // a nonsense
    };
    for (const auto& [free, click, corner] : cases)
        EXPECT_EQ(LayerShell::freePart(screen, free, click), QRect(corner, free.boundedTo(screen.size())));
}
