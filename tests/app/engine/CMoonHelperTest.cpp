// SPDX-License-Identifier: MIT
#include "app/engine/CMoonHelper.h"

#include "app/engine/CRiseSet.h"
#include "tests/app/MoonTest.h"

#include <limits>

namespace {
class CMoonHelperTest : public MoonTest {};
} // namespace

TEST_F(CMoonHelperTest, ZoneTypesShiftAMoment) {
    const Clock::Hold summer(gmt(2026, 7, 1));
    const std::uint32_t winterMoment = seconds(gmt(2026, 1, 1, 12));
    using Row = std::tuple<int, float, int>;
    for (const auto& [type, hours, shift] :
         {Row{2, 0.0F, -14400}, // the offset in force now
          Row{1, 3.0F, 0}, Row{0, 3.0F, 0}, Row{7, 3.0F, 0}, Row{3, 5.5F, 19800}, Row{3, -3.75F, -13500},
          Row{3, 0.0002F, 0}, Row{3, 12.75F, 45900}, Row{3, 1e30F, 0}}) {
        setZone(type, hours);
        EXPECT_EQ(static_cast<std::int32_t>(CMoon::GMTToZone(winterMoment) - winterMoment), shift)
            << type << ' ' << hours;
    }
}

TEST_F(CMoonHelperTest, CalendarReadingsOfAMoment) {
    const Clock::Hold winter(gmt(2026, 1, 15));
    const std::uint32_t moment = 3030027285u; // 2000-01-06 18:14:45 GMT
    tMoonDate date{};
    CMoonHelper::SecondsToMoonDate(moment, date);
    // The present offset is taken off and the zone's put on again.
    EXPECT_EQ(fieldsOf(date), (std::array{2000, 1, 6, 18, 14, 45, 1}));
    EXPECT_EQ(CMoonHelper::MoonDateToSeconds(date), moment - 18000u);
    for (const bool isPM : {false, true}) {
        tMoonDate noon{};
        CMoonHelper::SecondsToMoonDate(seconds(gmt(2000, 1, 6, 12)) - (isPM ? 0 : 1), noon);
        EXPECT_EQ(noon.isPM, isPM);
    }
    DateTimeRec local{};
    LVSecondsToDate(moment, &local);
    EXPECT_EQ((std::array<int, 4>{local.year, local.day, local.hour, local.dayOfWeek}),
              (std::array{2000, 6, 13, 4}));
    LVSecondsToDate(moment, nullptr);
    using namespace ExtraDateUtilities;
    EXPECT_EQ(carbonSecondsGMT(dateWithCarbonSecondsGMT(moment)), moment);
    EXPECT_EQ(carbonSecondsGMT(dateWithCarbonSeconds1(moment)), moment - 18000u);
    const InZone utc("UTC");
    EXPECT_EQ(carbonSecondsGMT(gmt(1970, 1, 1)), 2082844800u);
}

TEST_F(CMoonHelperTest, TemplatesAndDurations) {
    const CaughtLog log;
    for (const auto& [name, text] : {std::pair{1, "new"}, {29, "a Cold Moon"}, {0, ""}, {30, ""}, {-1, ""}})
        EXPECT_EQ(CMoonHelper::stringForMoonName(MoonName{name}), QLatin1String(text)) << name;
    for (const auto& [information, text] :
         {std::pair{6, "Date out of range"}, {26, "always dark"}, {0, ""}, {5, ""}, {14, ""}, {29, ""}})
        EXPECT_EQ(CMoonHelper::stringForInformation(Information{information}), QLatin1String(text));
    EXPECT_EQ(log.lines().first(), u"Unknown name or info: 0.");
    EXPECT_EQ(log.lines().last(), u"Unknown info: 29.");
    EXPECT_EQ(log.lines().size(), 7);
    using Row = std::tuple<const char*, int, const char*>;
    for (const auto& [text, span, expected] :
         {Row{"^dd ^hh ^mm", -90061, "1d 1h 1m"}, Row{"^Dd ^hh ^mm ^d", 59, "0d 0h 0m 0"},
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
    using Row = std::tuple<float, float, QDateTime, std::vector<std::pair<Information, const char*>>>;
    for (const auto& [latitude, longitude, day, lines] :
         {Row{51.5074F,
              -0.1278F,
              gmt(2024, 12, 21, 12),
              {{Information::Sun, "Sun: 8:04 AM/3:54 PM"},
               {Information::DateOutOfRange, "Date out of range"}}},
          Row{69.65F,
              18.95F,
              gmt(2024, 6, 21, 12),
              {{Information::Sun, "Sun: always visible"},
               {Information::NauticalTwilight, "Nautical Twilight: always bright"},
               {Information::Moon, "Moon: always invisible"}}},
          Row{89.0F,
              10.0F,
              gmt(2020, 1, 15, 12),
              {{Information::Sun, "Sun: always invisible"},
               {Information::NauticalTwilight, "Nautical Twilight: always dark"},
               {Information::Moon, "Moon: always visible"}}}}) {
        setPlace(latitude, longitude);
        for (const auto& [information, text] : lines)
            EXPECT_EQ(CMoonHelper::FormatDataAsString(&calculator, information, seconds(day)),
                      QLatin1String(text));
    }
    EXPECT_TRUE(CMoonHelper::FormatDataAsString(nullptr, Information::Sun, 0).isNull());
    setPlace(52.5F, 13.4F);
    const WithEnvironment german("LC_ALL", "de_DE.UTF-8");
    QStringList lines;
    for (int day = 1; day <= 31; ++day)
        lines +=
            CMoonHelper::FormatDataAsString(&calculator, Information::Moon, seconds(gmt(2026, 1, day, 12)));
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
