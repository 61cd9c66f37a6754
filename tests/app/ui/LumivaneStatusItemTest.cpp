// SPDX-License-Identifier: MIT
#include "app/ui/LumivaneStatusItem.h"

#include <gtest/gtest.h>

namespace {

constexpr QSize kPanel(340, 700);

QRect frame(const std::optional<QRect>& icon, const QRect& screen, const QMargins& bars,
            const QSize& size = kPanel) {
    const QRect available = screen.marginsRemoved(bars);
    const QRect result = LumivaneStatusItem::panelFrame(icon, size, screen, available);
    EXPECT_EQ(result.size(), size);
    EXPECT_TRUE(size.height() > available.height() || available.contains(result))
        << result.x() << ' ' << result.y();
    return result;
}

} // namespace

TEST(LumivaneStatusItemTest, ThePanelOpensAtTheIconOnEveryEdgeOfTheScreen) {
    // A second screen, left of and above the first, shows that nothing counts from zero.
    for (const QPoint& origin : {QPoint(0, 0), QPoint(-1920, -300)}) {
        const QRect screen(origin, QSize(1920, 1080));
        const auto icon = [&](int x, int y) { return QRect(origin + QPoint(x, y), QSize(28, 28)); };
        const QMargins top(0, 28, 0, 0);
        const QMargins bottom(0, 0, 0, 28);

        const QRect under = frame(icon(1000, 0), screen, top);
        EXPECT_EQ(under.top(), screen.top() + 28) << "level with the icon's lower edge";
        EXPECT_NEAR(under.center().x(), screen.left() + 1013, 1) << "centred on it";
        const QRect above = frame(icon(1000, 1052), screen, bottom);
        EXPECT_EQ(above.bottom(), screen.top() + 1051);
        EXPECT_EQ(above.x(), under.x());

        for (const int y : {0, 28, 500, 600, 1000, 1052}) {
            EXPECT_EQ(frame(icon(0, y), screen, {28, 0, 0, 0}).left(), screen.left() + 28) << y;
            EXPECT_EQ(frame(icon(1892, y), screen, {0, 0, 28, 0}).right(), screen.left() + 1891) << y;
        }
        for (const int x : {0, 20, 1880, 1892}) {
            EXPECT_EQ(frame(icon(x, 0), screen, top).top(), screen.top() + 28) << x;
            EXPECT_EQ(frame(icon(x, 1052), screen, bottom).bottom(), screen.top() + 1051) << x;
        }
    }
}

TEST(LumivaneStatusItemTest, WithoutAKnownIconItOpensInTheTraysCorner) {
    const QRect screen(0, 0, 1280, 800);
    EXPECT_EQ(frame(std::nullopt, screen, {0, 28, 0, 0}).topRight(), QPoint(1279, 28));
    EXPECT_EQ(frame(std::nullopt, screen, {0, 0, 0, 28}).bottomRight(), QPoint(1279, 771));
    EXPECT_EQ(frame(std::nullopt, screen, {}).bottomRight(), QPoint(1279, 799));
    // One that is larger than the screen shows its top.
    for (const int y : {0, 452})
        EXPECT_EQ(frame(QRect(290, y, 28, 28), QRect(0, 0, 320, 480), {0, 28, 0, 0}).topLeft(), QPoint(0, 28))
            << y;
}
