// SPDX-License-Identifier: MIT
#include "app/engine/CMoonHelper.h"

#include "app/engine/CMoon.h"
#include "app/engine/CRiseSet.h"
#include "app/engine/PreferenceKeys.h"
#include "platform/preferences/Preferences.h"
#include "shared/utilities/classes/values/ExtraDateUtilities.h"
#include "tests/TestMain.h"

#include <limits>

#include <gtest/gtest.h>

namespace {

/// The preferences of one test, taken back at its end.
class CMoonHelperTest : public testing::Test {
protected:
    static void setZone(int type, float customHours = 0.0F) {
        Preferences::standard()->set(PreferenceKeys::timeZoneType, type);
        Preferences::standard()->set(PreferenceKeys::customOffset, customHours);
    }
    static void setPlace(float latitude, float longitude) {
        Preferences::standard()->set(PreferenceKeys::latitude, latitude);
        Preferences::standard()->set(PreferenceKeys::longitude, longitude);
    }
    void TearDown() override {
        Preferences::standard()->remove(PreferenceKeys::timeZoneType);
        for (const auto& key :
             {PreferenceKeys::customOffset, PreferenceKeys::latitude, PreferenceKeys::longitude})
            Preferences::standard()->remove(key);
    }
};

std::uint32_t seconds(const QDateTime& date) {
    return static_cast<std::uint32_t>(date.toSecsSinceEpoch() - ExtraDateUtilities::kReferenceInstant);
}

} // namespace

TEST_F(CMoonHelperTest, ZoneTypesShiftAMoment) {
    const InZone newYork("America/New_York");
    const Clock::Hold summer(gmt(2026, 7, 1));
    const std::uint32_t winterMoment = seconds(gmt(2026, 1, 1, 12));
    const auto shift = [&] {
        return static_cast<std::int32_t>(CMoon::GMTToZone(winterMoment) - winterMoment);
    };
    setZone(kTimeZoneSystem);
    EXPECT_EQ(shift(), -14400) << "the offset is the one in force now";
    for (const int gmtLike : {1, 0, 7}) {
        setZone(gmtLike, 3.0F);
        EXPECT_EQ(shift(), 0);
    }
    for (const auto& [hours, expected] :
         {std::pair{5.5F, 19800}, std::pair{-3.75F, -13500}, std::pair{0.0002F, 0}, std::pair{12.75F, 45900},
          std::pair{1e30F, 0}}) {
        setZone(kTimeZoneCustom, hours);
        EXPECT_EQ(shift(), expected) << hours;
    }
}

TEST_F(CMoonHelperTest, CalendarReadingsOfAMoment) {
    const std::uint32_t moment = 3030027285u; // 2000-01-06 18:14:45 GMT
    tMoonDate date{};
    CMoonHelper::SecondsToMoonDate(moment, date);
    EXPECT_EQ(
        std::make_tuple(date.year, date.month, date.day, date.hour, date.minute, date.second, date.isPM),
        std::make_tuple(2000, 1, 6, 18, 14, 45, 1));
    EXPECT_EQ(CMoonHelper::MoonDateToSeconds(date), moment);
    tMoonDate noon{};
    CMoonHelper::SecondsToMoonDate(seconds(gmt(2000, 1, 6, 11, 59, 59)), noon);
    EXPECT_EQ(noon.isPM, 0);
    CMoonHelper::SecondsToMoonDate(seconds(gmt(2000, 1, 6, 12)), noon);
    EXPECT_EQ(noon.isPM, 1);
    EXPECT_EQ(ExtraDateUtilities::carbonSecondsGMT(gmt(1970, 1, 1)), 2082844800u);

    const InZone newYork("America/New_York");
    const Clock::Hold winter(gmt(2026, 1, 15));
    date = {};
    CMoonHelper::SecondsToMoonDate(moment, date);
    EXPECT_EQ(date.hour, 18) << "the present offset is taken off and the zone's put on again";
    EXPECT_EQ(CMoonHelper::MoonDateToSeconds(date), moment - 18000u);
    DateTimeRec local{};
    LVSecondsToDate(moment, &local);
    EXPECT_EQ(std::make_tuple(int(local.year), int(local.day), int(local.hour), int(local.dayOfWeek)),
              std::make_tuple(2000, 6, 13, 4));
    LVSecondsToDate(moment, nullptr);
    EXPECT_EQ(ExtraDateUtilities::carbonSecondsGMT(ExtraDateUtilities::dateWithCarbonSecondsGMT(moment)),
              moment);
    EXPECT_EQ(ExtraDateUtilities::carbonSecondsGMT(ExtraDateUtilities::dateWithCarbonSeconds1(moment)),
              moment - 18000u);
}

TEST_F(CMoonHelperTest, TemplatesAndDurations) {
    EXPECT_EQ(CMoonHelper::stringForMoonName(MoonName::New), QStringLiteral("new"));
    EXPECT_EQ(CMoonHelper::stringForMoonName(MoonName::ColdMoon), QStringLiteral("a Cold Moon"));
    EXPECT_EQ(CMoonHelper::stringForInformation(Information::DateOutOfRange),
              QStringLiteral("Date out of range"));
    EXPECT_EQ(CMoonHelper::stringForInformation(Information::AlwaysDark), QStringLiteral("always dark"));
    {
        const CaughtLog log;
        for (const int unknown : {0, 30, -1})
            EXPECT_EQ(CMoonHelper::stringForMoonName(static_cast<MoonName>(unknown)), QString());
        for (const int unknown : {0, 5, 14, 15, 29})
            EXPECT_EQ(CMoonHelper::stringForInformation(static_cast<Information>(unknown)), QString());
        EXPECT_EQ(log.lines().first(), QStringLiteral("Unknown name or info: 0."));
        EXPECT_EQ(log.lines().last(), QStringLiteral("Unknown info: 29."));
        EXPECT_EQ(log.lines().size(), 8);
    }
    const auto filled = [](const char* text, std::int32_t span) {
        QString line = QLatin1String(text);
        CMoonHelper::SubstituteDaysHoursMinutes(line, span);
        return line;
    };
    EXPECT_EQ(filled("^dd ^hh ^mm", -90061), QStringLiteral("1d 1h 1m"));
    EXPECT_EQ(filled("^Dd ^hh ^mm ^d", 59), QStringLiteral("0d 0h 0m 0"));
    EXPECT_EQ(filled("^d", std::numeric_limits<std::int32_t>::min()), QStringLiteral("24855"));
}

TEST_F(CMoonHelperTest, SystemOffsetCountsTwiceInTheRequestsDate) {
    const InZone newYork("America/New_York");
    const Clock::Hold winter(gmt(2026, 1, 15));
    setZone(kTimeZoneSystem);
    setPlace(40.7F, -74.0F);
    const auto dayAsked = [](int localHour) {
        tRiseSetCalcParamBlock block{};
        CMoonHelper::BuildRiseSetBlock(CMoon::GMTToZone(seconds(gmt(2026, 1, 15, localHour + 5))), block);
        EXPECT_EQ(block.zoneHours, -5.0);
        EXPECT_EQ(block.longitude, -74.0);
        return block.day;
    };
    EXPECT_EQ(dayAsked(2), 14);
    EXPECT_EQ(dayAsked(5), 15);
    const InZone kolkata("Asia/Kolkata");
    for (const auto& [type, hours] : {std::pair{2, 5.5}, std::pair{3, -3.75}, std::pair{9, 0.0}}) {
        setZone(type, -3.75F);
        tRiseSetCalcParamBlock block{};
        CMoonHelper::BuildRiseSetBlock(0, block);
        EXPECT_EQ(block.zoneHours, hours) << type;
    }
}

TEST_F(CMoonHelperTest, RiseAndSetLines) {
    setZone(kTimeZoneGMT);
    setPlace(51.5074F, -0.1278F);
    CRiseSet calculator;
    const auto line = [&calculator](Information information, const QDateTime& date) {
        return CMoonHelper::FormatDataAsString(&calculator, information, seconds(date));
    };
    EXPECT_EQ(line(Information::Sun, gmt(2024, 12, 21, 12)), QStringLiteral("Sun: 8:04 AM/3:54 PM"));
    EXPECT_EQ(line(Information::DateOutOfRange, gmt(2024, 12, 21, 12)), QStringLiteral("Date out of range"));
    {
        const WithEnvironment german("LC_ALL", "de_DE.UTF-8");
        EXPECT_EQ(line(Information::Sun, gmt(2024, 12, 21, 12)), QStringLiteral("Sun: 08:04/15:54"));
    }
    EXPECT_TRUE(CMoonHelper::FormatDataAsString(nullptr, Information::Sun, 0).isNull());

    setPlace(69.65F, 18.95F);
    EXPECT_EQ(line(Information::Sun, gmt(2024, 6, 21, 12)), QStringLiteral("Sun: always visible"));
    EXPECT_EQ(line(Information::NauticalTwilight, gmt(2024, 6, 21, 12)),
              QStringLiteral("Nautical Twilight: always bright"));
    EXPECT_EQ(line(Information::Moon, gmt(2024, 6, 21, 12)), QStringLiteral("Moon: always invisible"));
    setPlace(89.0F, 10.0F);
    EXPECT_EQ(line(Information::Sun, gmt(2020, 1, 15, 12)), QStringLiteral("Sun: always invisible"));
    EXPECT_EQ(line(Information::NauticalTwilight, gmt(2020, 1, 15, 12)),
              QStringLiteral("Nautical Twilight: always dark"));
    EXPECT_EQ(line(Information::Moon, gmt(2020, 1, 15, 12)), QStringLiteral("Moon: always visible"));

    setPlace(52.5F, 13.4F);
    QStringList moonLines;
    for (int day = 1; day <= 31; ++day)
        moonLines.append(line(Information::Moon, gmt(2026, 1, day, 12)));
    EXPECT_EQ(moonLines.filter(QStringLiteral("Moon: no rise/")).size(), 1);
    EXPECT_EQ(moonLines.filter(QStringLiteral("/no set")).size(), 1);
}

TEST_F(CMoonHelperTest, TimesOfDayAtTheCalendarsOddPlaces) {
    struct Case {
        const char* zone;
        int month;
        int day;
        int hour;
        int minute;
        const char* text;
    };
    for (const Case& each :
         {Case{"UTC", 1, 1, 24, 0, "12:00 AM"}, Case{"America/New_York", 3, 8, 2, 30, "3:30 AM"},
          Case{"America/New_York", 3, 8, 1, 59, "1:59 AM"}, Case{"America/New_York", 11, 1, 1, 30, "1:30 AM"},
          Case{"Europe/Berlin", 3, 29, 2, 30, "3:30 AM"}, Case{"Pacific/Chatham", 7, 1, 13, 5, "1:05 PM"}}) {
        const InZone here(each.zone);
        EXPECT_EQ(CMoonHelper::DateStringFromComponents(2026, each.month, each.day, each.hour, each.minute)
                      .toStdString(),
                  each.text)
            << each.zone;
    }
}
