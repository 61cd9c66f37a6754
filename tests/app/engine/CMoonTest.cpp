// SPDX-License-Identifier: MIT
#include "platform/bundle/Bundle.h"
#include "platform/bundle/PropertyList.h"
#include "tests/app/MoonTest.h"

#include <cmath>
#include <limits>

namespace {
class CMoonTest : public MoonTest {};
} // namespace

TEST_F(CMoonTest, PhaseTimesAreThoseOfTheSeries) {
    EXPECT_NEAR(CMoon::moonphase(-283, 0), 2443192.65117, 0.000005);
    const Clock::Hold winter(gmt(2026, 1, 1));
    using Row = std::tuple<int, int, std::uint32_t>;
    for (const auto& [lunation, phase, moment] : {Row{953, 0, 3030027285u}, Row{953, 2, 3031274487u},
                                                  Row{1, 0, 601008075u}, Row{1447, 2, 4291706329u}}) {
        EXPECT_EQ(CMoon::GMTTimeOfPhase(lunation, phase), moment);
        EXPECT_EQ(CMoon::TimeOfPhase(lunation, phase), moment - 18000u);
    }
}

TEST_F(CMoonTest, JulianDaysBecomeCalendarDates) {
    using Row = std::tuple<double, std::array<int, 7>>;
    for (const auto& [jd, expected] :
         {Row{2451545.0, {2000, 1, 1, 12, 0, 0, 1}}, Row{2443192.65117, {1977, 2, 18, 3, 37, 41, 0}},
          Row{2299160.5, {1582, 10, 15, 0, 0, 0, 0}}, Row{2299159.5, {1582, 10, 4, 0, 0, 0, 0}}}) {
        tMoonDate date{};
        CMoon::JDtoDate(jd, &date);
        EXPECT_EQ(fieldsOf(date), expected) << jd;
    }
}

TEST_F(CMoonTest, ADamagedTableIsToldAndComputed) {
    EXPECT_EQ(lunation(0).newMoon, 598450809u);
    EXPECT_EQ(lunation(1447).nextNewMoon, 4292969184u);
    QString error;
    const QVariantList good =
        PropertyList::read(Bundle::main().resourcePath() + u"/Lunations.plist"_s, &error).toList();
    const OtherResources resources;
    const auto with = [&](int entry, int place, const QVariant& value) {
        QVariantList table = good;
        QVariantList numbers = table[entry].toList();
        numbers[place] = value;
        table[entry] = numbers;
        return PropertyList::toBytes(table);
    };
    using Row = std::tuple<QByteArray, const char*>;
    for (const auto& [table, complaint] :
         {Row{PropertyList::toBytes(good + QVariantList{u"more"_s}), ""},
          Row{PropertyList::toBytes(good.mid(0, 1400)), "1400 entries"},
          Row{with(7, 2, u"five"_s), "entry 7 has no number at place 2"},
          Row{with(9, 4, QVariant::fromValue<qulonglong>(5)), "entry 9 does not follow"},
          Row{QByteArray("bplist00\xff\xff\xff garbage"), "no property list"}}) {
        SCOPED_TRACE(complaint);
        writeFile(resources.path(u"Lunations.plist"_s), table);
        const CaughtLog log;
        CMoon moon;
        moon.Init();
        EXPECT_EQ(log.lines().size(), *complaint ? 1 : 0);
        EXPECT_TRUE(log.lines().join(u' ').contains(QLatin1String(complaint)));
        for (int i = 0; i < kLunationCount; ++i) {
            const tLunation& each = *moon.FindLunationAtIndex(i);
            for (const auto instant : kPhaseInstants)
                ASSERT_EQ(each.*instant, lunation(i).*instant) << i;
            ASSERT_EQ(each.lunationIndex, static_cast<std::uint32_t>(i));
            ASSERT_EQ(each.nextNewMoon - each.newMoon, each.length);
        }
    }
}

TEST_F(CMoonTest, LookupsMeetTheirEnds) {
    const std::uint32_t next = lunation(500).nextNewMoon;
    for (const auto& [moment, index] :
         {std::pair{firstMoment(), 0}, {next - 1, 500}, {next, 501}, {lastMoment(), 1447}})
        EXPECT_EQ(gMoon.GetLunation(moment), index);
    for (const std::uint32_t outside :
         {0u, firstMoment() - 1, lastMoment() + 1, std::numeric_limits<std::uint32_t>::max()}) {
        EXPECT_EQ(gMoon.FindLunationForGMTSeconds(outside), nullptr);
        EXPECT_EQ(gMoon.GetLunation(outside), 0);
        EXPECT_EQ(gMoon.GetPhase(outside), 0.0);
        EXPECT_FALSE(gMoon.IsBlue(outside));
        EXPECT_EQ(gMoon.GetDescriptorIndex(outside), MoonName::Full);
        EXPECT_EQ(gMoon.GetAlmanacIndex(outside), MoonName::WolfMoon);
    }
    EXPECT_EQ(gMoon.GetAlmanacIndex(lastMoment()), MoonName::WolfMoon) << "no full moon follows";
    EXPECT_FALSE(gMoon.IsBlue(lunation(0).fullMoon));
}

TEST_F(CMoonTest, WhatALunationShowsFromNewMoonToNewMoon) {
    const tLunation& r = lunation(1000);
    using Row = std::tuple<std::uint32_t, double, double, int, MoonName>;
    for (const auto& [moment, phase, illumination, icon, name] :
         {Row{r.newMoon, 0, 0, 1, MoonName::New},
          Row{r.newMoon + (r.firstQuarter - r.newMoon) / 2, 0.125, 25, 5, MoonName::WaxingCrescent},
          Row{r.firstQuarter, 0.25, 50, 8, MoonName::AtFirstQuarter},
          Row{r.fullMoon - (r.fullMoon - r.firstQuarter) / 80, 0.496875, 99.375, 14, MoonName::NearFull},
          Row{r.fullMoon, 0.5, 100, 14, MoonName::Full},
          Row{r.fullMoon + (r.lastQuarter - r.fullMoon) / 80, 0.503125, 99.375, 15, MoonName::PastFull},
          Row{r.fullMoon + (r.lastQuarter - r.fullMoon) / 5 * 2, 0.6, 80, 16, MoonName::WaningGibbous},
          Row{r.lastQuarter, 0.75, 50, 19, MoonName::AtLastQuarter},
          Row{r.nextNewMoon - 1, 1, 0, 28, MoonName::New}}) {
        SCOPED_TRACE(phase);
        EXPECT_NEAR(gMoon.GetPhase(moment), phase, 1e-6);
        EXPECT_LT(gMoon.GetPhase(moment), 1.0);
        EXPECT_NEAR(gMoon.IlluminationDisplay(moment), illumination, 1e-3);
        EXPECT_EQ(gMoon.MoonIconIndex(moment), icon);
        EXPECT_EQ(gMoon.GetDescriptorIndex(moment), name);
    }
    EXPECT_EQ(gMoon.MoonAgeInSeconds(r.nextNewMoon - 1), r.length - 1);
    for (const auto& [percentage, icon] :
         {std::pair{2.0, 2}, {2.0001, 3}, {250.0, 28}, {-3.0, 1}, {std::nan(""), 0}})
        EXPECT_EQ(CMoon::IconIndexForPercentage(percentage), icon) << percentage;
}

TEST_F(CMoonTest, UpcomingQuartersAreStrictlyLater) {
    using Quarters = std::array<std::uint32_t, 5>;
    const tLunation& r = lunation(1000);
    Quarters upcoming{0, 77, 0, 0, 0};
    gMoon.GetUpcomingQuarters(r.fullMoon, upcoming.data());
    EXPECT_EQ(upcoming, (Quarters{r.nextNewMoon, 77, lunation(1001).fullMoon, r.lastQuarter, r.nextNewMoon}));
    upcoming = {};
    gMoon.GetUpcomingQuarters(lunation(1447).fullMoon, upcoming.data());
    EXPECT_EQ(upcoming[2], 0u) << "the table has none";
}

TEST_F(CMoonTest, BlueMoonsAndAlmanacNamesOf2009) {
    EXPECT_EQ(lunation(1076).newMoon, seconds(gmt(2009, 12, 16, 12, 3, 18)));
    EXPECT_TRUE(gMoon.IsBlue(lunation(1076).newMoon) && gMoon.IsBlue(lunation(1076).nextNewMoon - 1));
    EXPECT_FALSE(gMoon.IsBlue(lunation(1075).fullMoon));
    using Row = std::tuple<QDateTime, MoonName>;
    for (const auto& [date, name] :
         {Row{gmt(2009, 1, 5), MoonName::WolfMoon}, Row{gmt(2009, 11, 20), MoonName::BeaverMoon},
          Row{gmt(2009, 12, 20), MoonName::ColdMoon}, Row{gmt(2009, 12, 31, 20), MoonName::WolfMoon},
          // In a year of twelve full moons the count goes on after the last one.
          Row{gmt(2010, 12, 25), MoonName::ColdMoon}})
        EXPECT_EQ(gMoon.GetAlmanacIndex(seconds(date)), name) << qPrintable(date.toString());
}
