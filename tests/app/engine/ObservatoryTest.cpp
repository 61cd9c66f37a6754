// SPDX-License-Identifier: MIT
// The engine beside observatory.tsv: instants that the US Naval Observatory published.
#include "app/engine/CMoon.h"
#include "app/engine/CRiseSet.h"
#include "shared/utilities/classes/values/ExtraDateUtilities.h"
#include "tests/TestMain.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {

std::uint32_t nearestPhase(int phase, std::uint32_t gmtSeconds) {
    // A day on, so that a new moon which comes out late still begins the lunation.
    const tLunation* lunation = gMoon.FindLunationForGMTSeconds(gmtSeconds + 86400);
    return lunation->*kPhaseInstants[static_cast<std::size_t>(phase)];
}

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
    QFile table(QStringLiteral(TESTS_SOURCE_DIR "/app/engine/observatory.tsv"));
    ASSERT_TRUE(table.open(QIODevice::ReadOnly));
    int count = 0;
    while (!table.atEnd()) {
        const QString line = QString::fromLatin1(table.readLine().trimmed());
        if (line.startsWith(u'#'))
            continue;
        ++count;
        const QStringList fields = line.split(u'\t');
        const QDateTime instant = QDateTime::fromString(fields.last(), Qt::ISODate);
        if (fields[0] == u"phase") {
            const auto expected = static_cast<std::uint32_t>(instant.toSecsSinceEpoch() -
                                                             ExtraDateUtilities::kReferenceInstant);
            EXPECT_NEAR(nearestPhase(fields[1].toInt(), expected), expected, 120) << line.toStdString();
        } else {
            EXPECT_NEAR(
                minuteOf(fields[0], fields[1], fields[2].toDouble(), fields[3].toDouble(), instant.date()),
                instant.time().hour() * 60 + instant.time().minute(), 1)
                << line.toStdString();
        }
    }
    EXPECT_EQ(count, 120);
}
