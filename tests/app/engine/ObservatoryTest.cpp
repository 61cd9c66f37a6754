// SPDX-License-Identifier: MIT
// The engine beside observatory.tsv: instants that the US Naval Observatory published.
#include "app/engine/CMoon.h"
#include "app/engine/CRiseSet.h"
#include "shared/utilities/classes/values/ExtraDateUtilities.h"

#include <QDateTime>
#include <QFile>
#include <QStringList>

#include <cstdlib>

#include <gtest/gtest.h>

namespace {

struct Published {
    QString what;
    QStringList numbers;
    QDateTime instant;
    std::string line;
};

std::vector<Published> published() {
    QFile file(QStringLiteral(TESTS_SOURCE_DIR "/app/engine/observatory.tsv"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
    std::vector<Published> all;
    while (!file.atEnd()) {
        const QString line = QString::fromLatin1(file.readLine().trimmed());
        if (line.startsWith(u'#'))
            continue;
        QStringList fields = line.split(u'\t');
        const QString what = fields.takeFirst();
        const QDateTime instant =
            QDateTime::fromString(fields.takeLast(), QStringLiteral("yyyy-MM-dd'T'HH:mm'Z'"));
        all.push_back({what, fields, QDateTime(instant.date(), instant.time(), Qt::UTC), line.toStdString()});
    }
    return all;
}

std::int64_t nearestPhase(int phase, std::int64_t gmtSeconds) {
    std::int64_t nearest = 0;
    for (const tLunation& lunation : gMoon.lunations) {
        const std::int64_t instant = lunation.*kPhaseInstants[static_cast<std::size_t>(phase)];
        if (std::abs(instant - gmtSeconds) < std::abs(nearest - gmtSeconds))
            nearest = instant;
    }
    return nearest;
}

/// In minutes of the published instant's day at GMT; -1 when the Sun or the Moon does not do it on that day.
int minuteOf(const Published& event) {
    const QDate day = event.instant.date();
    CRiseSet calculator;
    calculator.Calculate(
        {event.numbers[1].toDouble(), event.numbers[2].toDouble(), 0.0, day.day(), day.month(), day.year()});
    tRiseSetPair pair{};
    event.numbers[0] == u"Moon" ? calculator.GetMoonInfo(pair) : calculator.GetSunInfo(pair);
    if (event.what == u"rise")
        return pair.state == kRiseSetBoth || pair.state == kRiseSetNoSet
                   ? pair.riseHour * 60 + pair.riseMinute
                   : -1;
    return pair.state == kRiseSetBoth || pair.state == kRiseSetNoRise ? pair.setHour * 60 + pair.setMinute
                                                                      : -1;
}

} // namespace

TEST(ObservatoryTest, PhasesWithinTwoMinutesAndRisesAndSetsWithinOne) {
    gMoon.Init();
    const auto table = published();
    ASSERT_EQ(table.size(), 120U);
    for (const Published& event : table) {
        if (event.what == u"phase") {
            const std::int64_t instant =
                event.instant.toSecsSinceEpoch() - ExtraDateUtilities::kReferenceInstant;
            EXPECT_NEAR(nearestPhase(event.numbers[0].toInt(), instant), instant, 120) << event.line;
        } else {
            const QTime time = event.instant.time();
            EXPECT_NEAR(minuteOf(event), time.hour() * 60 + time.minute(), 1) << event.line;
        }
    }
}
