// SPDX-License-Identifier: MIT
#include "app/ui/LumivaneStatusItem.h"

#include <gtest/gtest.h>

namespace {

// Left of and above another screen, so that nothing counts from zero.
constexpr QRect kScreen(-1920, -300, 1920, 1080);

QRect frame(const std::optional<QRect>& icon, const QMargins& bars, const QSize& size = QSize(340, 700)) {
    const QRect available = kScreen.marginsRemoved(bars);
    const QRect result = LumivaneStatusItem::panelFrame(icon, size, kScreen, available);
    EXPECT_EQ(result.size(), size);
    EXPECT_TRUE(size.height() > available.height() || available.contains(result)) << result.y();
    return result.translated(-kScreen.topLeft());
}

QRect iconAt(int x, int y) {
    return QRect(kScreen.topLeft() + QPoint(x, y), QSize(28, 28));
}

constexpr QMargins kTop(0, 28, 0, 0);
constexpr QMargins kBottom(0, 0, 0, 28);

} // namespace

TEST(LumivaneStatusItemTest, ThePanelOpensAtTheIconOnEveryEdgeOfTheScreen) {
    EXPECT_NEAR(frame(iconAt(1000, 0), kTop).center().x(), 1013, 1);
    for (const int x : {0, 20, 1000, 1892}) {
        EXPECT_EQ(frame(iconAt(x, 0), kTop).top(), 28) << x;
        EXPECT_EQ(frame(iconAt(x, 1052), kBottom).bottom(), 1051) << x;
    }
    for (const int y : {0, 28, 500, 600, 1052}) {
        EXPECT_EQ(frame(iconAt(0, y), {28, 0, 0, 0}).left(), 28) << y;
        EXPECT_EQ(frame(iconAt(1892, y), {0, 0, 28, 0}).right(), 1891) << y;
    }
    EXPECT_EQ(frame(iconAt(1000, 1052), kTop, QSize(340, 2000)).top(), 28) << "too high, it shows its top";
}

TEST(LumivaneStatusItemTest, WithoutAKnownIconItOpensInTheTraysCorner) {
    EXPECT_EQ(frame(std::nullopt, kTop).topRight(), QPoint(1919, 28));
    EXPECT_EQ(frame(std::nullopt, kBottom).bottomRight(), QPoint(1919, 1051));
    EXPECT_EQ(frame(std::nullopt, {}).bottomRight(), QPoint(1919, 1079));
}
