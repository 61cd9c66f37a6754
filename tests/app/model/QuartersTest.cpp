// SPDX-License-Identifier: MIT
#include "app/model/Quarters.h"

#include "app/engine/CMoon.h"
#include "app/model/PanelModel.h"
#include "platform/bundle/Bundle.h"
#include "shared/utilities/classes/values/ExtraDateUtilities.h"
#include "tests/TestMain.h"

TEST(QuartersTest, TheToolTipTellsTheNextQuarterInTheUsersZoneAndLanguage) {
    gMoon.Init();
    const InZone zone("America/New_York");
    const struct {
        QDateTime now;
        const char* language;
        const char16_t* line;
    } cases[]{
        {gmt(2026, 11, 23, 8), "en", u"Full Moon: 11/24/26, 9:54 AM, in 1 day"},
        {gmt(2026, 11, 23, 16), "en", u"Full Moon: 11/24/26, 9:54 AM, in 22 hours"},
        {gmt(2026, 11, 24, 14, 53), "de", u"Vollmond: 11/24/26, 9:54 AM, in 1 Minute"},
        {gmt(2026, 11, 26), "ru", u"Последняя четверть: 12/1/26, 1:09 AM, через 6 дней"},
        {gmt(2026, 12, 2), "ar", u"المحاق: 12/8/26، 7:53 PM، خلال 7 أيام"},
    };
    for (const auto& [now, language, line] : cases) {
        const Clock::Hold present(now);
        Bundle::main().installTranslations({QLatin1String(language)});
        EXPECT_EQ(PanelModel().toolTip().section(u'\n', 2).toStdString(),
                  QString::fromUtf16(line).toStdString());
    }
    Bundle::main().installTranslations({QStringLiteral("en")});
}

TEST(QuartersTest, QuartersMeetAtTheirInstants) {
    gMoon.Init();
    const tLunation* lunation = gMoon.FindLunationAtIndex(1300);
    for (int phase = 0; phase < 4; ++phase) {
        const std::uint32_t instant = lunation->*kPhaseInstants.at(static_cast<std::size_t>(phase));
        const Quarters::Quarter quarter{phase, instant};
        EXPECT_EQ(Quarters::latest(instant), quarter);
        EXPECT_EQ(Quarters::next(instant - 1), quarter);
        EXPECT_NE(Quarters::next(instant), quarter);
        EXPECT_NE(Quarters::latest(instant - 1), quarter);
    }
    EXPECT_EQ(Quarters::next(0), std::nullopt);
    const Clock::Hold present(
        QDateTime::fromSecsSinceEpoch(lunation->fullMoon + ExtraDateUtilities::kReferenceInstant + 3 * 3600));
    EXPECT_EQ(Quarters::distance(lunation->fullMoon), u"3 hours ago");
}

TEST(QuartersTest, EachQuarterIsToldOnceAndWhileItIsNews) {
    gMoon.Init();
    constexpr int kNothing = -1;
    const struct {
        QDateTime clock;
        int phase;
    } readings[]{
        {gmt(1910, 1, 1), kNothing},
        {gmt(2062, 12, 26), kNothing}, // 2^32 seconds after the first hours of a quarter
        {gmt(2026, 11, 24, 14, 50), kNothing},
        {gmt(2026, 11, 24, 14, 55), 2},
        {gmt(2026, 11, 24, 15), kNothing},
        {gmt(2026, 11, 17, 12), kNothing}, // set back, over two quarters
        {gmt(2026, 11, 24, 14, 56), kNothing},
        {gmt(2026, 12, 1, 18, 30), kNothing}, // slept for longer than half a day
        {gmt(2026, 12, 1, 18), kNothing},
        {gmt(2026, 12, 9, 12, 30), 0}, // for not quite as long
        {gmt(2026, 12, 24, 2), 2},     // over two
        {gmt(2031, 2, 1), kNothing},   // wrong
        {gmt(2026, 12, 25), kNothing}, // and right again
        {gmt(2026, 12, 30, 19, 30), 3},
    };
    int told = 0;
    for (const auto& [clock, phase] : readings) {
        const auto due =
            Quarters::takeDue(clock.toSecsSinceEpoch() - ExtraDateUtilities::kReferenceInstant, told);
        EXPECT_EQ(due ? due->phase : kNothing, phase) << clock.toString(Qt::ISODate).toStdString();
    }
}
