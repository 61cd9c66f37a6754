// SPDX-License-Identifier: MIT
#include "platform/locale/TimeZone.h"

#include "tests/TestMain.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ctime>

namespace {

const QDateTime kWinter = gmt(2026, 1, 15);
const QDateTime kSummer = gmt(2026, 7, 15);

int offset(const QDateTime& moment) {
    const Clock::Hold present(moment);
    return TimeZone::secondsFromGMT(TimeZone::systemTimeZone());
}

long offsetOfTheCLibrary(const QDateTime& moment) {
    const std::time_t seconds = moment.toSecsSinceEpoch();
    std::tm fields{};
    tzset();
    localtime_r(&seconds, &fields);
    return fields.tm_gmtoff;
}

} // namespace

TEST(TimeZoneTest, ReadsTheZoneAsTheCLibraryDoes) {
    const QTemporaryDir folder;
    const QByteArray copy = QFile::encodeName(folder.filePath(QStringLiteral("here")));
    ASSERT_TRUE(QFile::copy(QStringLiteral("/usr/share/zoneinfo/Europe/Berlin"), QFile::decodeName(copy)));
    struct Case {
        QByteArray value;
        const char* name;
    };
    for (const Case& zone :
         {Case{"Europe/Berlin", "Europe/Berlin"}, Case{":Europe/Berlin", "Europe/Berlin"},
          Case{"/usr/share/zoneinfo/Europe/Berlin", "Europe/Berlin"},
          Case{":/usr/share/zoneinfo/Europe/Berlin", "Europe/Berlin"},
          Case{"posix/Asia/Kolkata", "Asia/Kolkata"}, Case{copy, "CET-1CEST,M3.5.0,M10.5.0/3"},
          Case{"CET-1CEST", "CET-1CEST,M3.2.0,M11.1.0"}, Case{":CET-1CEST,", "CET-1CEST,M3.2.0,M11.1.0"},
          Case{"<+03>-3<+05>-5", "<+03>-3<+05>-5,M3.2.0,M11.1.0"},
          Case{"CET-1CEST,M3.5.0,M10.5.0/3", "CET-1CEST,M3.5.0,M10.5.0/3"},
          Case{"<+0330>-3:30", "<+0330>-3:30"}, Case{"EST5EDT", "EST5EDT"},
          Case{"NZST-12NZDT,M9.5.0,M4.1.0/3", "NZST-12NZDT,M9.5.0,M4.1.0/3"}, Case{"", "UTC"},
          Case{":", "UTC"}}) {
        // Debian 13 has these two apart from the others, and its C library doesn't know them either.
        if ((zone.value.startsWith("posix/") || zone.value == "EST5EDT") &&
            !QFile::exists(TimeZone::zoneInfoFolder() + u'/' + QFile::decodeName(zone.value)))
            continue;
        const CaughtLog log;
        const InZone here(zone.value.constData());
        EXPECT_EQ(TimeZone::name(TimeZone::systemTimeZone()).toStdString(), zone.name);
        for (const QDateTime& moment : {kWinter, kSummer})
            EXPECT_EQ(offset(moment), offsetOfTheCLibrary(moment)) << zone.value.constData();
        EXPECT_TRUE(log.lines().isEmpty()) << zone.value.constData();
    }
    for (const char* unknown :
         {"No/Such", "FOO", "Europe", "/dev/zero", "/usr/share/zoneinfo/zone.tab", "CET-1CEST,M3"}) {
        const CaughtLog log;
        const InZone here(unknown);
        EXPECT_EQ(offset(kSummer), 0) << unknown;
        EXPECT_EQ(offset(kSummer), 0) << unknown;
        EXPECT_EQ(log.lines().size(), 1) << unknown;
    }
}

TEST(TimeZoneTest, DaylightIsSavedWhereTheClockIsAheadOfItsYearsLeast) {
    struct Case {
        const char* zone;
        bool winter;
        bool summer;
    };
    for (const Case& expected :
         {Case{"America/New_York", false, true}, Case{"Europe/Dublin", false, true},
          Case{"IST-1GMT0,M10.5.0,M3.5.0/1", false, true}, Case{"Australia/Lord_Howe", true, false},
          Case{"CET-1CEST", false, true}, Case{"Asia/Kolkata", false, false}, Case{"UTC", false, false}}) {
        const InZone here(expected.zone);
        for (const auto& [moment, isOn] :
             {std::pair{kWinter, expected.winter}, std::pair{kSummer, expected.summer}}) {
            const Clock::Hold present(moment);
            EXPECT_EQ(TimeZone::isDaylightSavingTime(TimeZone::systemTimeZone()), isOn) << expected.zone;
        }
    }
}
