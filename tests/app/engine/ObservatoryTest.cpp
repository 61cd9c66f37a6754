// SPDX-License-Identifier: MIT
// The engine beside observatory.tsv: instants that the US Naval Observatory published.
#include "app/engine/CRiseSet.h"
#include "tests/app/MoonTest.h"

namespace {

/// In minutes of the day at GMT.
int minuteOf(const QString& what, const QString& body, double longitude, double latitude, const QDate& day) {
    CRiseSet calculator;
    calculator.Calculate({longitude, latitude, 0.0, day.day(), day.month(), day.year()});
    tRiseSetPair pair{};
    body == u"Moon" ? calculator.GetMoonInfo(pair) : calculator.GetSunInfo(pair);
    return what == u"rise" ? pair.riseHour * 60 + pair.riseMinute : pair.setHour * 60 + pair.setMinute;
}

} // namespace

TEST(ObservatoryTest, PhasesWithinTwoMinutesAndRisesAndSetsWithinOne) {
    gMoon.Init();
    int count = 0;
    for (const QByteArray& row :
         readFile(QStringLiteral(TESTS_SOURCE_DIR "/app/engine/observatory.tsv")).split('\n')) {
        const QStringList fields = QString::fromLatin1(row).split(u'\t');
        if (fields.size() < 3 || row.startsWith('#'))
            continue;
        ++count;
        const QDateTime instant = QDateTime::fromString(fields.last(), Qt::ISODate);
        if (fields[0] == u"phase") {
            // A day on, so that a new moon which comes out late still begins the lunation.
            const tLunation* lunation = gMoon.FindLunationForGMTSeconds(seconds(instant) + 86400);
            EXPECT_NEAR(lunation->*kPhaseInstants[fields[1].toUInt()], seconds(instant), 120)
                << row.constData();
        } else {
            EXPECT_NEAR(
                minuteOf(fields[0], fields[1], fields[2].toDouble(), fields[3].toDouble(), instant.date()),
                instant.time().hour() * 60 + instant.time().minute(), 1)
                << row.constData();
        }
    }
    EXPECT_EQ(count, 120);
}
