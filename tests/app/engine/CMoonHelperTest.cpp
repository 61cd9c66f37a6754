// SPDX-License-Identifier: MIT
#include "app/engine/CMoonHelper.h"

#include "app/engine/CRiseSet.h"
#include "tests/app/MoonTest.h"

#include <limits>

namespace {
class CMoonHelperTest : public MoonTest {};
} // namespace

TEST_F(CMoonHelperTest, CalendarReadingsOfAMoment) {
    const Clock::Hold winter(gmt(2026, 1, 15));
    const std::uint32_t moment = 3030027285u; // 2000-01-06 18:14:45 GMT
    tMoonDate date{};
    CMoonHelper::SecondsToMoonDate(moment, date);
    // The present offset is taken off and the zone's put on again.
    EXPECT_EQ(fieldsOf(date), (std::array{2000, 1, 6, 18, 14, 45, 1}));
    EXPECT_EQ(CMoonHelper::MoonDateToSeconds(date), moment - 18000u);
    tMoonDate noon{};
    CMoonHelper::SecondsToMoonDate(seconds(gmt(2000, 1, 6, 12)) - 1, noon);
    EXPECT_FALSE(noon.isPM);
    CMoonHelper::SecondsToMoonDate(seconds(gmt(2000, 1, 6, 12)), noon);
    EXPECT_TRUE(noon.isPM);
    DateTimeRec local{};
    LVSecondsToDate(moment, &local);
    EXPECT_EQ((std::array<int, 4>{local.year, local.day, local.hour, local.dayOfWeek}),
              (std::array{2000, 6, 13, 4}));
    using namespace ExtraDateUtilities;
    EXPECT_EQ(carbonSecondsGMT(dateWithCarbonSecondsGMT(moment)), moment);
    EXPECT_EQ(carbonSecondsGMT(dateWithCarbonSeconds1(moment)), moment - 18000u);
}

TEST_F(CMoonHelperTest, TemplatesAndDurations) {
    const CaughtLog log;
    for (const auto& [name, text] : {std::pair{1, "new"}, {29, "a Cold Moon"}, {30, ""}})
        EXPECT_EQ(CMoonHelper::stringForMoonName(MoonName{name}), QLatin1String(text)) << name;
    for (const auto& [information, text] : {std::pair{6, "Date out of range"}, {26, "always dark"}, {14, ""}})
        EXPECT_EQ(CMoonHelper::stringForInformation(Information{information}), QLatin1String(text));
    EXPECT_EQ(log.lines(), (QStringList{u"Unknown name or info: 30."_s, u"Unknown info: 14."_s}));
    using Row = std::tuple<const char*, int, const char*>;
    for (const auto& [text, span, expected] :
         {Row{"^dd ^hh ^mm", -169201, "1d 23h 0m"}, Row{"^Dd ^hh ^mm ^d", 59, "0d 0h 0m 0"},
          Row{"^d", std::numeric_limits<std::int32_t>::min(), "24855"}}) {
        QString line = QLatin1String(text);
        CMoonHelper::SubstituteDaysHoursMinutes(line, span);
        EXPECT_EQ(line, QLatin1String(expected));
    }
}

TEST_F(CMoonHelperTest, SystemOffsetCountsTwiceInTheRequestsDate) {
    const Clock::Hold winter(gmt(2026, 1, 15));
    setPlace(40.7F, -74.0F);
    tRiseSetCalcParamBlock block{};
    for (const auto& [localHour, day] : {std::pair{2, 14}, {5, 15}}) {
        CMoonHelper::BuildRiseSetBlock(CMoon::GMTToZone(seconds(gmt(2026, 1, 15, localHour + 5))), block);
        EXPECT_EQ(block.day, day);
        EXPECT_EQ(block.longitude, -74.0);
    }
    using Row = std::tuple<const char*, int, double>;
    for (const auto& [zone, type, hours] : {Row{"America/New_York", 2, -5.0}, Row{"Asia/Kolkata", 2, 5.5},
                                            Row{"Asia/Kolkata", 3, -3.75}, Row{"Asia/Kolkata", 9, 0.0}}) {
        const InZone here(zone);
        setZone(type, -3.75F);
        CMoonHelper::BuildRiseSetBlock(0, block);
        EXPECT_EQ(block.zoneHours, hours) << type;
    }
}

TEST_F(CMoonHelperTest, RiseAndSetLines) {
    setZone(kTimeZoneGMT);
    CRiseSet calculator;
    const auto line = [&](Information what, const QDateTime& day) {
        return CMoonHelper::FormatDataAsString(&calculator, what, seconds(day));
    };
    const QDateTime midsummer = gmt(2024, 6, 21, 12);
    setPlace(69.65F, 18.95F);
    EXPECT_EQ(line(Information::Sun, midsummer), u"Sun: always visible");
    EXPECT_EQ(line(Information::NauticalTwilight, midsummer), u"Nautical Twilight: always bright");
    EXPECT_EQ(line(Information::Moon, midsummer), u"Moon: always invisible");
    EXPECT_EQ(line(Information::DateOutOfRange, midsummer), u"Date out of range");
    const QDateTime winter = gmt(2020, 1, 15, 12);
    setPlace(89.0F, 10.0F);
    EXPECT_EQ(line(Information::Sun, winter), u"Sun: always invisible");
    EXPECT_EQ(line(Information::NauticalTwilight, winter), u"Nautical Twilight: always dark");
    EXPECT_EQ(line(Information::Moon, winter), u"Moon: always visible");
    setPlace(52.5F, 13.4F);
    const WithEnvironment german("LC_ALL", "de_DE.UTF-8");
    QStringList lines;
    for (int day = 1; day <= 31; ++day)
        lines += line(Information::Moon, gmt(2026, 1, day, 12));
    EXPECT_EQ(lines.filter(u"Moon: no rise/"_s).size(), 1);
    EXPECT_EQ(lines.filter(u"/no set"_s).size(), 1);
    EXPECT_TRUE(lines.filter(u"no rise/no set"_s).isEmpty());
    EXPECT_TRUE(lines.filter(u"M/"_s).isEmpty()) << "the user's clock has 24 hours";
}

TEST_F(CMoonHelperTest, TimesOfDayAtTheCalendarsOddPlaces) {
    using Row = std::tuple<const char*, int, int, int, int, const char*>;
    for (const auto& [zone, month, day, hour, minute, text] :
         {Row{"UTC", 1, 1, 24, 0, "12:00 AM"}, Row{"America/New_York", 3, 8, 2, 30, "3:30 AM"},
          Row{"America/New_York", 3, 8, 1, 59, "1:59 AM"}, Row{"America/New_York", 11, 1, 1, 30, "1:30 AM"},
          Row{"Europe/Berlin", 3, 29, 2, 30, "3:30 AM"}, Row{"Pacific/Chatham", 7, 1, 13, 5, "1:05 PM"}}) {
        const InZone here(zone);
        EXPECT_EQ(CMoonHelper::DateStringFromComponents(2026, month, day, hour, minute), QLatin1String(text))
            << zone;
    }
}
