// SPDX-License-Identifier: MIT
#include "app/engine/CMoon.h"

#include "app/engine/CMoonHelper.h"
#include "platform/bundle/PropertyList.h"
#include "shared/utilities/classes/values/ExtraDateUtilities.h"
#include "tests/TestMain.h"

#include <QFile>
#include <QTemporaryDir>
#include <QVariant>

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

std::uint32_t seconds(const QDateTime& date) {
    return static_cast<std::uint32_t>(date.toSecsSinceEpoch() - ExtraDateUtilities::kReferenceInstant);
}

class CMoonTest : public testing::Test {
protected:
    void SetUp() override { gMoon.Init(); }
    const tLunation& record(int i) const { return *gMoon.FindLunationAtIndex(i); }
};

} // namespace

TEST_F(CMoonTest, PhaseTimesAreThoseOfTheSeries) {
    EXPECT_NEAR(CMoon::moonphase(-283, 0), 2443192.65117, 0.000005);
    EXPECT_EQ(CMoon::TimeOfPhase(953, 0), 3030027285u);
    EXPECT_EQ(CMoon::TimeOfPhase(953, 2), 3031274487u);
    EXPECT_EQ(CMoon::TimeOfPhase(1, 0), 601008075u);
    EXPECT_EQ(CMoon::TimeOfPhase(1447, 2), 4291706329u);

    const InZone newYork("America/New_York");
    const Clock::Hold winter(gmt(2026, 1, 1));
    EXPECT_EQ(CMoon::TimeOfPhase(953, 0), 3030027285u - 18000u);
    EXPECT_EQ(CMoon::GMTTimeOfPhase(953, 0), 3030027285u);
}

TEST_F(CMoonTest, JulianDaysBecomeCalendarDates) {
    tMoonDate date{};
    EXPECT_EQ(CMoon::JDtoDate(2451545.0, &date), 3029529600u + 43200u);
    EXPECT_EQ(date.year, 2000);
    EXPECT_EQ(date.hour, 12);
    EXPECT_EQ(date.isPM, 1);
    CMoon::JDtoDate(2443192.65117, &date);
    EXPECT_EQ(
        std::make_tuple(date.year, date.month, date.day, date.hour, date.minute, date.second, date.isPM),
        std::make_tuple(1977, 2, 18, 3, 37, 41, 0));
    CMoon::JDtoDate(2299160.5, &date);
    EXPECT_EQ(std::make_tuple(date.year, date.month, date.day), std::make_tuple(1582, 10, 15));
    CMoon::JDtoDate(2299159.5, &date);
    EXPECT_EQ(std::make_tuple(date.year, date.month, date.day), std::make_tuple(1582, 10, 4));
}

TEST_F(CMoonTest, TableIsCompleteAndTheComputedOneIsTheSame) {
    const CaughtLog log;
    const WithEnvironment elsewhere("LUMIVANE_RESOURCES", "/nonexistent");
    CMoon computed;
    computed.Init();
    ASSERT_EQ(log.lines().size(), 1) << qPrintable(log.lines().join(u'\n'));
    EXPECT_TRUE(log.lines().first().contains(u"can't be used"));
    for (int i = 0; i < kLunationCount; ++i) {
        const tLunation& read = record(i);
        for (const auto instant : kPhaseInstants)
            ASSERT_EQ(read.*instant, computed.FindLunationAtIndex(i)->*instant) << i;
        ASSERT_EQ(read.lunationIndex, static_cast<std::uint32_t>(i));
        ASSERT_EQ(read.nextNewMoon - read.newMoon, read.length);
    }
    EXPECT_EQ(record(0).newMoon, 598450809u);
    EXPECT_EQ(record(1447).nextNewMoon, 4292969184u);
}

TEST_F(CMoonTest, DamagedTablesAreToldAndReplaced) {
    const QTemporaryDir folder;
    const WithEnvironment resources("LUMIVANE_RESOURCES", folder.path().toLocal8Bit());
    const QString path = folder.filePath(QStringLiteral("Lunations.plist"));
    QVariantList good;
    for (int i = 0; i < kLunationCount; ++i) {
        const tLunation& from = record(i);
        good.append(QVariant(QVariantList{
            QVariant::fromValue<qulonglong>(from.newMoon), QVariant::fromValue<qulonglong>(from.firstQuarter),
            QVariant::fromValue<qulonglong>(from.fullMoon), QVariant::fromValue<qulonglong>(from.lastQuarter),
            QVariant::fromValue<qulonglong>(from.length)}));
    }
    const auto complaintOn = [&](const QVariant& table) {
        QString error;
        EXPECT_TRUE(PropertyList::write(table, path, &error)) << qPrintable(error);
        const CaughtLog log;
        CMoon moon;
        moon.Init();
        EXPECT_EQ(moon.FindLunationAtIndex(953)->newMoon, 3030027285u);
        EXPECT_LE(log.lines().size(), 1);
        return log.lines().value(0);
    };
    const auto with = [&](int entry, int place, const QVariant& value) {
        QVariantList table = good;
        QVariantList numbers = table[entry].toList();
        numbers[place] = value;
        table[entry] = numbers;
        return QVariant(table);
    };
    EXPECT_EQ(complaintOn(good + QVariantList{QStringLiteral("more")}), QString());
    EXPECT_TRUE(complaintOn(good.mid(0, 1400)).contains(u"1400 entries"));
    EXPECT_TRUE(
        complaintOn(with(7, 2, QStringLiteral("five"))).contains(u"entry 7 has no number at place 2"));
    EXPECT_TRUE(
        complaintOn(with(9, 4, QVariant::fromValue<qulonglong>(5))).contains(u"entry 9 does not follow"));

    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("bplist00\xff\xff\xff garbage");
    file.close();
    const CaughtLog log;
    CMoon moon;
    moon.Init();
    EXPECT_TRUE(log.lines().value(0).contains(u"no property list"));
    EXPECT_EQ(moon.FindLunationAtIndex(0)->newMoon, 598450809u);
}

TEST_F(CMoonTest, LookupsMeetTheirEnds) {
    const std::uint32_t first = record(0).newMoon;
    const std::uint32_t end = record(1447).nextNewMoon;
    EXPECT_EQ(gMoon.FindLunationForGMTSeconds(first), &record(0));
    EXPECT_EQ(gMoon.FindLunationForGMTSeconds(record(500).nextNewMoon), &record(501));
    EXPECT_EQ(gMoon.FindLunationForGMTSeconds(record(500).nextNewMoon - 1), &record(500));
    EXPECT_EQ(gMoon.FindLunationForGMTSeconds(end - 1), &record(1447));
    for (const std::uint32_t outside : {0u, first - 1, end, std::numeric_limits<std::uint32_t>::max()}) {
        EXPECT_EQ(gMoon.FindLunationForGMTSeconds(outside), nullptr);
        EXPECT_EQ(gMoon.GetLunation(outside), 0);
        EXPECT_EQ(gMoon.MoonAgeInSeconds(outside), 0u);
        EXPECT_EQ(gMoon.GetPhase(outside), 0.0);
        EXPECT_FALSE(gMoon.IsBlue(outside));
        EXPECT_EQ(gMoon.GetDescriptorIndex(outside), MoonName::Full);
        EXPECT_EQ(gMoon.GetAlmanacIndex(outside), MoonName::WolfMoon);
    }
    EXPECT_EQ(gMoon.GetAlmanacIndex(end - 1), MoonName::WolfMoon); // no full moon follows
    EXPECT_FALSE(gMoon.IsBlue(record(0).fullMoon));
    const CMoon empty;
    EXPECT_EQ(empty.FindLunationForGMTSeconds(first), nullptr);
}

TEST_F(CMoonTest, PhaseIsLinearBetweenQuarters) {
    const tLunation& r = record(1000);
    EXPECT_EQ(gMoon.GetPhase(r.newMoon), 0.0);
    EXPECT_EQ(gMoon.GetPhase(r.firstQuarter), 0.25);
    EXPECT_EQ(gMoon.GetPhase(r.fullMoon), 0.5);
    EXPECT_EQ(gMoon.GetPhase(r.lastQuarter), 0.75);
    EXPECT_EQ(gMoon.IlluminationDisplay(r.firstQuarter), 50.0);
    EXPECT_EQ(gMoon.IlluminationDisplay(r.fullMoon), 100.0);
    EXPECT_EQ(gMoon.IlluminationDisplay(r.lastQuarter), 50.0);
    EXPECT_NEAR(gMoon.GetPhase(r.newMoon + (r.firstQuarter - r.newMoon) / 2), 0.125, 1e-6);
    const double last = gMoon.GetPhase(r.nextNewMoon - 1);
    EXPECT_LT(last, 1.0);
    EXPECT_GT(last, 0.999999);
    EXPECT_EQ(gMoon.MoonAgeInSeconds(r.nextNewMoon - 1), r.length - 1);
}

TEST_F(CMoonTest, UpcomingQuartersAreStrictlyLater) {
    const tLunation& r = record(1000);
    std::array<std::uint32_t, 5> upcoming{};
    gMoon.GetUpcomingQuarters(r.fullMoon, upcoming.data());
    EXPECT_EQ(upcoming[2], record(1001).fullMoon);
    EXPECT_EQ(upcoming[3], r.lastQuarter);
    EXPECT_EQ(upcoming[0], r.nextNewMoon);
    EXPECT_EQ(upcoming[4], r.nextNewMoon);

    upcoming = {0, 77, 0, 0, 0};
    gMoon.GetUpcomingQuarters(record(1447).fullMoon, upcoming.data());
    EXPECT_EQ(upcoming,
              (std::array<std::uint32_t, 5>{0, 77, 0, record(1447).lastQuarter, record(1447).nextNewMoon}));
}

TEST_F(CMoonTest, IconsFollowTheirBounds) {
    EXPECT_EQ(CMoon::IconIndexForPercentage(0), 1);
    EXPECT_EQ(CMoon::IconIndexForPercentage(1), 1);
    EXPECT_EQ(CMoon::IconIndexForPercentage(2), 2);
    EXPECT_EQ(CMoon::IconIndexForPercentage(2.0001), 3);
    EXPECT_EQ(CMoon::IconIndexForPercentage(50), 14);
    EXPECT_EQ(CMoon::IconIndexForPercentage(100), 28);
    EXPECT_EQ(CMoon::IconIndexForPercentage(250), 28);
    EXPECT_EQ(CMoon::IconIndexForPercentage(-3), 1);
    const CaughtLog log;
    EXPECT_EQ(CMoon::IconIndexForPercentage(std::nan("")), 0);
    EXPECT_EQ(log.lines(), QStringList{QStringLiteral("Unknown percentage nan in MoonIconIndex.")});
    EXPECT_EQ(gMoon.MoonIconIndex(record(1000).fullMoon), 14);
    EXPECT_EQ(gMoon.MoonIconIndex(record(1000).nextNewMoon - 1), 28);
}

TEST_F(CMoonTest, PhrasesTurnAtFullMoon) {
    const tLunation& r = record(1000);
    const auto atPhase = [&](double phase) { // within the lunation's second or third quarter
        const double span = phase < 0.5 ? r.fullMoon - r.firstQuarter : r.lastQuarter - r.fullMoon;
        return r.fullMoon +
               static_cast<std::uint32_t>(static_cast<std::int64_t>((phase - 0.5) / 0.25 * span));
    };
    EXPECT_EQ(gMoon.GetDescriptorIndex(r.newMoon), MoonName::New);
    EXPECT_EQ(gMoon.GetDescriptorIndex(r.firstQuarter), MoonName::AtFirstQuarter);
    EXPECT_EQ(gMoon.GetDescriptorIndex(atPhase(0.497)), MoonName::NearFull);
    EXPECT_EQ(gMoon.GetDescriptorIndex(r.fullMoon), MoonName::Full);
    EXPECT_EQ(gMoon.GetDescriptorIndex(atPhase(0.503)), MoonName::PastFull);
    EXPECT_EQ(gMoon.GetDescriptorIndex(atPhase(0.6)), MoonName::WaningGibbous);
    EXPECT_EQ(gMoon.GetDescriptorIndex(r.lastQuarter), MoonName::AtLastQuarter);
    EXPECT_EQ(gMoon.GetDescriptorIndex(r.nextNewMoon - 1), MoonName::New);
}

TEST_F(CMoonTest, BlueMoonsAndAlmanacNamesOf2009) {
    EXPECT_EQ(record(1076).newMoon, seconds(gmt(2009, 12, 16, 12, 3, 18)));
    EXPECT_EQ(record(1076).fullMoon, seconds(gmt(2009, 12, 31, 19, 13, 52)));
    EXPECT_TRUE(gMoon.IsBlue(record(1076).newMoon));
    EXPECT_TRUE(gMoon.IsBlue(record(1076).nextNewMoon - 1));
    EXPECT_FALSE(gMoon.IsBlue(record(1075).fullMoon));
    EXPECT_EQ(gMoon.GetAlmanacIndex(seconds(gmt(2009, 1, 5))), MoonName::WolfMoon);
    EXPECT_EQ(gMoon.GetAlmanacIndex(seconds(gmt(2009, 11, 20))), MoonName::BeaverMoon);
    EXPECT_EQ(gMoon.GetAlmanacIndex(seconds(gmt(2009, 12, 20))), MoonName::ColdMoon);
    EXPECT_EQ(gMoon.GetAlmanacIndex(seconds(gmt(2009, 12, 31, 20))), MoonName::WolfMoon);
    // In a year of twelve full moons the count goes on after the last one.
    EXPECT_EQ(gMoon.GetAlmanacIndex(seconds(gmt(2010, 12, 25))), MoonName::ColdMoon);
}
