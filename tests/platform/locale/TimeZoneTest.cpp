// SPDX-License-Identifier: MIT
#include "platform/locale/TimeZone.h"

#include "tests/TestMain.h"

#include <QFile>

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
    const QByteArray copy = QFile::encodeName(folder.filePath(u"here"_s));
    ASSERT_TRUE(QFile::copy(u"/usr/share/zoneinfo/Europe/Berlin"_s, QFile::decodeName(copy)));
    using Row = std::tuple<QByteArray, const char*>;
    for (const auto& [value, name] :
         {Row{"Europe/Berlin", "Europe/Berlin"}, Row{":Europe/Berlin", "Europe/Berlin"},
          Row{":/usr/share/zoneinfo/Europe/Berlin", "Europe/Berlin"},
          Row{"posix/Asia/Kolkata", "Asia/Kolkata"}, Row{copy, "CET-1CEST,M3.5.0,M10.5.0/3"},
          Row{"CET-1CEST", "CET-1CEST,M3.2.0,M11.1.0"}, Row{":CET-1CEST,", "CET-1CEST,M3.2.0,M11.1.0"},
          Row{"<+03>-3<+05>-5", "<+03>-3<+05>-5,M3.2.0,M11.1.0"}, Row{"<+0330>-3:30", "<+0330>-3:30"},
          Row{"EST5EDT", "EST5EDT"}, Row{"NZST-12NZDT,M9.5.0,M4.1.0/3", "NZST-12NZDT,M9.5.0,M4.1.0/3"},
          Row{"", "UTC"}, Row{":", "UTC"}}) {
        // Debian 13 has these two apart from the others, and its C library doesn't know them either.
        if ((value.startsWith("posix/") || value == "EST5EDT") &&
            !QFile::exists(TimeZone::zoneInfoFolder() + u'/' + QFile::decodeName(value)))
            continue;
        const CaughtLog log;
        const InZone here(value);
        EXPECT_EQ(TimeZone::name(TimeZone::systemTimeZone()).toStdString(), name);
        for (const QDateTime& moment : {kWinter, kSummer})
            EXPECT_EQ(offset(moment), offsetOfTheCLibrary(moment)) << name;
        EXPECT_TRUE(log.lines().isEmpty()) << name;
    }
    for (const char* unknown :
         {"No/Such", "FOO", "/dev/zero", "/usr/share/zoneinfo/zone.tab", "CET-1CEST,M3"}) {
        const CaughtLog log;
        const InZone here(unknown);
        for (const QDateTime& moment : {kWinter, kSummer})
            EXPECT_EQ(offset(moment), 0) << unknown;
        EXPECT_EQ(log.lines().size(), 1) << unknown;
    }
}

TEST(TimeZoneTest, DaylightIsSavedWhereTheClockIsAheadOfItsYearsLeast) {
    using Row = std::tuple<const char*, bool, bool>;
    for (const auto& [zone, winter, summer] :
         {Row{"America/New_York", false, true}, Row{"Europe/Dublin", false, true},
          Row{"IST-1GMT0,M10.5.0,M3.5.0/1", false, true}, Row{"Australia/Lord_Howe", true, false},
          Row{"CET-1CEST", false, true}, Row{"Asia/Kolkata", false, false}, Row{"UTC", false, false}}) {
        const InZone here(zone);
        for (const auto& [moment, isOn] : {std::pair{kWinter, winter}, std::pair{kSummer, summer}}) {
            const Clock::Hold present(moment);
            EXPECT_EQ(TimeZone::isDaylightSavingTime(TimeZone::systemTimeZone()), isOn) << zone;
        }
    }
}
